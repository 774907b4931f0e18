#pragma once

#include <QElapsedTimer>
#include <QProcess>

#include <functional>
#include <vector>

namespace orvane {

/// Knows whether the author has asked the desktop for less motion.
class CalmDesktop : public QObject
{
public:
    CalmDesktop();

    /// Calls `answer`, now or when the desktop has told, with whether things are to keep still. It
    /// is asked anew when its last answer is some seconds old.
    void Ask(std::function<void(bool isCalm)> answer);

private:
    void Answer(bool isCalm);

    QProcess m_asking;
    QElapsedTimer m_sinceAnswer;
    bool m_isCalm = false;
    std::vector<std::function<void(bool)>> m_waiting;
};

} // namespace orvane
