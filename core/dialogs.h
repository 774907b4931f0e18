#pragma once

#include "core/complaint.h"
#include "core/progress.h"
#include "core/text.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace orvane {

/// What an author looks for in a file dialog. For each purpose the folder of the last file is
/// remembered.
enum class FolderPurpose
{
    Other, ///< nothing that is remembered
    Pages,
    Images,
    Links, ///< pages and files that are linked to
    Sounds,
    Texts,
    Projects,
    Recipes,
    Publishing, ///< where required files go
};

/// What a file dialog is opened with.
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

/// A message box that the script of a previewed page opens.
struct PageBox
{
    /// The script functions that open a box.
    enum class Kind
    {
        Alert,
        Confirm,
        Prompt,
    };
    Kind Shape = Kind::Alert;
    Text Words;
    Text Proposed;           ///< the text that a prompt is opened with
    bool OffersStop = false; ///< the box has a check box by which the author stops all further ones
};

/// What the author answered to a page's box.
struct PageBoxReply
{
    bool Accepted = false;
    Text Entered;
    bool Stop = false; ///< no further boxes of this page
};

/// All boxes and dialogs in which the program tells or asks the author something. An empty optional
/// means Cancel.
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

    /// The full paths of existing files that the author picked, in the order of their names; empty
    /// on Cancel.
    virtual std::vector<Text> OpenFiles(const FileRequest& request) = 0;

    /// The full path to save under; when the file exists, the author has agreed to overwrite it.
    virtual std::optional<Text> SaveFile(const FileRequest& request) = 0;

    /// The full path of the picked folder, without a separator at its end unless it is a root; the
    /// dialog opens in `start`.
    virtual std::optional<Text> PickFolder(TextView title, TextView start) = 0;

    /// The picked colour, packed: blue in bits 16-23, green in 8-15, red in 0-7.
    virtual std::optional<std::int32_t> PickColor() = 0;

    /// The font that the author picked; `start` when the author cancelled.
    virtual FontChoice PickFont(const FontChoice& start) = 0;

    /// A modal progress box with these words, a bar and a Cancel button. It comes up once the work
    /// has lasted for a moment, and closes when the result is destroyed.
    virtual std::unique_ptr<Progress> FollowWork(TextView words) = 0;

    /// Shows a previewed page's box and gives the author's answer.
    virtual PageBoxReply Answer(const PageBox& box) = 0;
};

} // namespace orvane
