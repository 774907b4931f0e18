#include "windows/color_list.h"

#include "core/numbers.h"
#include "windows/color_swatch.h"
#include "windows/qt_text.h"

#include <QHBoxLayout>

namespace orvane {

ColorList::ColorList(ControlName name, int count, Workbench& bench, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(ToQt(name));
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < count; ++i) {
        auto* swatch = new ColorSwatch(u"None", ColorNotation::Hash, bench.Dialogs, this);
        swatch->setObjectName(MemberName(name, i));
        swatch->setAccessibleName(ToQt(Join({u"Color ", NumberToText(i + 1)})));
        swatch->setToolTip(QStringLiteral("Click here to select a color; Delete takes it away"));
        connect(swatch, &ColorSwatch::Picked, this, &ColorList::ColorsChanged);
        connect(swatch, &ColorSwatch::WasUnset, this, &ColorList::ColorsChanged);
        line->addWidget(swatch, 1);
        m_swatches.push_back(swatch);
    }
    setFocusProxy(m_swatches.front());
}

FieldTexts ColorList::Colors() const
{
    FieldTexts colors;
    for (const ColorSwatch* swatch : m_swatches)
        if (!swatch->Value().empty())
            colors.push_back(swatch->Value());
    return colors;
}

void ColorList::SetColors(const FieldTexts& colors)
{
    for (std::size_t i = 0; i < m_swatches.size(); ++i)
        m_swatches[i]->SetValue(i < colors.size() ? TextView(colors[i]) : TextView());
}

} // namespace orvane
