#include "catalogue/catalogue_panel.h"
#include "catalogue/effect_button.h"
#include "catalogue/effect_picture.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "tests/support/test_folder.h"

#include <QApplication>
#include <QEnterEvent>
#include <QFileInfo>
#include <QImageReader>
#include <QMenu>
#include <QTest>

namespace orvane::testing {
namespace {

TEST(EffectPictureTest, EveryEffectHasSmallOnesForEachScreenAndForLightAndDarkWindows)
{
    const OpenPictures open;
    for (const CatalogueRow& row : Catalogue()) {
        qint64 bytes = 0;
        for (const QColor window : {Qt::white, Qt::black})
            for (const double pixels : {1.0, 2.0}) {
                const QString file = PictureName(row, QPalette(window), pixels);
                bytes += QFileInfo(file).size();
                EXPECT_EQ(QImageReader(file).size(), pixels * pictureSize) << file.toStdString();
            }
        EXPECT_LE(bytes, 30000) << row.MenuCommand;
    }
}

TEST(EffectPictureTest, AButtonHasRoomForItsWordsAndIsAsLargeBeforeItsPictureComes)
{
    for (const CatalogueRow& row : Catalogue()) {
        EffectButton button(row, QString());
        const QSize room = button.sizeHint();
        EXPECT_LE(button.fontMetrics().size(0, button.text()).width(), room.width() - 6);
        button.DrawPicture();
        EXPECT_EQ(button.sizeHint(), room);
    }
}

class MovingPictureTest : public ::testing::Test
{
protected:
    MovingPictureTest()
    {
        // What the desktop of this machine wants is no part of the test.
        AnswerOfDesktop("true");
        m_panel.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_panel));
        LetRun();
    }
    ~MovingPictureTest() override { qputenv("PATH", m_path); }

    void AnswerOfDesktop(const std::string& answer)
    {
        m_folder.Put("gsettings", "#!/bin/sh\necho " + answer + "\n", 0755);
        qputenv("PATH", QByteArray::fromStdString(m_folder.At("")) + ':' + m_path);
    }

    EffectButton& Button(EffectKind kind)
    {
        return *m_panel.findChild<EffectButton*>(
            QStringLiteral("cmdSpecialFX(%1)").arg(static_cast<int>(kind)));
    }

    static void PointAt(EffectButton& button)
    {
        QEnterEvent enter({}, {}, {});
        QApplication::sendEvent(&button, &enter);
    }

    /// Whether the button's picture changes within so many milliseconds.
    static bool Moves(const EffectButton& button, int ms)
    {
        const qint64 before = button.icon().cacheKey();
        return QTest::qWaitFor([&] { return button.icon().cacheKey() != before; }, ms);
    }

    TestFolder m_folder;
    const QByteArray m_path = qgetenv("PATH");
    FakeSettings m_settings;
    CataloguePanel m_panel{m_settings};
};

TEST_F(MovingPictureTest, OneMovesAtATimeAfterAMomentAndForAWhile)
{
    EffectButton& wizard = Button(EffectKind::AnimationWizard);
    EffectButton& banner = Button(EffectKind::BannerWizard);
    const qint64 still = wizard.icon().cacheKey();
    PointAt(wizard);
    EXPECT_FALSE(Moves(wizard, 250));
    EXPECT_TRUE(Moves(wizard, 1500));
    banner.setFocus();
    EXPECT_EQ(wizard.icon().cacheKey(), still);
    EXPECT_TRUE(Moves(banner, 4000));
    EXPECT_FALSE(Moves(wizard, 0));
    QTest::qWait(5400);
    EXPECT_FALSE(Moves(banner, 700));
    PointAt(wizard);
    EXPECT_TRUE(Moves(wizard, 1500));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&wizard, &leave);
    EXPECT_EQ(wizard.icon().cacheKey(), still);
}

TEST_F(MovingPictureTest, NoneMovesWhereTheAuthorWantsCalm)
{
    EffectButton& wizard = Button(EffectKind::AnimationWizard);
    AnswerOfDesktop("false");
    PointAt(wizard);
    EXPECT_FALSE(Moves(wizard, 1200));
}

TEST_F(MovingPictureTest, NoneMovesOnceTheMenuOfAButtonSaysSo)
{
    EffectButton& wizard = Button(EffectKind::AnimationWizard);
    Press(wizard, Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_M);
    PointAt(wizard);
    EXPECT_FALSE(Moves(wizard, 1200));
}

} // namespace
} // namespace orvane::testing
