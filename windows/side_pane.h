#pragma once

#include <QSplitter>

class QPushButton;

namespace orvane {

class Settings;

/// The content of a window with a part at its right that can be folded away: by a button, by F12,
/// and while the window is too narrow for both. Whether the author folded it and its width are
/// remembered, for all windows together.
class SidePane : public QSplitter
{
    Q_OBJECT

public:
    /// The narrowest window that has room for both, in pixels.
    static constexpr int leastWindowWidth = 900;

    /// The settings must outlive the window, and `fold` this object.
    SidePane(QWidget* content, QWidget* side, QPushButton* fold, Settings& settings);

    /// Makes the window wide enough for both, as far as the screen has room, unless the author
    /// folded the part away. Called before the window is shown.
    void WidenWindow();

    /// That of the content alone, since the part makes way.
    QSize minimumSizeHint() const override { return widget(0)->minimumSizeHint(); }

signals:
    /// The author wants to see the part, but the screen is too narrow for it.
    void NoRoom();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Toggle();
    void Arrange();
    bool HasRoom() const;
    int SideWidth() const;
    void ResizeWindow(int width);

    Settings& m_settings;
    QWidget* m_side;
    QPushButton* m_fold;
    bool m_isFolded;
};

} // namespace orvane
