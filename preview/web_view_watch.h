#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWebEnginePage>

#include <functional>

namespace orvane {

/// Notices when a page no longer answers: it is asked every second, except while one of its boxes
/// is open.
class AnswerWatch : public QObject
{
public:
    /// `holdsUp` tells whether a box is open; `hung` is called once when the page has not answered
    /// for eight seconds. The page must outlive the watch.
    AnswerWatch(QWebEnginePage& page, std::function<bool()> holdsUp, std::function<void()> hung);

    /// Starts to watch, or starts anew; expects a page whose script has just run.
    void Start();

private:
    void Tick();

    QWebEnginePage& m_page;
    std::function<bool()> m_holdsUp;
    std::function<void()> m_hung;
    QTimer m_timer;
    QElapsedTimer m_since;
    bool m_asked = false;
};

} // namespace orvane
