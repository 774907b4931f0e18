#pragma once

#include "core/complaint.h"
#include "core/progress.h"
#include "core/text.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace orvane {

/// What an author looks for in a file dialog; each has its own folder where the last one was found.
enum class FolderPurpose
{
    Other, ///< nothing that is remembered
    Pages,
    Images,
    Links, ///< pages and files that are linked to
    Sounds,
    Texts,
    Projects,
    Publishing, ///< where required files go
};

/// What a file dialog is asked for.
struct FileRequest
{
    Text Title;
    Text Filter;         ///< label, pattern, label, pattern, separated by "|"
    int FilterIndex = 1; ///< the pair selected first, counted from 1
    Text InitDir;        ///< empty: where the last file of this purpose, or of this run, was found
    Text FileName;       ///< the proposed name
    FolderPurpose Purpose = FolderPurpose::Other;
};

/// A font as the font dialog shows it.
struct FontChoice
{
    Text Name;
    Text Size;
    bool Bold = false;
    bool Italic = false;
    bool operator==(const FontChoice&) const = default;
};

/// A box that a previewed page wants to show.
struct PageBox
{
    enum class Kind
    {
        Alert,
        Confirm,
        Prompt,
    };
    Kind Shape = Kind::Alert;
    Text Words;
    Text Proposed;           ///< what a prompt holds at first
    bool OffersStop = false; ///< the page has shown so many that the author may stop it
};

/// What the author answered to a page's box.
struct PageBoxReply
{
    bool Accepted = false;
    Text Entered;
    bool Stop = false; ///< no further boxes of this page
};

/// The one way to ask the author anything; an empty optional is Cancel.
class Dialogs
{
public:
    virtual ~Dialogs() = default;

    /// Shows the words with an OK button and returns once the author has read them.
    virtual void Say(TextView words, Tone tone = Tone::Plain) = 0;

    /// Shows the words with Yes and No; true on Yes.
    virtual bool Ask(TextView words, TextView title = u"Orvane") = 0;

    /// Shows the words with Yes, No and Cancel; true on Yes, false on No.
    virtual std::optional<bool> AskOrCancel(TextView words, TextView title) = 0;

    /// The full path of an existing file that the author picked.
    virtual std::optional<Text> OpenFile(const FileRequest& request) = 0;

    /// The full path to save under; an existing file was confirmed.
    virtual std::optional<Text> SaveFile(const FileRequest& request) = 0;

    /// The picked folder, without a separator at its end unless it is a root.
    virtual std::optional<Text> PickFolder(TextView title, TextView start) = 0;

    /// The picked colour, packed: blue in bits 16-23, green in 8-15, red in 0-7.
    virtual std::optional<std::int32_t> PickColor() = 0;

    /// The font dialog's values when it closed; those handed in when the author cancelled.
    virtual FontChoice PickFont(const FontChoice& start) = 0;

    /// Shows the words, how far the work is and a way to end it, once it has taken a moment.
    /// Nothing else can be used from then on until the result is gone.
    virtual std::unique_ptr<Progress> FollowWork(TextView words) = 0;

    /// Shows a previewed page's box and gives the author's answer.
    virtual PageBoxReply Answer(const PageBox& box) = 0;
};

} // namespace orvane
