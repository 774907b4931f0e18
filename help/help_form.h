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

/// The help window: contents and search on the left, the topic on the right. It can be used while a
/// modal dialog is open, and does not block that dialog.
class HelpForm : public QDialog, public HelpViewer
{
    Q_OBJECT

public:
    /// The book is "orvane.hlp" in the program's folder, with its pictures in "help" there. The
    /// book is read when the first topic is shown; when it cannot be read, a note says so.
    /// `effectsOfTags` is the HTML list of the effects that can be edited again.
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
