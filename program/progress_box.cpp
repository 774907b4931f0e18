#include "program/progress_box.h"

#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

namespace orvane {

namespace {

constexpr int quietMs = 500;
constexpr int stepMs = 50; ///< between two looks at what the author does
constexpr int barEnd = 1000;

} // namespace

ProgressBox::ProgressBox(TextView words, QWidget* parent) : QDialog(parent), m_words(words)
{
    setObjectName(QStringLiteral("ProgressBox"));
    setWindowTitle(QStringLiteral("Orvane"));
    setWindowModality(Qt::ApplicationModal);
    m_time.start();
}

/// Most work ends before anybody sees them.
void ProgressBox::AddControls()
{
    PageBuilder page(this);
    page.Note(m_words, "lblWork");
    m_bar = new QProgressBar;
    m_bar->setObjectName(QStringLiteral("ProgressBar"));
    m_bar->setAccessibleName(ToQt(m_words));
    m_bar->setRange(0, barEnd);
    page.Row({}, {m_bar});
    QPushButton* cancel = page.Button("cmdCancel", u"&Cancel");
    connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
    page.Buttons({cancel});
    setMinimumWidth(400);
}

bool ProgressBox::GoOn(std::uint64_t done, std::uint64_t total)
{
    if (m_time.elapsed() < (isVisible() ? stepMs : quietMs))
        return !m_isCancelled;
    if (m_bar == nullptr)
        AddControls();
    // A file may have grown since its size was asked for.
    const double part = total == 0 ? 0 : static_cast<double>(done) / static_cast<double>(total);
    m_bar->setValue(static_cast<int>(std::min(part, 1.0) * barEnd));
    show();
    // What the author did in another window before meets this one in its way.
    QApplication::processEvents();
    m_time.start();
    return !m_isCancelled;
}

} // namespace orvane
