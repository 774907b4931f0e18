#include "tests/support/qt_browser_page.h"

#include "tests/support/qt_controls.h"

#include <QEventLoop>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>

namespace orvane::testing {

bool WaitFor(const std::function<bool()>& condition, int timeoutMs)
{
    if (condition())
        return true;
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (condition())
            loop.exit(1);
    });
    look.start(10);
    QTimer::singleShot(timeoutMs, &loop, [&] { loop.exit(0); });
    return loop.exec() == 1;
}

bool RecordingFiles::FileExists(TextView path) const
{
    return std::filesystem::is_regular_file(ToUtf8(path));
}

Outcome<std::string> RecordingFiles::Read(TextView path) const
{
    Reads.emplace_back(path);
    std::ifstream file(ToUtf8(path), std::ios::binary);
    if (!file)
        return Fault::FileNotFound;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

Done RecordingFiles::Replace(TextView path, std::string_view bytes)
{
    Writes.emplace_back(path);
    std::ofstream(ToUtf8(path), std::ios::binary) << bytes;
    return {};
}

Done RecordingFiles::Remove(TextView path)
{
    Removals.emplace_back(path);
    if (std::error_code error; !std::filesystem::remove(ToUtf8(path), error))
        return Fault::FileNotFound;
    return {};
}

BrowserPage::BrowserPage()
{
    QObject::connect(&Pane, &QtPreviewPane::LiveShown, &Pane, [this] { ++LiveShown; });
    Pane.resize(640, 480);
    Pane.show();
}

BrowserPage::~BrowserPage() = default;

void BrowserPage::AddFile(const std::string& name, std::string_view bytes)
{
    m_files.push_back(FromUtf8(name));
    std::ofstream(Path(name), std::ios::binary) << bytes;
}

LivePage BrowserPage::Live(std::string_view page) const
{
    LivePage live{.Name = u"page.html", .Bytes = std::string(page)};
    for (const Text& name : m_files)
        live.Files.push_back({name, FromUtf8(Path(ToUtf8(name)))});
    return live;
}

void BrowserPage::Open(std::string_view page)
{
    if (IsLive)
        return Pane.ShowLive(Live(page));
    EXPECT_FALSE(FaultIn(Pane.Navigate(
        {.Path = FromUtf8(Path("page.html")), .Bytes = std::string(page), .Files = m_files})));
}

void BrowserPage::Load(std::string_view page)
{
    const int shown = LiveShown;
    Open(page);
    EXPECT_TRUE(WaitFor([&] { return IsLive ? LiveShown > shown : !PageFileExists(); }))
        << "the page was never loaded";
}

QVariant BrowserPage::Value(const std::string& expression)
{
    const auto value = std::make_shared<std::optional<QVariant>>();
    if (Pane.View())
        Pane.View()->Evaluate(QString::fromStdString(expression),
                              [value](const QVariant& result) { *value = result; });
    static_cast<void>(WaitFor([&] { return value->has_value(); }, 5000));
    return value->value_or(QVariant());
}

void BrowserPage::WaitUntil(const std::string& expression, int timeoutMs)
{
    EXPECT_TRUE(WaitFor([&] { return Value(expression).toBool(); }, timeoutMs))
        << "never true in the page: " << expression;
}

QPoint BrowserPage::MiddleOf(const std::string& element)
{
    const QVariantList middle =
        Value("(() => { const box = (" + element +
              ").getBoundingClientRect();"
              "return [box.x + box.width / 2, box.y + box.height / 2]; })()")
            .toList();
    EXPECT_EQ(middle.size(), 2) << "no such element: " << element;
    return middle.size() == 2 ? QPoint(middle[0].toInt(), middle[1].toInt()) : QPoint();
}

QWidget& BrowserPage::Surface()
{
    QWidget* surface = Pane.View();
    while (surface->focusProxy() != nullptr)
        surface = surface->focusProxy();
    return *surface;
}

QVariantList BrowserPage::ColorsAt(const QVariantList& points)
{
    const QImage picture = Surface().grab().toImage();
    QVariantList colors;
    for (const QVariant& point : points) {
        const QVariantList at = point.toList();
        const QColor color = picture.pixelColor(at[0].toInt(), at[1].toInt());
        colors.push_back(QVariantList{color.red(), color.green(), color.blue()});
    }
    return colors;
}

void BrowserPage::ClickOn(const std::string& element)
{
    QTest::mouseClick(&Surface(), Qt::LeftButton, Qt::NoModifier, MiddleOf(element));
}

Text BrowserPage::Status()
{
    return Note().empty() ? WordsOf(Pane, "lblPageStatus") : Text();
}

Text BrowserPage::Note()
{
    return Find<QLabel>(Pane, "lblPreviewNote")->isVisible() ? WordsOf(Pane, "lblPreviewNote")
                                                             : Text();
}

std::vector<QWidget*> BrowserPage::Windows() const
{
    const QList<QWidget*> windows = Pane.findChildren<QWidget*>("PageWindow");
    return {windows.begin(), windows.end()};
}

std::string BrowserPage::Path(const std::string& name) const
{
    return m_folder.filePath(QString::fromStdString(name)).toStdString();
}

bool BrowserPage::PageFileExists() const
{
    return std::filesystem::exists(Path("page.html"));
}

} // namespace orvane::testing
