#pragma once

#include "tests/support/doubles.h"
#include "tests/tour/script.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <set>

namespace orvane::testing {

/// Does what an author does, in the window that is in front, and keeps pictures of the windows. A
/// step waits until its control can be used; the test fails when that takes ten seconds.
class Guide
{
public:
    /// Where the tour's files are. A dialog to save a file, or to open one that is in Target, gets
    /// a path in Target; any other gets one in Samples.
    struct Folders
    {
        QString Samples;
        QString Target;
        QString Pictures;
    };

    Guide(QWidget& mainForm, FakeDialogs& dialogs) : m_mainForm(mainForm), m_dialogs(dialogs) {}

    /// Goes through the steps of a tour; returns when only the main window is left. `tour` is its
    /// name, for the names of pictures.
    void Lead(const std::string& tour, std::vector<Step> steps, Folders folders);

    /// Called with the window in front before each step.
    std::function<void(QWidget& front)> Passing;

private:
    void Go();
    void Do(QWidget& front, const Step& step);
    static void Click(QWidget& front, const Step& step);
    void Command(QWidget& front, const Step& step);
    void Fill(QWidget& front, const Step& step);
    void Pick(QWidget& control, const Step& step);
    void TakePicture(QWidget& window, QString name);
    void GiveUp();
    Text PathOf(const Step& step) const;

    QWidget& m_mainForm;
    FakeDialogs& m_dialogs;
    Folders m_folders;
    QString m_tour;
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    bool m_isUnderWay = false; ///< a step was chosen and is not done yet
    int m_pictureCount = 0;
    std::set<QString> m_taken;
    QElapsedTimer m_patience; ///< since the last step
    int m_pause = 0;          ///< milliseconds before the next step
    QEventLoop m_road;        ///< runs during Lead()
};

} // namespace orvane::testing
