#pragma once

#include "catalogue/calm_desktop.h"
#include "catalogue/effect_picture.h"
#include "core/settings.h"

#include <QMovie>
#include <QPointer>
#include <QTimer>

#include <optional>

namespace orvane {

class EffectButton;

/// Lets the picture of one button at a time move, that of the one at which the author rests.
/// Nothing moves where the author wants nothing to, here or on the whole desktop.
class MovingPicture : public QObject
{
public:
    /// `settings` store whether pictures move, and must outlive this object.
    explicit MovingPicture(Settings& settings);

    /// The author is at this button now, or at none: what moved on another one keeps still.
    void RestOn(EffectButton* button);

    /// Whether the author lets pictures move.
    bool IsWanted() const;
    /// Stores whether they are to move, and ends what moves.
    void SetWanted(bool isWanted);

private:
    void Begin();
    void End();
    void ShowFrame();

    Settings& m_settings;
    CalmDesktop m_desktop;
    QPointer<EffectButton> m_button;
    QTimer m_begin;
    QTimer m_end;
    std::optional<OpenPictures> m_pictures; ///< while one moves
    QMovie m_movie;
};

} // namespace orvane
