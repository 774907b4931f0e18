#pragma once

#include "core/text.h"

#include <cstddef>
#include <initializer_list>

namespace orvane {

/// Whom the applets are told to thank, in the lines that name maker and source.
inline constexpr TextView AppletCredit = u"www.varlo.example";

/// An attribute of an APPLET tag; its value stands in quotes.
struct AppletAttribute
{
    TextView Name;
    TextView Value;
};

/// Which parts of a PARAM line stand in quotes.
enum class ParamQuotes
{
    Value, ///< <PARAM NAME=PAUSE VALUE="100">
    Name,  ///< <PARAM NAME="PAUSE" VALUE=100>
    Both,  ///< <PARAM NAME="PAUSE" VALUE="100">
};

/// Puts an APPLET tag together, line by line in output order; values go in as they are.
class AppletTagBuilder
{
public:
    /// Opens the tag: CODE first, then the attributes in their order.
    AppletTagBuilder(TextView code, std::initializer_list<AppletAttribute> attributes);

    /// Adds a PARAM line.
    AppletTagBuilder& Param(TextView name, TextView value, ParamQuotes quotes = ParamQuotes::Value);

    /// Adds what every applet is told of its origin: two lines that name `AppletCredit`, and the
    /// one that marks the tag as made by this program.
    AppletTagBuilder& Origin(TextView first, TextView second,
                             ParamQuotes quotes = ParamQuotes::Value);

    /// Adds a PARAM line, or none when the value is empty.
    AppletTagBuilder& ParamUnlessEmpty(TextView name, TextView value,
                                       ParamQuotes quotes = ParamQuotes::Value);

    /// Adds a PARAM line whose name carries an index, such as IMAGE.0.
    AppletTagBuilder& NumberedParam(TextView name, std::size_t index, TextView value,
                                    ParamQuotes quotes = ParamQuotes::Value);

    /// Adds a line as it is, or none when it is empty.
    AppletTagBuilder& Line(TextView line);

    /// The tag with its closing line; every line ends in CR LF.
    Text Tag() const;

private:
    Text m_lines;
};

} // namespace orvane
