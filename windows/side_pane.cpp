#include "windows/side_pane.h"

#include "core/numbers.h"
#include "core/settings.h"

#include <QPushButton>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace orvane {

namespace {

constexpr int narrowest = 240;

} // namespace

SidePane::SidePane(QWidget* content, QWidget* side, QPushButton* fold, Settings& settings)
    : m_settings(settings),
      m_side(side),
      m_fold(fold),
      m_isFolded(settings.Get(settingKeys::previewFolded) == u"1")
{
    addWidget(content);
    addWidget(side);
    setChildrenCollapsible(false);
    setStretchFactor(0, 1);
    setStretchFactor(1, 0);
    side->setMinimumWidth(narrowest);
    side->hide();
    m_fold->setCheckable(true);
    connect(m_fold, &QPushButton::clicked, this, &SidePane::Toggle);
    connect(new QShortcut(Qt::Key_F12, this), &QShortcut::activated, this, &SidePane::Toggle);
}

void SidePane::WidenWindow()
{
    if (!m_isFolded)
        ResizeWindow(window()->width() + SideWidth() + handleWidth());
}

void SidePane::ResizeWindow(int width)
{
    QWidget& all = *window();
    const int most = all.screen()->availableSize().width();
    // A part that finds no room in spite of it would leave the window wide for nothing.
    if (!all.isMaximized() && !all.isFullScreen() && most >= leastWindowWidth)
        all.resize(std::clamp(width, leastWindowWidth, most), all.height());
}

int SidePane::SideWidth() const
{
    return std::max(static_cast<int>(Val(m_settings.Get(settingKeys::previewWidth))), narrowest);
}

bool SidePane::HasRoom() const
{
    return window()->width() >= leastWindowWidth;
}

void SidePane::Toggle()
{
    const int side = m_side->width() + handleWidth();
    m_isFolded = m_side->isVisible();
    m_settings.Put(settingKeys::previewFolded, m_isFolded ? u"1" : u"0");
    QWidget& all = *window();
    if (!m_isFolded) {
        ResizeWindow(all.width() + SideWidth() + handleWidth());
        if (!HasRoom())
            emit NoRoom();
    }
    Arrange();
    if (m_isFolded && !all.isMaximized() && !all.isFullScreen())
        all.resize(all.width() - side, all.height());
}

/// Shows the part or takes it away, as the author wants it and the window has room.
void SidePane::Arrange()
{
    const bool isShown = !m_isFolded && HasRoom();
    m_fold->setChecked(isShown);
    if (m_side->isHidden() != isShown)
        return;
    if (!isShown && m_side->isAncestorOf(window()->focusWidget()))
        m_fold->setFocus();
    m_side->setVisible(isShown);
    if (isShown)
        setSizes({width() - SideWidth() - handleWidth(), SideWidth()});
}

void SidePane::resizeEvent(QResizeEvent* event)
{
    QSplitter::resizeEvent(event);
    Arrange();
}

void SidePane::hideEvent(QHideEvent* event)
{
    const int width = m_side->width();
    if (!event->spontaneous() && !m_side->isHidden() && width != SideWidth())
        m_settings.Put(settingKeys::previewWidth, NumberToText(width));
    QSplitter::hideEvent(event);
}

} // namespace orvane
