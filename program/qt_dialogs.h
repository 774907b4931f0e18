#pragma once

#include "core/dialogs.h"
#include "core/settings.h"

#include <QFileDialog>
#include <QString>
#include <QStringList>

class QDialog;

namespace orvane {

/// One entry of a file dialog's list of file types as the toolkit writes it, such as
/// "Images (*.gif *.jpg)".
QString QtNameFilter(TextView label, TextView masks);

/// All entries of a filter text of labels and masks in turn, separated by "|"; a label without
/// masks is left out.
QStringList QtNameFilters(TextView filter);

/// Asks the author by the toolkit's boxes and dialogs, over the active window.
class QtDialogs : public Dialogs
{
public:
    /// `settings` store the folders used last, and must outlive this object.
    explicit QtDialogs(Settings& settings) : m_settings(settings) {}

    void Say(TextView words, Tone tone) override;
    bool Ask(TextView words, TextView title) override;
    std::optional<bool> AskOrCancel(TextView words, TextView title) override;
    std::optional<Text> OpenFile(const FileRequest& request) override;
    std::vector<Text> OpenFiles(const FileRequest& request) override;
    std::optional<Text> SaveFile(const FileRequest& request) override;
    std::optional<Text> PickFolder(TextView title, TextView start) override;
    std::optional<std::int32_t> PickColor() override;
    FontChoice PickFont(const FontChoice& start) override;
    std::unique_ptr<Progress> FollowWork(TextView words) override;
    PageBoxReply Answer(const PageBox& box) override;

private:
    QStringList PickFiles(const FileRequest& request, QFileDialog::FileMode mode);
    QString StartFolder(const FileRequest& request) const;

    Settings& m_settings;
    QString m_lastFolder; ///< where the last file dialog of this run ended
};

} // namespace orvane
