#include "catalogue/calm_desktop.h"

#include <QSettings>
#include <QStandardPaths>

#include <utility>

namespace orvane {

namespace {

constexpr int answerLastsMs = 5000;

/// Plasma writes how fast things move into a file; 0 is not at all.
bool IsCalmByFile()
{
    const QString file =
        QStandardPaths::locate(QStandardPaths::GenericConfigLocation, QStringLiteral("kdeglobals"));
    if (file.isEmpty())
        return false;
    const QSettings desktop(file, QSettings::IniFormat);
    return desktop.value(QStringLiteral("KDE/AnimationDurationFactor"), 1).toDouble() == 0;
}

} // namespace

CalmDesktop::CalmDesktop()
{
    connect(&m_asking, &QProcess::finished, this,
            [this] { Answer(m_asking.readAllStandardOutput().trimmed() == "false"); });
    // A desktop without this program has another way, or none, to ask for calm.
    connect(&m_asking, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            Answer(false);
    });
}

void CalmDesktop::Ask(std::function<void(bool isCalm)> answer)
{
    if (m_sinceAnswer.isValid() && !m_sinceAnswer.hasExpired(answerLastsMs))
        return answer(m_isCalm);
    m_waiting.push_back(std::move(answer));
    if (m_asking.state() != QProcess::NotRunning)
        return;
    if (IsCalmByFile())
        return Answer(true);
    m_asking.start(QStringLiteral("gsettings"),
                   {QStringLiteral("get"), QStringLiteral("org.gnome.desktop.interface"),
                    QStringLiteral("enable-animations")});
}

void CalmDesktop::Answer(bool isCalm)
{
    m_isCalm = isCalm;
    m_sinceAnswer.start();
    for (const auto& answer : std::exchange(m_waiting, {}))
        answer(isCalm);
}

} // namespace orvane
