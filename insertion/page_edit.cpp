#include "insertion/page_edit.h"

#include "insertion/page_encoding.h"

#include <optional>
#include <utility>

namespace orvane {

namespace {

/// Positions count from 1 and are signed 16-bit numbers; pages made with earlier versions rely on
/// the limit.
bool Fits(std::size_t position)
{
    return position <= 32767;
}

/// What ends the work on a page early, or nothing when it goes on.
using Stop = std::optional<PageEdit>;

/// The page code of the effect, each text made of the bytes that the page will hold.
EffectPayload Encoded(const EffectPayload& effect, PageEncoding encoding)
{
    const auto code = [&](TextView text) { return FromBytes(EncodeForPage(text, encoding)); };
    const auto value = [&](TextView text) { return FromBytes(EncodeForAttribute(text, encoding)); };
    return {
        .Kind = effect.Kind,
        .HEADHTML = code(effect.HEADHTML),
        .BODYHTML = code(effect.BODYHTML),
        .OnLoadFunc = value(effect.OnLoadFunc),
        .OnLoadArgs = value(effect.OnLoadArgs),
        .OnUnloadFunc = value(effect.OnUnloadFunc),
        .OnUnloadArgs = value(effect.OnUnloadArgs),
    };
}

/// The inside of an element: where its open tag ends, where its close tag begins, and the text
/// between.
struct Inside
{
    std::size_t TagEnd;   ///< of the ">" of its open tag
    std::size_t CloseTag; ///< of the "<" of its close tag
    TextView Inner;
};

/// The inside of the element whose open tag begins at `tag`. Every element needs its close tag. An
/// open tag without ">" ends at 0, and all goes on from there.
Outcome<Inside> InsideOf(TextView page, std::size_t tag, TextView closeTag)
{
    const std::size_t tagEnd = Find(page, u">", tag);
    const std::size_t closing = FindIgnoringCase(page, closeTag, tag);
    if (!Fits(tagEnd) || !Fits(closing) || !Fits(tagEnd + 1))
        return Fault::Overflow;
    if (closing < tagEnd + 1)
        return Fault::InvalidProcedureCall;
    return Inside{tagEnd, closing, Mid(page, tagEnd + 1, closing - (tagEnd + 1))};
}

/// One page on its way through the three kinds of insertion.
class PageRun
{
public:
    PageRun(Text page, const FinishedPayload& payload, const ReplaceQuestion& askToReplace)
        : m_page(std::move(page)),
          m_begin(payload.BeginMarker),
          m_end(payload.EndMarker),
          m_replaceInBody(payload.ReplaceInBody),
          m_ask(askToReplace)
    {
    }

    const Text& Page() const { return m_page; }

    Stop InsertIntoHead(TextView HEADHTML)
    {
        const std::size_t headTag = FindIgnoringCase(m_page, u"<head");
        if (!Fits(headTag))
            return Fault::Overflow;
        if (headTag == 0)
            return ManualFallback();
        const auto head = InsideOf(m_page, headTag, u"</head");
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

    Stop InsertIntoBody(TextView BODYHTML)
    {
        const std::size_t bodyTag = FindIgnoringCase(m_page, u"<body");
        if (!Fits(bodyTag))
            return Fault::Overflow;
        if (bodyTag == 0)
            return ManualFallback();
        const auto body = InsideOf(m_page, bodyTag, u"</body");
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

    Stop InsertAttribute(TextView word, TextView Func, TextView Args)
    {
        const std::size_t bodyTag = FindIgnoringCase(m_page, u"<body");
        if (bodyTag == 0)
            return {};
        const std::size_t tagEnd = Find(m_page, u">", bodyTag);
        if (!Fits(bodyTag) || !Fits(tagEnd))
            return Fault::Overflow;
        if (tagEnd < bodyTag)
            return Fault::InvalidProcedureCall;
        const TextView tag = Mid(m_page, bodyTag, tagEnd - bodyTag);
        if (!FindEffectInExistingCode(tag, Func, {})) {
            m_page = Join({Left(m_page, tagEnd - 1), u" ", word, u"=\"", Func, Args, u"\" ",
                           Mid(m_page, tagEnd)});
            return {};
        }
        // A No leaves the attribute as it is; only the HEAD's Yes saves the question.
        if (!m_isConfirmed && !m_ask())
            return {};
        const auto replaced = ReplaceEffectInExistingCode(tag, Join({Func, Args}), Func, u")");
        if (const Fault* fault = FaultIn(replaced))
            return *fault;
        m_page = Join({Left(m_page, bodyTag - 1), ValueIn(replaced), Mid(m_page, tagEnd)});
        return {};
    }

private:
    /// Stays as it is: the character behind the tag is kept in front of the inserted text and comes
    /// again behind it, so that a tag with CR LF behind it gets a lone CR.
    void PutBehindTag(std::size_t tagEnd, TextView text, std::size_t goOnFrom)
    {
        m_page = Join({Left(m_page, tagEnd + 1), lineEnd, text, lineEnd, Mid(m_page, goOnFrom)});
    }

    Stop ReplaceInside(const Inside& inside, TextView code)
    {
        const auto replaced = ReplaceEffectInExistingCode(inside.Inner, code, m_begin, m_end);
        if (const Fault* fault = FaultIn(replaced))
            return *fault;
        PutBehindTag(inside.TagEnd, ValueIn(replaced), inside.CloseTag);
        return {};
    }

    Text m_page;
    TextView m_begin;
    TextView m_end;
    bool m_replaceInBody;
    const ReplaceQuestion& m_ask;
    bool m_isConfirmed = false;
};

} // namespace

PageEdit EditPage(std::string_view page, const FinishedPayload& payload,
                  const ReplaceQuestion& askToReplace)
{
    const EffectPayload effect = Encoded(payload.Effect, EncodingOf(page));
    PageRun run(FromBytes(page), payload, askToReplace);
    Stop stop;
    if (!effect.HEADHTML.empty())
        stop = run.InsertIntoHead(effect.HEADHTML);
    if (!stop && !effect.BODYHTML.empty())
        stop = run.InsertIntoBody(effect.BODYHTML);
    if (!stop && !effect.OnLoadFunc.empty())
        stop = run.InsertAttribute(u"onload", effect.OnLoadFunc, effect.OnLoadArgs);
    if (!stop && !effect.OnUnloadFunc.empty())
        stop = run.InsertAttribute(u"onunload", effect.OnUnloadFunc, effect.OnUnloadArgs);
    if (stop)
        return *stop;
    return EditedPage{ToBytes(run.Page())};
}

bool FindEffectInExistingCode(TextView code, TextView begin, TextView end)
{
    return FindIgnoringCase(code, begin) != 0 && (end.empty() || FindIgnoringCase(code, end) != 0);
}

Outcome<Text> ReplaceEffectInExistingCode(TextView code, TextView newText, TextView begin,
                                          TextView end)
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
    const TextView old = Mid(code, start, behind - start);
    return ReplaceAll(code, old, newText);
}

} // namespace orvane
