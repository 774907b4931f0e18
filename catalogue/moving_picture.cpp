#include "catalogue/moving_picture.h"

#include "catalogue/effect_button.h"

namespace orvane {

namespace {

constexpr int restMs = 300;
constexpr int longestMs = 5000;

} // namespace

MovingPicture::MovingPicture(Settings& settings) : m_settings(settings)
{
    m_begin.setSingleShot(true);
    m_begin.setInterval(restMs);
    m_end.setSingleShot(true);
    m_end.setInterval(longestMs);
    connect(&m_begin, &QTimer::timeout, this, [this] {
        m_desktop.Ask([this](bool isCalm) {
            if (!isCalm && !m_begin.isActive())
                Begin();
        });
    });
    connect(&m_end, &QTimer::timeout, this, &MovingPicture::End);
    connect(&m_movie, &QMovie::frameChanged, this, &MovingPicture::ShowFrame);
}

void MovingPicture::RestOn(EffectButton* button)
{
    if (button == m_button)
        return;
    End();
    m_button = button;
    if (button != nullptr && IsWanted())
        m_begin.start();
}

bool MovingPicture::IsWanted() const
{
    return m_settings.Get(settingKeys::movingPictures) != u"0";
}

void MovingPicture::SetWanted(bool isWanted)
{
    m_settings.Put(settingKeys::movingPictures, isWanted ? u"1" : u"0");
    RestOn(nullptr);
}

void MovingPicture::Begin()
{
    if (m_button == nullptr || m_movie.state() == QMovie::Running)
        return;
    m_pictures.emplace();
    m_movie.setFileName(
        PictureName(m_button->Row(), m_button->palette(), m_button->devicePixelRatioF()));
    m_movie.start();
    m_end.start();
}

void MovingPicture::End()
{
    m_begin.stop();
    m_end.stop();
    m_movie.stop();
    m_movie.setFileName({});
    m_pictures.reset();
    if (m_button != nullptr)
        m_button->ShowStill();
}

void MovingPicture::ShowFrame()
{
    if (m_button == nullptr || m_movie.state() != QMovie::Running)
        return;
    m_button->ShowFrame(m_movie.currentImage());
}

} // namespace orvane
