#include "windows/picture.h"

#include "tests/support/picture_files.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace orvane {
namespace {

using namespace orvane::testing;

constexpr QSize room(150, 110);

TEST(PictureTest, TellsTheSizeOfTheFileAndGivesASmallPicture)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.jpg"));
    for (const char* format : {"JPG", "PNG"}) {
        QImage wide(640, 200, QImage::Format_RGB32);
        wide.fill(Qt::red);
        ASSERT_TRUE(wide.save(path, format));
        const auto picture = LoadPicture(path, room);
        ASSERT_TRUE(picture) << format;
        EXPECT_EQ(picture->Size, QSize(640, 200));
        EXPECT_EQ(picture->Thumbnail.width(), 150);
    }
    WriteFile(path.toStdString(), GifBytes(1, 40));
    EXPECT_EQ(LoadPicture(path, room)->Thumbnail.size(), QSize(1, 40));
}

TEST(PictureTest, DoesNotWaitForAPipeNamedLikeAPicture)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.gif"));
    ASSERT_EQ(mkfifo(path.toUtf8().constData(), 0600), 0);
    EXPECT_FALSE(LoadPicture(path, room));
}

struct BadPicture
{
    const char* Name;
    std::string Bytes;

    friend void PrintTo(const BadPicture& picture, std::ostream* out) { *out << picture.Name; }
};

class BadPictureTest : public ::testing::TestWithParam<BadPicture>
{
};

TEST_P(BadPictureTest, GivesNothingAndAtOnce)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bad.jpg"));
    WriteFile(path.toStdString(), GetParam().Bytes);
    EXPECT_FALSE(LoadPicture(path, room));
}

INSTANTIATE_TEST_SUITE_P(
    Files, BadPictureTest,
    ::testing::Values(BadPicture{"Empty", ""}, BadPicture{"Text", "Dear reader,\r\n"},
                      BadPicture{"HugeGif", GifBytes(60000, 60000)},
                      BadPicture{"HugeJpeg", JpegHeaderBytes(60000, 60000)},
                      BadPicture{"GifCutInItsHeader", GifBytes(500, 500).substr(0, 9)},
                      BadPicture{"GifCutBeforeItsPixels", GifBytes(500, 500).substr(0, 24)},
                      BadPicture{"Drawing", "<svg xmlns='http://www.w3.org/2000/svg' width='500' "
                                            "height='500'/>"}),
    [](const auto& row) { return row.param.Name; });

} // namespace
} // namespace orvane
