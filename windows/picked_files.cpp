#include "windows/picked_files.h"

#include "core/file_names.h"
#include "windows/qt_text.h"

#include <QVariantMap>
#include <QWidget>

namespace orvane {

namespace {

constexpr const char* picked = "pickedFiles";

} // namespace

void RememberPicked(QWidget& field, TextView path)
{
    for (QWidget* widget = &field; widget != nullptr; widget = widget->parentWidget()) {
        if (!widget->isWindow())
            continue;
        QVariantMap files = widget->property(picked).toMap();
        files.insert(ToQt(GetFileName(path)), ToQt(path));
        widget->setProperty(picked, files);
    }
}

std::optional<Text> PickedFile(const QWidget& window, TextView name)
{
    const QVariantMap files = window.property(picked).toMap();
    const auto found = files.find(ToQt(name));
    if (found == files.end())
        return std::nullopt;
    return FromQt(found->toString());
}

} // namespace orvane
