#pragma once

#include "core/text.h"

#include <array>
#include <initializer_list>
#include <stdexcept>
#include <utility>

namespace orvane {

/// The pieces of a template, ready for Fill(); what every Template converts to.
struct TemplateView
{
    TextView Pieces;
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
        while (at + 1 < sourceSize)
            at = source[at] == openMark ? AddMark(source, at + 1) : AddLiteral(source, at);
    }

    constexpr operator TemplateView() const { return {TextView(m_pieces.data(), m_size)}; }

private:
    static constexpr char16_t openMark = u'«';
    static constexpr char16_t closeMark = u'»';

    /// Literals and names alternate, a literal first; each is led by its length.
    consteval std::size_t AddLiteral(const char16_t (&source)[sourceSize], std::size_t at)
    {
        const std::size_t length = m_size++;
        for (; at + 1 < sourceSize && source[at] != openMark; ++at) {
            if (source[at] == u'\n')
                m_pieces[m_size++] = u'\r';
            m_pieces[m_size++] = source[at];
        }
        Close(length);
        m_literalIsDue = false;
        return at;
    }

    consteval std::size_t AddMark(const char16_t (&source)[sourceSize], std::size_t at)
    {
        if (m_literalIsDue)
            m_pieces[m_size++] = 0;
        const std::size_t length = m_size++;
        while (source[at] != closeMark) {
            if (at + 1 >= sourceSize || source[at] == openMark || source[at] == u'\n')
                throw std::logic_error("a mark of this template is not closed");
            m_pieces[m_size++] = source[at++];
        }
        if (m_size == length + 1)
            throw std::logic_error("a mark of this template has no name");
        Close(length);
        m_literalIsDue = true;
        return at + 1;
    }

    consteval void Close(std::size_t length)
    {
        if (m_size - length - 1 > 0xFFFF)
            throw std::logic_error("a piece of this template is too long");
        m_pieces[length] = static_cast<char16_t>(m_size - length - 1);
    }

    std::array<char16_t, 2 * sourceSize + 2> m_pieces{};
    std::size_t m_size = 0;
    bool m_literalIsDue = true;
};

/// A mark's name and the text that takes its place.
using TemplateValue = std::pair<TextView, TextView>;

/// The text of `page` with each mark replaced by its value; values are copied as they are and never
/// looked at again. Throws std::logic_error for a mark without a value or a value without a mark.
Text Fill(TemplateView page, std::initializer_list<TemplateValue> values = {});

} // namespace orvane
