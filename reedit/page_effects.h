#pragma once

#include "core/preview_pane.h"
#include "insertion/page_backups.h"
#include "reedit/effects_in_page.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// The words of the comment to which pages are scrolled in the pane.
inline constexpr TextView shownPlaceMark = u" The place that Orvane shows ";

/// A page whose effects the author looks at, and the versions of it that commands replaced since.
class PageEffects
{
public:
    /// No page yet. `files` and `dialogs` must outlive the object.
    PageEffects(FileStore& files, Dialogs& dialogs, BackupsPlace place);

    /// Goes to the page with this full path and reads it.
    void GoTo(TextView path);

    /// Reads the page again if it was written since it was read; gives whether it is another one
    /// now, or cannot be read for another reason. The versions before what another program wrote
    /// are then forgotten.
    bool Refresh();

    const Text& Path() const { return m_path; }
    const std::string& Bytes() const { return m_bytes; }
    const std::vector<EffectInPage>& Effects() const { return m_effects; }

    /// Why the page could not be read; it is empty then.
    const std::optional<Fault>& Unread() const { return m_unread; }

    /// Writes the page in place of `shown`, as PutPage() does; false, and the author is told why,
    /// when it stays as it is.
    bool Put(const std::string& shown, std::string edited);

    /// Whether there is a version that BringBack() gives the page again.
    bool HasEarlier() const { return !m_earlier.empty(); }

    /// Gives the page the bytes that it had before the last Put() that is not taken back yet, as
    /// PutPage() does; false when it stays as it is. Expects that there is such a version.
    bool BringBack();

private:
    void Take(std::string bytes);
    bool Write(const std::string& shown, std::string edited);

    FileStore& m_files;
    Dialogs& m_dialogs;
    BackupsPlace m_place;
    Text m_path;
    std::string m_bytes;
    std::vector<EffectInPage> m_effects;
    std::optional<Fault> m_unread;
    std::optional<FileFacts> m_facts; ///< of the file as it was read last
    std::vector<std::string> m_earlier;
};

/// The effect of EffectsIn(page) that has the code and the calls of this one, which stands in
/// another version of the page; nothing where there is none.
std::optional<EffectInPage> SameEffect(std::string_view page, std::string_view otherPage,
                                       const EffectInPage& effect);

/// The page as the pane shows it, scrolled to that place in its bytes, where a comment may stand;
/// at its top without one.
LivePage PictureOf(TextView path, const std::string& bytes, std::optional<std::size_t> place);

} // namespace orvane
