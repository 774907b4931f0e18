#pragma once

#include "core/fault.h"
#include "core/text.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane {

/// A page for the pane to show, and what the pane tells the author beside it.
struct PanePage
{
    Text Path;                 ///< where the page file lies while the page is read
    std::string Bytes;         ///< what the file holds
    std::vector<Text> Files;   ///< names of files beside it; the page can read no others
    Text Note;                 ///< what cannot be seen of the effect, and why; empty when all can
    bool RunsInStatus = false; ///< the effect shows in the status line, outside the page
};

/// Bytes that do not change and that all copies share: an author's page may be large, and a new
/// picture of it comes with every key.
class SharedBytes
{
public:
    SharedBytes() : SharedBytes(std::string()) {}
    SharedBytes(std::string bytes) : m_bytes(std::make_shared<const std::string>(std::move(bytes)))
    {
    }
    operator std::string_view() const { return *m_bytes; }
    const std::string* operator->() const { return m_bytes.get(); }
    const std::string& operator*() const { return *m_bytes; }
    bool operator==(const SharedBytes& other) const
    {
        return m_bytes == other.m_bytes || *m_bytes == *other.m_bytes;
    }

private:
    std::shared_ptr<const std::string> m_bytes; ///< never null
};

/// A file that a live page finds under a name beside it, wherever it lies.
struct PaneFile
{
    Text Name;
    Text Path;              ///< its full path; empty: it lies nowhere and holds these bytes
    SharedBytes Bytes = {}; ///< unless it has a path
    bool operator==(const PaneFile&) const = default;
};

/// How the author looks at a live page.
struct PaneView
{
    int Width = 0; ///< of the window that the page sees, in pixels; 0: that of the pane
    bool HasReducedMotion = false; ///< the page is told that its visitor wants less motion
    bool RunsScript = true;
    bool operator==(const PaneView&) const = default;
};

/// The attribute by which the pane knows the parts of a live page: their numbers, counted from 0.
inline constexpr std::string_view partAttribute = "data-orvane-part";

/// Where the author pointed in a live page.
struct PointedPlace
{
    std::optional<int> Part; ///< its number; nothing: the page's top or its end
    bool IsBehind = false;   ///< behind the part, or the page's end
    bool operator==(const PointedPlace&) const = default;
};

/// A page that the pane shows while it changes. It needs no file: the pane itself answers for what
/// the page reads.
struct LivePage
{
    Text Name;                   ///< its file name, for links to itself
    SharedBytes Bytes;           ///< what a file of it would hold
    Text Folder;                 ///< full path; the page can read what lies in it or below it
    std::vector<PaneFile> Files; ///< and these, in front of files of the same names there
    Text Note;                   ///< as in PanePage
    bool RunsInStatus = false;   ///< as in PanePage
    Text Mark;                   ///< the words of the comment in front of the effect
    bool ScrollsToMark = false;  ///< false: it is scrolled as the page before it was
    PaneView View = {};
    bool TakesPointing = false; ///< the mouse frames its parts, and does nothing else in it
    bool operator==(const LivePage&) const = default;
};

/// The embedded browser, which is shown beside a wizard and on the delivery wizard's first page.
class PreviewPane
{
public:
    virtual ~PreviewPane() = default;

    /// Whether a page comes at once: the browser, which takes a moment to load, is there.
    virtual bool IsReady() const = 0;

    /// Writes the page file, shows it, and deletes it once the browser has read it. Gives the fault
    /// when it cannot be written; then the pane still shows what it showed. While a file is left to
    /// the author's browser, the page is written to a file of another name in the same folder.
    [[nodiscard]] virtual Done Navigate(const PanePage& page) = 0;

    /// From now on keeps the page file for the author's browser, which may read it at any time: the
    /// pane neither deletes nor overwrites it until Clear().
    virtual void LeaveFile() = 0;

    /// Shows the page in place of the one before it as soon as it is drawn. While it is not, the
    /// newest of the pages that come meanwhile follows it, and the others are left out. No sound
    /// plays, no window and no box comes up by itself.
    virtual void ShowLive(const LivePage& page) = 0;

    /// Unloads the page, with its sounds and windows, and ends what LeaveFile() began.
    virtual void Clear() = 0;

    /// Called, if set, when a page that was navigated to is read, or cannot be.
    std::function<void()> Loaded;

    /// Called, if set, when the author clicks in a live page that takes pointing.
    std::function<void(const PointedPlace&)> Pointed;
};

} // namespace orvane
