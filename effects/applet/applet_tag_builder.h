#pragma once

#include "core/text.h"

#include <cstddef>
#include <initializer_list>

namespace orvane {

/// The value of the parameters that tell an applet who made it.
inline constexpr TextView AppletCredit = u"www.varlo.example";

/// An attribute of an APPLET tag; its value stands in quotes.
struct AppletAttribute
{
    TextView Name;
    TextView Value;
};

/// Which parts of a PARAM line are in quotes.
enum class ParamQuotes
{
    Value, ///< <PARAM NAME=PAUSE VALUE="100">
    Name,  ///< <PARAM NAME="PAUSE" VALUE=100>
    Both,  ///< <PARAM NAME="PAUSE" VALUE="100">
};

/// Builds an APPLET tag line by line in output order; names and values are not escaped.
class AppletTagBuilder
{
public:
    /// Opens the tag: CODE first, then the attributes in their order.
    AppletTagBuilder(TextView code, std::initializer_list<AppletAttribute> attributes);

    /// Adds a PARAM line.
    AppletTagBuilder& Param(TextView name, TextView value, ParamQuotes quotes = ParamQuotes::Value);

    /// Adds the lines that every applet gets: two PARAM lines of these names with `AppletCredit`,
    /// and the line that marks the tag as made by this program.
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
