#include "core/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace orvane {

namespace {

bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

/// Reads one number from the front of a text and remembers how far it got.
class NumberReader
{
public:
    explicit NumberReader(TextView text) : m_rest(text) {}

    /// The number as std::from_chars reads it; empty when no digit led.
    std::string Read()
    {
        std::string number;
        if (Next(u'-'))
            number.push_back('-');
        else
            Next(u'+');
        const std::size_t signLength = number.size();
        ReadDigits(number);
        std::size_t digits = number.size() - signLength;
        if (!m_rest.empty() && m_rest.front() == u'.') {
            number.push_back('.');
            m_rest.remove_prefix(1);
            ReadDigits(number);
            digits = number.size() - signLength - 1;
        }
        if (digits == 0)
            return {};
        ReadExponent(number);
        return number;
    }

    TextView Rest() const { return m_rest; }

private:
    bool Next(char16_t wanted)
    {
        if (m_rest.empty() || m_rest.front() != wanted)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    void ReadDigits(std::string& number)
    {
        for (; !m_rest.empty() && IsDigit(m_rest.front()); m_rest.remove_prefix(1))
            number.push_back(static_cast<char>(m_rest.front()));
    }

    void ReadExponent(std::string& number)
    {
        TextView ahead = m_rest;
        if (ahead.empty() || Find(u"eEdD", ahead.substr(0, 1)) == 0)
            return;
        ahead.remove_prefix(1);
        const bool isNegative = !ahead.empty() && ahead.front() == u'-';
        if (!ahead.empty() && (ahead.front() == u'-' || ahead.front() == u'+'))
            ahead.remove_prefix(1);
        if (ahead.empty() || !IsDigit(ahead.front()))
            return;
        number.append(isNegative ? "e-" : "e");
        m_rest = ahead;
        ReadDigits(number);
    }

    TextView m_rest;
};

double ToDouble(const std::string& number)
{
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error != std::errc::result_out_of_range)
        return value;
    const bool isTiny = number.find("e-") != std::string::npos;
    const double size = isTiny ? 0.0 : std::numeric_limits<double>::infinity();
    return number.front() == '-' ? -size : size;
}

} // namespace

double Val(TextView text)
{
    Text packed;
    for (const char16_t c : text)
        if (Find(u" \t\r\n", TextView(&c, 1)) == 0)
            packed.push_back(c);
    const std::string number = NumberReader(packed).Read();
    return number.empty() ? 0 : ToDouble(number);
}

bool IsNumeric(TextView text)
{
    NumberReader reader(Trim(text));
    return !reader.Read().empty() && reader.Rest().empty();
}

Outcome<std::int16_t> ToInteger16(TextView text)
{
    NumberReader reader(Trim(text));
    const std::string number = reader.Read();
    if (number.empty() || !reader.Rest().empty())
        return Fault::TypeMismatch;
    const double exact = ToDouble(number);
    double whole = std::floor(exact);
    const double rest = exact - whole;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2.0) != 0.0))
        whole += 1;
    if (!(whole >= -32768 && whole <= 32767))
        return Fault::Overflow;
    return static_cast<std::int16_t>(whole);
}

double StepNumber(TextView text, double step, double lowest, double highest)
{
    const double from = step == std::trunc(step) ? std::trunc(Val(text)) : Val(text);
    return std::clamp(from + step, lowest, highest);
}

Text NumberToText(double number)
{
    char buffer[40];
    const auto [end, error] =
        std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, 15);
    Text text = FromBytes({buffer, static_cast<std::size_t>(end - buffer)});
    return text == u"-0" ? u"0" : ToUpper(text);
}

} // namespace orvane
