#include "reedit/effect_pieces.h"

#include "core/effect_markers.h"

#include <algorithm>
#include <map>
#include <utility>

namespace orvane {

namespace {

/// A comment with which an effect's code begins or ends.
struct Marker
{
    Text Name;
    CodeSpan Span;
    bool IsBegin;
    bool IsInHead;
};

/// What stands in a page, as a browser sees it.
struct PageMarks
{
    std::vector<Marker> Markers;
    std::optional<CodeSpan> BodyTag;
};

/// Most comments of a page are none of these, which is told by their last words.
void AddMarker(std::vector<Marker>& markers, std::string_view page, CodeSpan span, bool isInHead)
{
    constexpr std::string_view tail = " ***** -->";
    const std::string_view bytes = CodeIn(page, span);
    if (!bytes.ends_with(tail))
        return;
    const Text comment = FromBytes(bytes);
    if (auto begin = NameInBeginMarker(comment))
        markers.push_back({std::move(*begin), span, true, isInHead});
    else if (auto end = NameInEndMarker(comment))
        markers.push_back({std::move(*end), span, false, isInHead});
}

PageMarks MarksIn(std::string_view page)
{
    PageMarks marks;
    bool hasSections = false;
    bool isInHead = true;
    for (Markup markup = NextMarkup(page, 0); markup.Whole.Begin < page.size();
         markup = NextMarkup(page, markup.Next)) {
        const std::size_t at = markup.Whole.Begin;
        if (page[at + 1] == '!') {
            AddMarker(marks.Markers, page, markup.Whole, isInHead);
            continue;
        }
        // A browser drops a tag without its end.
        const bool isBody = !marks.BodyTag && IsTag(page, at, "<body");
        if (page[markup.Whole.End - 1] != '>' ||
            (!isBody &&
             (!isInHead || !(IsTag(page, at, "</head") || IsTag(page, at, "<frameset")))))
            continue;
        hasSections = true;
        isInHead = false;
        if (isBody)
            marks.BodyTag = markup.Whole;
    }
    // All that a page without these tags shows is its body.
    for (Marker& marker : marks.Markers)
        marker.IsInHead = marker.IsInHead && hasSections;
    return marks;
}

/// Finds the marker that ends the code of an earlier one; each is looked at a few times at most.
class PieceReader
{
public:
    void Take(const Marker& marker)
    {
        auto& begun = m_openOf[ToLower(marker.Name)];
        while (!begun.empty() && !m_isOpen[begun.back()])
            begun.pop_back();
        if (!marker.IsBegin && !begun.empty())
            return Close(begun.back(), marker.Span.End);
        m_pieces.push_back({marker.Name, marker.Span, marker.IsInHead});
        m_isOpen.push_back(marker.IsBegin);
        if (!marker.IsBegin)
            return;
        m_open.push_back(m_pieces.size() - 1);
        begun.push_back(m_pieces.size() - 1);
    }

    std::vector<Piece> TakePieces()
    {
        std::size_t nestedEnd = 0;
        for (Piece& piece : m_pieces) {
            if (piece.Span.Begin < nestedEnd && piece.State == EffectState::Whole)
                piece.State = EffectState::Nested;
            if (piece.State == EffectState::Nested)
                nestedEnd = std::max(nestedEnd, piece.Span.End);
        }
        return std::move(m_pieces);
    }

private:
    void Close(std::size_t number, std::size_t end)
    {
        Piece& piece = m_pieces[number];
        piece.State = number + 1 == m_pieces.size() ? EffectState::Whole : EffectState::Nested;
        piece.Span.End = end;
        while (m_isOpen[number]) {
            m_isOpen[m_open.back()] = false;
            m_open.pop_back();
        }
    }

    std::vector<Piece> m_pieces;
    std::vector<bool> m_isOpen; ///< of each piece
    std::vector<std::size_t> m_open;
    std::map<Text, std::vector<std::size_t>> m_openOf;
};

} // namespace

PagePieces PiecesIn(std::string_view page)
{
    const PageMarks marks = MarksIn(page);
    PieceReader reader;
    for (const Marker& marker : marks.Markers)
        reader.Take(marker);
    return {reader.TakePieces(), marks.BodyTag};
}

} // namespace orvane
