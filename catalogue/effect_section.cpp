#include "catalogue/effect_section.h"

#include "catalogue/effect_button.h"
#include "windows/even_grid.h"
#include "windows/qt_text.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <map>

namespace orvane {

namespace {

constexpr int columns = 6;

QPoint MiddleOf(const EffectButton& button, const QWidget& page)
{
    return button.mapTo(&page, button.rect().center());
}

/// How far a step up or down leads: to the nearest row first, there to the nearest column.
std::pair<int, int> Distance(const EffectButton& from, const EffectButton& to, const QWidget& page)
{
    const QPoint way = MiddleOf(to, page) - MiddleOf(from, page);
    return {std::abs(way.y()), std::abs(way.x())};
}

EffectButton* ButtonAbove(bool isBelow, const EffectButton& from,
                          const std::vector<EffectButton*>& buttons, const QWidget& page)
{
    EffectButton* nearest = nullptr;
    for (EffectButton* button : buttons) {
        const int down = MiddleOf(*button, page).y() - MiddleOf(from, page).y();
        if (down == 0 || (down > 0) != isBelow)
            continue;
        if (nearest == nullptr || Distance(from, *button, page) < Distance(from, *nearest, page))
            nearest = button;
    }
    return nearest;
}

} // namespace

EffectSection::EffectSection(const SectionWords& words, ButtonMaker make)
    : m_make(std::move(make)), m_grid(new EvenGrid(columns)), m_nothing(new QLabel)
{
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins({});
    if (!words.Heading.empty()) {
        auto* heading = new QLabel(ToQt(words.Heading));
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        lines->addWidget(heading);
    }
    m_nothing->setText(ToQt(words.Nothing));
    m_nothing->setWordWrap(true);
    m_nothing->hide();
    lines->addWidget(m_nothing);
    lines->addLayout(m_grid);
    lines->addStretch(1);
}

void EffectSection::SetEffects(const EffectRows& effects)
{
    std::map<const CatalogueRow*, EffectButton*> shown;
    while (const std::unique_ptr<QLayoutItem> item{m_grid->takeAt(0)}) {
        auto* button = static_cast<EffectButton*>(item->widget());
        shown[&button->Row()] = button;
    }
    for (const CatalogueRow* effect : effects) {
        const auto kept = shown.extract(effect);
        EffectButton* button = kept ? kept.mapped() : m_make(*effect);
        m_grid->addWidget(button);
        button->show();
    }
    // Later: one of them may be the button whose click led here.
    for (const auto& [effect, button] : shown) {
        button->hide();
        button->deleteLater();
    }
    m_nothing->setVisible(effects.empty());
}

EffectButton* ButtonTowards(int key, const EffectButton& from, const QWidget& page)
{
    std::vector<EffectButton*> buttons;
    for (EffectButton* button : page.findChildren<EffectButton*>())
        if (button->isVisibleTo(&page))
            buttons.push_back(button);
    if (key == Qt::Key_Up || key == Qt::Key_Down)
        return ButtonAbove(key == Qt::Key_Down, from, buttons, page);
    std::ranges::sort(buttons, {}, [&](const EffectButton* button) {
        const QPoint middle = MiddleOf(*button, page);
        return std::pair(middle.y(), middle.x());
    });
    if (key == Qt::Key_Home)
        return buttons.front();
    if (key == Qt::Key_End)
        return buttons.back();
    const auto place = std::ranges::find(buttons, &from);
    if (key == Qt::Key_Right)
        return place + 1 == buttons.end() ? nullptr : *(place + 1);
    return place == buttons.begin() ? nullptr : *(place - 1);
}

} // namespace orvane
