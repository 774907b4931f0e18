#include "windows/picture.h"

#include "tests/support/picture_files.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace orvane::testing {
namespace {

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

TEST(PictureTest, GivesNothingForWhatIsNoPictureAndAtOnceForAHugeOne)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bad.jpg"));
    for (const std::string& bytes :
         {std::string(), std::string("Dear reader,\r\n"), GifBytes(60000, 60000),
          JpegHeaderBytes(60000, 60000), GifBytes(500, 500).substr(0, 9),
          GifBytes(500, 500).substr(0, 24),
          std::string("<svg xmlns='http://www.w3.org/2000/svg' width='500' height='500'/>")}) {
        WriteFile(path.toStdString(), bytes);
        EXPECT_FALSE(LoadPicture(path, room)) << bytes.substr(0, 80);
    }
}

} // namespace
} // namespace orvane::testing
