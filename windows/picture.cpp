#include "windows/picture.h"

#include "windows/qt_text.h"

#include <QFileInfo>
#include <QImageReader>

namespace orvane {

namespace {

constexpr qint64 maxFileBytes = 64 << 20;
constexpr int maxDecodedMegabytes = 256;
constexpr qint64 maxPixels = (qint64(maxDecodedMegabytes) << 20) / 4;

bool IsPictureFormat(const QByteArray& format)
{
    return format == "gif" || format == "jpeg" || format == "png" || format == "bmp";
}

/// The size that a file of a few bytes may claim is checked before anything is decoded.
bool IsReadable(QSize size)
{
    return !size.isEmpty() && qint64(size.width()) * size.height() <= maxPixels;
}

} // namespace

std::optional<LoadedPicture> LoadPicture(const QString& path, QSize room)
{
    // A pipe of that name would keep the window waiting.
    const QFileInfo file(path);
    if (!file.isFile() || file.size() > maxFileBytes)
        return std::nullopt;
    QImageReader::setAllocationLimit(maxDecodedMegabytes);
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    if (!IsPictureFormat(reader.format()))
        return std::nullopt;
    const QSize size = reader.size();
    if (!IsReadable(size))
        return std::nullopt;
    const QSize fitting = size.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
    reader.setScaledSize(size.boundedTo(room) == size ? size : fitting);
    const QImage thumbnail = reader.read();
    if (thumbnail.isNull())
        return std::nullopt;
    return LoadedPicture{size, thumbnail};
}

PickedImage Measured(const Text& path)
{
    PickedImage image{.Path = path};
    if (const auto picture = LoadPicture(ToQt(path), {1, 1}))
        image.Size = {picture->Size.width(), picture->Size.height()};
    return image;
}

} // namespace orvane
