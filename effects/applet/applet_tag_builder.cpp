#include "effects/applet/applet_tag_builder.h"

#include "core/numbers.h"
#include "core/orvane_core.h"

namespace orvane {

namespace {

Text Quoted(TextView text, bool isQuoted)
{
    const TextView quote = isQuoted ? u"\"" : u"";
    return Join({quote, text, quote});
}

} // namespace

AppletTagBuilder::AppletTagBuilder(TextView code, std::initializer_list<AppletAttribute> attributes)
{
    m_lines = Join({u"<APPLET CODE=", Quoted(code, true)});
    for (const AppletAttribute& attribute : attributes)
        m_lines += Join({u" ", attribute.Name, u"=", Quoted(attribute.Value, true)});
    m_lines += Join({u">", lineEnd});
}

AppletTagBuilder& AppletTagBuilder::Param(TextView name, TextView value, ParamQuotes quotes)
{
    return Line(Join({u"<PARAM NAME=", Quoted(name, quotes != ParamQuotes::Value), u" VALUE=",
                      Quoted(value, quotes != ParamQuotes::Name), u">"}));
}

AppletTagBuilder& AppletTagBuilder::Origin(TextView first, TextView second, ParamQuotes quotes)
{
    return Param(first, AppletCredit, quotes)
        .Param(second, AppletCredit, quotes)
        .Line(wizardParamLine);
}

AppletTagBuilder& AppletTagBuilder::ParamUnlessEmpty(TextView name, TextView value,
                                                     ParamQuotes quotes)
{
    return value.empty() ? *this : Param(name, value, quotes);
}

AppletTagBuilder& AppletTagBuilder::NumberedParam(TextView name, std::size_t index, TextView value,
                                                  ParamQuotes quotes)
{
    return Param(Join({name, u".", NumberToText(index)}), value, quotes);
}

AppletTagBuilder& AppletTagBuilder::Line(TextView line)
{
    if (!line.empty())
        m_lines += Join({line, lineEnd});
    return *this;
}

Text AppletTagBuilder::Tag() const
{
    return Join({m_lines, u"</APPLET>", lineEnd});
}

} // namespace orvane
