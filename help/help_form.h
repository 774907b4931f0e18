#pragma once

#include "core/help_viewer.h"
#include "help/help_book.h"

#include <QDialog>

class QLineEdit;
class QListWidget;
class QPushButton;
class QUrl;

namespace orvane {

class FileStore;
class Shell;
class TopicBrowser;

/// The window of the help: contents and search at the left, the topic at the right. It can be used
/// while any dialog is open, and so can the dialog.
class HelpForm : public QDialog, public HelpViewer
{
    Q_OBJECT

public:
    /// The book is "orvane.hlp" in the program's folder, its pictures lie in "help" beside it. It
    /// is read when the first topic is asked for; one that cannot be read leaves a note that says
    /// so. `effectsOfTags` is the book's list of the effects that can be re-edited.
    HelpForm(const FileStore& files, Shell& shell, Text programFolder, Text effectsOfTags = {});

    /// Brings the window up with that topic, or with a note when the book has none of that number.
    void ShowTopic(int number) override;

protected:
    bool event(QEvent* event) override;

private:
    void Build();
    void AddControls();
    QWidget* MakeTopicList();
    void ConnectControls();
    void FillContents();
    void MarkTopic();
    void OpenCurrentTopic();
    void ShowContents();
    void Follow(const QUrl& link);
    void BelongToFrontDialog();

    const FileStore& m_files;
    Shell& m_shell;
    Text m_programFolder;
    Text m_effectsOfTags;
    HelpBook m_book;
    int m_topic = -1; ///< on show; -1 before the first
    QPushButton* cmdBack = nullptr;
    QPushButton* cmdForward = nullptr;
    QPushButton* cmdContents = nullptr;
    QLineEdit* txtSearch = nullptr;
    QListWidget* lstContents = nullptr;
    TopicBrowser* txtTopic = nullptr;
};

} // namespace orvane
