#include "insertion/page_edit.h"

#include "core/utf8.h"
#include "insertion/page_encoding.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace orvane {

namespace {

/// Positions count from 1 and are signed 16-bit numbers; pages made with earlier versions rely on
/// the limit.
constexpr std::size_t lastPosition = 32767;

bool Fits(std::size_t position)
{
    return position <= lastPosition;
}

/// The start of a page, in which all edits lie: each of the four changes at most what stands up to
/// the last position, and what stands there after them is still of this start.
constexpr std::size_t startSize = 5 * (lastPosition + 1);

/// Of the start's end, which no edit reaches: what is looked for in the rest may begin there.
constexpr std::size_t overlap = 16;

/// What ends the work on a page early, or nothing when it goes on.
using Stop = std::optional<PageEdit>;

/// Whether all of the payload's text has the same bytes in each encoding.
bool IsAscii(const FinishedPayload& payload)
{
    const EffectPayload& effect = payload.Effect;
    const std::array<TextView, 8> texts = {
        effect.HEADHTML,     effect.BODYHTML,     effect.OnLoadFunc,   effect.OnLoadArgs,
        effect.OnUnloadFunc, effect.OnUnloadArgs, payload.BeginMarker, payload.EndMarker};
    return std::ranges::all_of(
        texts, [](TextView text) { return FindAboveAscii(text, 0) == text.size(); });
}

/// The payload's texts, each as the bytes that the page will hold.
struct PageCode
{
    PageCode(const FinishedPayload& payload, PageEncoding encoding)
        : HEADHTML(EncodeForPage(payload.Effect.HEADHTML, encoding)),
          BODYHTML(EncodeForPage(payload.Effect.BODYHTML, encoding)),
          OnLoadFunc(EncodeForAttribute(payload.Effect.OnLoadFunc, encoding)),
          OnLoadArgs(EncodeForAttribute(payload.Effect.OnLoadArgs, encoding)),
          OnUnloadFunc(EncodeForAttribute(payload.Effect.OnUnloadFunc, encoding)),
          OnUnloadArgs(EncodeForAttribute(payload.Effect.OnUnloadArgs, encoding)),
          BeginMarker(EncodeForPage(payload.BeginMarker, encoding)),
          EndMarker(EncodeForPage(payload.EndMarker, encoding))
    {
    }

    std::string HEADHTML;
    std::string BODYHTML;
    std::string OnLoadFunc;
    std::string OnLoadArgs;
    std::string OnUnloadFunc;
    std::string OnUnloadArgs;
    std::string BeginMarker;
    std::string EndMarker;
};

/// The inside of an element: where its open tag ends, where its close tag begins, and the text
/// between.
struct Inside
{
    std::size_t TagEnd;   ///< of the ">" of its open tag
    std::size_t CloseTag; ///< of the "<" of its close tag
    std::string_view Inner;
};

/// One page on its way through the three kinds of insertion.
class PageRun
{
public:
    PageRun(std::string_view page, const PageCode& code, bool replaceInBody,
            const ReplaceQuestion& askToReplace)
        : m_page(page.substr(0, startSize)),
          m_kept(page.size() - m_page.size()),
          m_rest(m_kept == 0 ? std::string_view() : page.substr(startSize - overlap)),
          m_begin(code.BeginMarker),
          m_end(code.EndMarker),
          m_replaceInBody(replaceInBody),
          m_ask(askToReplace)
    {
    }

    EditedPage TakePage() { return {std::move(m_page), m_kept}; }

    Stop InsertIntoHead(std::string_view HEADHTML)
    {
        const std::size_t headTag = FindInPage("<head");
        if (!Fits(headTag))
            return Fault::Overflow;
        if (headTag == 0)
            return ManualFallback();
        const auto head = InsideOf(headTag, "</head");
        if (const Fault* fault = FaultIn(head))
            return *fault;
        const auto& [tagEnd, closeTag, inner] = ValueIn(head);
        if (!FindEffectInExistingCode(inner, m_begin, m_end)) {
            PutBehindTag(tagEnd, HEADHTML, tagEnd + 1);
            return {};
        }
        if (!m_ask())
            return ManualFallback();
        m_isConfirmed = true;
        return ReplaceInside(ValueIn(head), HEADHTML);
    }

    Stop InsertIntoBody(std::string_view BODYHTML)
    {
        const std::size_t bodyTag = FindInPage("<body");
        if (!Fits(bodyTag))
            return Fault::Overflow;
        if (bodyTag == 0)
            return ManualFallback();
        const auto body = InsideOf(bodyTag, "</body");
        if (const Fault* fault = FaultIn(body))
            return *fault;
        const auto& [tagEnd, closeTag, inner] = ValueIn(body);
        if (!m_replaceInBody || !FindEffectInExistingCode(inner, m_begin, m_end)) {
            PutBehindTag(tagEnd, BODYHTML, tagEnd + 1);
            return {};
        }
        if (!m_isConfirmed && !m_ask())
            return ManualFallback();
        return ReplaceInside(ValueIn(body), BODYHTML);
    }

    Stop InsertAttribute(std::string_view word, std::string_view Func, std::string_view Args)
    {
        const std::size_t bodyTag = FindInPage("<body");
        if (bodyTag == 0)
            return {};
        if (!Fits(bodyTag))
            return Fault::Overflow;
        const std::size_t tagEnd = FindInPage(">", bodyTag);
        if (!Fits(tagEnd))
            return Fault::Overflow;
        if (tagEnd < bodyTag)
            return Fault::InvalidProcedureCall;
        const std::string_view tag = std::string_view(m_page).substr(bodyTag - 1, tagEnd - bodyTag);
        if (!FindEffectInExistingCode(tag, Func, {})) {
            m_page.insert(tagEnd - 1, Join({" ", word, "=\"", Func, Args, "\" "}));
            return {};
        }
        // A No leaves the attribute as it is; only the HEAD's Yes saves the question.
        if (!m_isConfirmed && !m_ask())
            return {};
        const auto replaced = ReplaceEffectInExistingCode(tag, Join({Func, Args}), Func, ")");
        if (const Fault* fault = FaultIn(replaced))
            return *fault;
        m_page.replace(bodyTag - 1, tag.size(), ValueIn(replaced));
        return {};
    }

private:
    /// The position where these words stand, in upper or lower case: one that does not fit when
    /// that is in the rest of the page, 0 when they stand nowhere.
    std::size_t FindInPage(std::string_view words, std::size_t from = 1) const
    {
        const std::size_t place = FindIgnoringCase(m_page, words, from);
        return place == 0 && FindIgnoringCase(m_rest, words) != 0 ? lastPosition + 1 : place;
    }

    /// The inside of the element whose open tag begins at `tag`. Every element needs its close tag.
    /// An open tag without ">" ends at 0, and all goes on from there.
    Outcome<Inside> InsideOf(std::size_t tag, std::string_view closeTag) const
    {
        const std::size_t tagEnd = FindInPage(">", tag);
        const std::size_t closing = FindInPage(closeTag, tag);
        if (!Fits(tagEnd) || !Fits(closing) || !Fits(tagEnd + 1))
            return Fault::Overflow;
        if (closing < tagEnd + 1)
            return Fault::InvalidProcedureCall;
        const std::string_view page = m_page;
        return Inside{tagEnd, closing, page.substr(tagEnd, closing - (tagEnd + 1))};
    }

    /// Stays as it is: the character behind the tag is kept in front of the inserted text and comes
    /// again behind it, so that a tag with CR LF behind it gets a lone CR.
    void PutBehindTag(std::size_t tagEnd, std::string_view text, std::size_t goOnFrom)
    {
        const std::string behindTag = m_page.substr(tagEnd, 1);
        m_page.replace(tagEnd, goOnFrom - 1 - tagEnd, Join({behindTag, "\r\n", text, "\r\n"}));
    }

    Stop ReplaceInside(const Inside& inside, std::string_view code)
    {
        const auto replaced = ReplaceEffectInExistingCode(inside.Inner, code, m_begin, m_end);
        if (const Fault* fault = FaultIn(replaced))
            return *fault;
        PutBehindTag(inside.TagEnd, ValueIn(replaced), inside.CloseTag);
        return {};
    }

    std::string m_page;      ///< its start
    std::size_t m_kept;      ///< bytes of the page that follow it
    std::string_view m_rest; ///< these, and a bit before them
    std::string_view m_begin;
    std::string_view m_end;
    bool m_replaceInBody;
    const ReplaceQuestion& m_ask;
    bool m_isConfirmed = false;
};

} // namespace

PageEdit EditPage(std::string_view page, const FinishedPayload& payload,
                  const ReplaceQuestion& askToReplace)
{
    // A page may be long, and is not read for its encoding where that makes no difference.
    const PageCode code(payload, IsAscii(payload) ? PageEncoding::AsciiOnly : EncodingOf(page));
    PageRun run(page, code, payload.ReplaceInBody, askToReplace);
    Stop stop;
    if (!code.HEADHTML.empty())
        stop = run.InsertIntoHead(code.HEADHTML);
    if (!stop && !code.BODYHTML.empty())
        stop = run.InsertIntoBody(code.BODYHTML);
    if (!stop && !code.OnLoadFunc.empty())
        stop = run.InsertAttribute("onload", code.OnLoadFunc, code.OnLoadArgs);
    if (!stop && !code.OnUnloadFunc.empty())
        stop = run.InsertAttribute("onunload", code.OnUnloadFunc, code.OnUnloadArgs);
    if (stop)
        return *stop;
    return run.TakePage();
}

bool FindEffectInExistingCode(std::string_view code, std::string_view begin, std::string_view end)
{
    return FindIgnoringCase(code, begin) != 0 && (end.empty() || FindIgnoringCase(code, end) != 0);
}

Outcome<std::string> ReplaceEffectInExistingCode(std::string_view code, std::string_view newText,
                                                 std::string_view begin, std::string_view end)
{
    const std::size_t start = FindIgnoringCase(code, begin);
    if (!Fits(start))
        return Fault::Overflow;
    const std::size_t place = FindIgnoringCase(code, end, start);
    if (place == 0)
        return Fault::InvalidProcedureCall;
    const std::size_t behind = place + end.size();
    if (!Fits(behind))
        return Fault::Overflow;
    return ReplaceAll(code, code.substr(start - 1, behind - start), newText);
}

} // namespace orvane
