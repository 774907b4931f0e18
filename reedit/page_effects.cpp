#include "reedit/page_effects.h"

#include "insertion/page_writing.h"
#include "preview/live_page.h"

#include <utility>

namespace orvane {

namespace {

/// The effect's code and calls.
std::vector<std::string_view> CodeOf(std::string_view page, const EffectInPage& effect)
{
    std::vector<std::string_view> code;
    for (const EffectPart& part : effect.Parts)
        if (part.Place != PartPlace::PageScript)
            code.push_back(CodeIn(page, part.Span));
    return code;
}

} // namespace

PageEffects::PageEffects(FileStore& files, Dialogs& dialogs, BackupsPlace place)
    : m_files(files), m_dialogs(dialogs), m_place(std::move(place))
{
}

void PageEffects::GoTo(TextView path)
{
    m_path = path;
    m_facts.reset();
    Take({});
    m_earlier.clear();
    Refresh();
}

bool PageEffects::Refresh()
{
    const auto facts = m_files.Facts(m_path);
    if (m_path.empty() || (facts && facts == m_facts))
        return false;
    auto read = m_files.Read(m_path);
    const Fault* fault = FaultIn(read);
    const auto wasUnread = std::exchange(m_unread, fault ? std::optional(*fault) : std::nullopt);
    m_facts = fault ? std::nullopt : facts;
    std::string bytes = fault ? std::string() : std::get<std::string>(std::move(read));
    if (bytes == m_bytes)
        return m_unread != wasUnread;
    m_earlier.clear();
    Take(std::move(bytes));
    return true;
}

bool PageEffects::Put(const std::string& shown, std::string edited)
{
    std::string before = shown;
    if (!Write(shown, std::move(edited)))
        return false;
    m_earlier.push_back(std::move(before));
    return true;
}

bool PageEffects::BringBack()
{
    const std::string shown = m_bytes;
    if (!Write(shown, m_earlier.back()))
        return false;
    m_earlier.pop_back();
    return true;
}

bool PageEffects::Write(const std::string& shown, std::string edited)
{
    const bool isWritten = PutPage(m_files, m_dialogs, m_path, m_place, shown, edited);
    if (isWritten)
        Take(std::move(edited));
    // Whatever another program wrote meanwhile is seen the next time.
    m_facts.reset();
    if (!isWritten)
        Refresh();
    return isWritten;
}

void PageEffects::Take(std::string bytes)
{
    m_bytes = std::move(bytes);
    m_effects = EffectsIn(m_bytes);
}

std::optional<EffectInPage> SameEffect(std::string_view page, std::string_view otherPage,
                                       const EffectInPage& effect)
{
    const auto code = CodeOf(otherPage, effect);
    for (EffectInPage& candidate : EffectsIn(page))
        if (CodeOf(page, candidate) == code)
            return std::move(candidate);
    return std::nullopt;
}

LivePage PictureOf(TextView path, const std::string& bytes, std::optional<std::size_t> place)
{
    HostPage host{Text(path), bytes};
    if (!place)
        return PictureOf(host);
    host.Bytes.insert(*place, ToUtf8(Join({u"<!--", shownPlaceMark, u"-->"})));
    LivePage page = PictureOf(host);
    page.Mark = shownPlaceMark;
    page.ScrollsToMark = true;
    return page;
}

} // namespace orvane
