#include "windows/recent_menu.h"

#include "services/recent_files.h"
#include "windows/qt_text.h"

#include <QMenu>

namespace orvane {

namespace {

constexpr int widestPath = 60; ///< in average characters

/// "&1 /home/me/film.ovn": the number is the access key, and the path is shown as it is.
QString WordsFor(const QMenu& menu, int number, const Text& path)
{
    const QFontMetrics metrics = menu.fontMetrics();
    QString shown =
        metrics.elidedText(ToQt(path), Qt::ElideMiddle, widestPath * metrics.averageCharWidth());
    shown.replace(u'&', QStringLiteral("&&"));
    QString digits = QString::number(number);
    digits.insert(digits.size() - 1, u'&');
    return digits + u' ' + shown;
}

} // namespace

void OfferPaths(QMenu& menu, PathLister list, std::function<void(const Text& path)> take)
{
    const auto fill = [&menu, list = std::move(list), take = std::move(take)] {
        menu.clear();
        int number = 0;
        for (const Text& path : list()) {
            QAction* entry = menu.addAction(WordsFor(menu, ++number, path));
            QObject::connect(entry, &QAction::triggered, &menu, [take, path] { take(path); });
        }
        if (number == 0)
            menu.addAction(QStringLiteral("(None)"))->setEnabled(false);
    };
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, fill);
}

void OfferRecentFiles(QMenu& menu, TextView kind, const Workbench& bench,
                      std::function<void(const Text& path)> take)
{
    OfferPaths(
        menu, [kind, &bench] { return RecentFiles(bench.Settings, bench.Files, kind); },
        std::move(take));
}

} // namespace orvane
