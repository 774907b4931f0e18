#pragma once

#include "core/text.h"

#include <array>
#include <initializer_list>
#include <stdexcept>
#include <utility>

namespace orvane {

/// A template cut into pieces, ready for Fill(); what every Template converts to.
struct TemplateView
{
    TextView Pieces; ///< literals, each behind its length and in front of the index of a mark
    TextView Names;  ///< the marks' names, each behind its length and its number of uses
    std::size_t LiteralSize; ///< of all literals together
};

/// A page text with marks such as «StatusText», cut into pieces while the program is compiled.
///
/// One line feed at the start of the source is dropped, every other one becomes CR LF. A mark that
/// is not closed, or a name that is empty, does not compile.
template <std::size_t sourceSize>
class Template
{
public:
    consteval Template(const char16_t (&source)[sourceSize])
    {
        std::size_t at = source[0] == u'\n' ? 1 : 0;
        while (at + 1 < sourceSize) {
            at = AddLiteral(source, at);
            if (at + 1 < sourceSize)
                at = AddMark(source, at + 1);
        }
    }

    constexpr operator TemplateView() const
    {
        return {TextView(m_pieces.data(), m_size), TextView(m_names.data(), m_namesSize),
                m_literalSize};
    }

private:
    static constexpr char16_t openMark = u'«';
    static constexpr char16_t closeMark = u'»';

    consteval std::size_t AddLiteral(const char16_t (&source)[sourceSize], std::size_t at)
    {
        const std::size_t length = m_size++;
        for (; at + 1 < sourceSize && source[at] != openMark; ++at) {
            if (source[at] == u'\n')
                m_pieces[m_size++] = u'\r';
            m_pieces[m_size++] = source[at];
        }
        const std::size_t size = m_size - length - 1;
        if (size > 0xFFFF)
            throw std::logic_error("a piece of this template is too long");
        m_pieces[length] = static_cast<char16_t>(size);
        m_literalSize += size;
        return at;
    }

    consteval std::size_t AddMark(const char16_t (&source)[sourceSize], std::size_t at)
    {
        std::size_t end = at;
        for (; source[end] != closeMark; ++end)
            if (end + 1 >= sourceSize || source[end] == openMark || source[end] == u'\n')
                throw std::logic_error("a mark of this template is not closed");
        if (end == at)
            throw std::logic_error("a mark of this template has no name");
        m_pieces[m_size++] = IndexOf(TextView(source + at, end - at));
        return end + 1;
    }

    /// The index of a name, which is added when it is new; counts the use.
    consteval char16_t IndexOf(TextView name)
    {
        char16_t index = 0;
        std::size_t at = 0;
        for (; at < m_namesSize; at += m_names[at] + 2u, ++index) {
            if (TextView(m_names.data() + at + 2, m_names[at]) == name) {
                ++m_names[at + 1];
                return index;
            }
        }
        m_names[m_namesSize++] = static_cast<char16_t>(name.size());
        m_names[m_namesSize++] = 1;
        for (const char16_t character : name)
            m_names[m_namesSize++] = character;
        return index;
    }

    std::array<char16_t, 2 * sourceSize + 2> m_pieces{};
    std::array<char16_t, sourceSize + 2> m_names{};
    std::size_t m_size = 0;
    std::size_t m_namesSize = 0;
    std::size_t m_literalSize = 0;
};

/// A mark's name and the text that takes its place.
using TemplateValue = std::pair<TextView, TextView>;

/// The text of `page` with each mark replaced by its value; marks inside a value are not replaced.
/// Throws std::logic_error for a mark without a value, a value without a mark, or more than 64
/// different marks.
Text Fill(TemplateView page, std::initializer_list<TemplateValue> values = {});

} // namespace orvane
