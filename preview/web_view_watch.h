#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWebEnginePage>

#include <functional>

namespace orvane {

/// Whether a page still answers, asked once a second while no box holds it up.
class AnswerWatch : public QObject
{
public:
    /// `holdsUp` tells whether a box is open; `hung` is called once when the page does not answer
    /// for long. The page must outlive the watch.
    AnswerWatch(QWebEnginePage& page, std::function<bool()> holdsUp, std::function<void()> hung);

    /// Watches from a sign of life on.
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
