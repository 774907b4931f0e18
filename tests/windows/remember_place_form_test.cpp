#include "windows/remember_place.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QScreen>

namespace orvane::testing {
namespace {

/// Shows a window that would like to be 300 x 200, lets `act` have it, and gives where it was then.
QRect ShowAndHide(
    FakeSettings& settings, const std::function<void(QWidget&)>& act = [](QWidget&) {})
{
    QWidget window;
    window.setObjectName(QStringLiteral("Window"));
    window.ensurePolished(); // by who asks for its size
    RememberPlace(window, settings);
    window.resize(300, 200);
    window.show();
    act(window);
    window.hide();
    return window.geometry();
}

const std::tuple<Text, Text, Text> place{u"Orvane", u"Places", u"Window"};

TEST(RememberPlaceTest, OpensAsItWasLeftAndOnAScreenThatIsThere)
{
    FakeSettings settings;
    ShowAndHide(settings, [](QWidget& window) { window.setGeometry(40, 50, 410, 320); });
    EXPECT_EQ(ShowAndHide(settings), QRect(40, 50, 410, 320));

    ShowAndHide(settings, [](QWidget& window) { window.setGeometry(9000, 7000, 5000, 320); });
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const int frame = 30;
    EXPECT_TRUE(screen.adjusted(-frame, -frame, frame, frame).contains(ShowAndHide(settings)));

    ShowAndHide(settings, [](QWidget& window) { window.showMaximized(); });
    ShowAndHide(settings, [](QWidget& window) { EXPECT_TRUE(window.isMaximized()); });
}

TEST(RememberPlaceTest, OpensNoLargerThanItsScreen)
{
    FakeSettings settings;
    QWidget window;
    RememberPlace(window, settings);
    window.setMinimumSize(3000, 200);
    window.resize(4000, 5000);
    window.show();
    const QSize room = window.screen()->availableSize();
    EXPECT_LT(window.width(), room.width());
    EXPECT_LT(window.height(), room.height());
    EXPECT_EQ(window.minimumHeight(), 200);
}

TEST(RememberPlaceTest, PassesOverWhatItCannotRead)
{
    FakeSettings settings;
    ShowAndHide(settings, [](QWidget& window) { window.resize(410, 320); });
    const Text whole = settings.Stored.at(place);
    for (const Text& bad :
         {whole.substr(0, 20), Text(u"large"), Text(u"Ñ%"), Text(whole.size(), u'A')}) {
        settings.Stored[place] = bad;
        EXPECT_EQ(ShowAndHide(settings).size(), QSize(300, 200)) << ToUtf8(bad);
    }
}

} // namespace
} // namespace orvane::testing
