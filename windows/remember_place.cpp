#include "windows/remember_place.h"

#include "core/settings.h"
#include "windows/qt_text.h"

#include <QByteArray>
#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

/// Waits for the window to come up and to go.
class PlaceKeeper : public QObject
{
public:
    PlaceKeeper(QWidget& window, Settings& settings)
        : QObject(&window), m_window(window), m_settings(settings)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // The first Show comes before the window is on screen, when all its parts are there.
        if (event->type() == QEvent::Show && !std::exchange(m_wasShown, true))
            Restore();
        else if (event->type() == QEvent::Hide && !event->spontaneous())
            Save();
        return QObject::eventFilter(watched, event);
    }

private:
    void Restore()
    {
        const Text name = FromQt(m_window.objectName());
        const Text place = m_settings.Get(InSection(settingSections::places, name));
        const auto stored = QByteArray::fromBase64(ToQt(place).toLatin1());
        // A text that was cut short would be read as zeros behind its end.
        if (stored.size() != m_window.saveGeometry().size() || !m_window.restoreGeometry(stored))
            return FitInto(RoomInFrame());
        if (!m_window.isMaximized() && !m_window.isFullScreen())
            BringIntoSight();
    }

    /// What the screen leaves to a window that has its frame still to come.
    QSize RoomInFrame() const
    {
        const int frame = m_window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
        return m_window.screen()->availableSize() - QSize(frame, 2 * frame);
    }

    /// Makes the window no larger than that; what it has no room for then is scrolled.
    void FitInto(const QSize& room)
    {
        if (m_window.minimumSize() != m_window.minimumSize().boundedTo(room))
            m_window.setMinimumSize(m_window.minimumSize().boundedTo(room));
        const QSize size = m_window.size().boundedTo(room);
        if (size != m_window.size())
            m_window.resize(size);
    }

    /// The toolkit moves a window off a screen that is gone; a smaller screen is left to us.
    void BringIntoSight()
    {
        const QRect room = m_window.screen()->availableGeometry();
        FitInto(room.size());
        const QSize size = m_window.size();
        const QPoint behind = room.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
        const QPoint place(std::clamp(m_window.x(), room.left(), behind.x()),
                           std::clamp(m_window.y(), room.top(), behind.y()));
        if (place != m_window.pos())
            m_window.move(place);
    }

    void Save()
    {
        const Text place = FromQt(QString::fromLatin1(m_window.saveGeometry().toBase64()));
        const Text name = FromQt(m_window.objectName());
        const SettingKey key = InSection(settingSections::places, name);
        if (m_settings.Get(key) != place)
            m_settings.Put(key, place);
    }

    QWidget& m_window;
    Settings& m_settings;
    bool m_wasShown = false;
};

} // namespace

void RememberPlace(QWidget& window, Settings& settings)
{
    new PlaceKeeper(window, settings);
}

} // namespace orvane
