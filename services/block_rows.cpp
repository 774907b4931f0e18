#include "services/block_rows.h"

#include "services/block_pictures.h"
#include "services/web_address.h"

#include <algorithm>

namespace orvane {

namespace {

std::optional<Complaint> CheckWords(TextView words, TextView complaint)
{
    if (TidyLines(words).empty())
        return Complaint{Text(complaint), "txtWords"};
    return std::nullopt;
}

template <class Rows>
std::optional<Complaint> CheckSome(const Rows& rows, TextView complaint, ControlName control)
{
    if (std::ranges::all_of(rows, [](const auto& row) { return Check(row).has_value(); }))
        return Complaint{Text(complaint), control};
    return std::nullopt;
}

constexpr TextView noMessage = u"Please enter the text of the message.";
constexpr TextView noMessages = u"Please add a message to the list.";

} // namespace

Text MendedLink(TextView link)
{
    return WithScheme(OneLine(link));
}

Text TidyLine(TextView words)
{
    return TidyLines(ReplaceAll(TidyLines(words), lineEnd, u" "));
}

bool IsStyleColor(TextView color)
{
    int open = 0;
    for (const char16_t c : color) {
        const bool isLetterOrDigit =
            (c >= u'0' && c <= u'9') || (ToLower(c) >= u'a' && ToLower(c) <= u'z');
        if (!isLetterOrDigit && TextView(u"#%()+,-./ ").find(c) == TextView::npos)
            return false;
        open += c == u'(' ? 1 : c == u')' ? -1 : 0;
        if (open < 0)
            return false;
    }
    return open == 0;
}

std::optional<Complaint> Check(const BlockRow& row)
{
    return CheckWords(row.Words, noMessage);
}

std::optional<Complaint> Check(const ColoredRow& row)
{
    return CheckWords(row.Words, noMessage);
}

std::optional<Complaint> Check(const QuoteRow& row)
{
    return CheckWords(row.Words, u"Please enter the text of the quote.");
}

std::optional<Complaint> Check(const RolloverRow& row)
{
    if (auto complaint = CheckWords(row.Words, u"Please enter the words that stand on the page."))
        return complaint;
    if (OneLine(row.Picture.Address).empty())
        return Complaint{u"Please choose the picture that is shown.", "txtPicture"};
    return std::nullopt;
}

void Tidy(BlockRow& row)
{
    row = {TidyLines(row.Words), MendedLink(row.Link)};
}

void Tidy(ColoredRow& row)
{
    const Text color = OneLine(row.Color);
    row = {TidyLine(row.Words), MendedLink(row.Link),
           color != u"-" && IsStyleColor(color) ? color : Text()};
}

void Tidy(QuoteRow& row)
{
    row = {TidyLines(row.Words), TidyLine(row.Author), MendedLink(row.Link)};
}

void Tidy(RolloverRow& row)
{
    row.Words = TidyLine(row.Words);
    Tidy(row.Picture);
    Tidy(row.Trigger);
    row.Trigger.Description.clear();
    row.Trigger.Link.clear();
    if (row.Trigger.Address.empty())
        row.Trigger = {};
}

std::optional<Complaint> CheckRows(const BlockRows& rows, ControlName control)
{
    return CheckSome(rows, noMessages, control);
}

std::optional<Complaint> CheckRows(const ColoredRows& rows, ControlName control)
{
    return CheckSome(rows, noMessages, control);
}

std::optional<Complaint> CheckRows(const QuoteRows& rows, ControlName control)
{
    return CheckSome(rows, u"Please add a quote to the list.", control);
}

} // namespace orvane
