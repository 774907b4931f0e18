#include "preview/web_view_watch.h"

#include <QPointer>
#include <QWebEngineScript>

#include <utility>

namespace orvane {

namespace {

constexpr int pingMs = 1000;
constexpr qint64 patienceMs = 8000;

} // namespace

AnswerWatch::AnswerWatch(QWebEnginePage& page, std::function<bool()> holdsUp,
                         std::function<void()> hung)
    : m_page(page), m_holdsUp(std::move(holdsUp)), m_hung(std::move(hung))
{
    connect(&m_timer, &QTimer::timeout, this, &AnswerWatch::Tick);
}

void AnswerWatch::Start()
{
    m_asked = false;
    m_timer.start(pingMs);
}

void AnswerWatch::Tick()
{
    if (m_holdsUp()) {
        m_since.start();
    } else if (!m_asked) {
        m_asked = true;
        m_since.start();
        m_page.runJavaScript(QStringLiteral("0"), QWebEngineScript::ApplicationWorld,
                             [this, alive = QPointer(this)](const QVariant&) {
                                 if (alive)
                                     m_asked = false;
                             });
    } else if (m_since.elapsed() >= patienceMs) {
        m_timer.stop();
        m_hung();
    }
}

} // namespace orvane
