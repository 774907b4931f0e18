#include "core/block_scripts.h"
#include "tests/support/expect_text.h"
#include "tests/support/qt_browser_page.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <filesystem>
#include <memory>

namespace orvane::testing {
namespace {

std::string BytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll().toStdString();
}

/// The checks that the system's browsers pass as well (`tests/browser/other_browsers`). One page
/// runs them; what it asks for is done to the page of the visitor.
class PageScriptChecksBrowserTest
    : public ::testing::TestWithParam<std::tuple<const char*, const char*>>
{
protected:
    /// Runs a group of checks and gives the faults.
    QStringList Run(const std::string& call)
    {
        QJsonObject texts;
        for (const auto& file : std::filesystem::directory_iterator(ORVANE_EXPECTED_FOLDER))
            texts[QString::fromStdString(file.path().filename().string())] =
                QString::fromLatin1(BytesOf(QString::fromStdString(file.path().string())));
        m_checks.Pane.move(2000, 0); // away from where the mouse goes
        m_checks.AddFile("checks.js", BytesOf(ORVANE_PAGE_SCRIPT_CHECKS));
        m_checks.AddFile("texts.js",
                         "const texts = " + QJsonDocument(texts).toJson().toStdString() +
                             "; expectedText = name => texts[name];");
        m_checks.Load("<meta charset=utf-8><script src=texts.js></script>"
                      "<script src=checks.js></script>");
        m_checks.Value(call + "; 0");
        QVariantMap asked;
        const auto isAsked = [&] {
            asked = m_checks.Value("request()").toMap();
            return !asked.empty();
        };
        while (WaitFor(isAsked, 30000)) {
            if (asked["what"] == "end" || ::testing::Test::HasFailure())
                return asked["faults"].toStringList();
            m_checks.Value("answer(" + ToJson(Answer(asked)) + "); 0");
        }
        return {QString("the page that runs the checks does not ask any more")};
    }

private:
    static std::string ToJson(const QVariant& value)
    {
        const QByteArray list =
            QJsonDocument::fromVariant(QVariantList{value}).toJson(QJsonDocument::Compact);
        return list.sliced(1, list.size() - 2).toStdString();
    }

    QVariant Answer(const QVariantMap& asked)
    {
        const QString what = asked["what"].toString();
        const QPoint at = QPointF(asked["x"].toDouble(), asked["y"].toDouble()).toPoint();
        if (what == "begin")
            Begin(asked["height"].toInt());
        else if (what == "open")
            Open(asked);
        else if (what == "value")
            return Value(asked["code"].toString().toStdString());
        else if (what == "script")
            return QStringView(BlockScript(asked["kind"].toString().toStdU16String())).toString();
        else if (what == "axe")
            return Axe();
        else if (what == "pixels")
            return m_page->ColorsAt(asked["points"].toList());
        else if (what == "mouse")
            Move(at);
        else if (what == "click")
            QTest::mouseClick(&m_page->Surface(), Qt::LeftButton, Qt::NoModifier, at);
        else if (what == "touch")
            Tap(at);
        else
            QTest::keyClick(&m_page->Surface(), asked["key"] == "Tab"   ? Qt::Key_Tab
                                                : asked["key"] == "Esc" ? Qt::Key_Escape
                                                : asked["key"] == "Hom" ? Qt::Key_Home
                                                                        : Qt::Key_Return);
        return {};
    }

    /// The script that looks for what bars readers, if `other_browsers` names it; else nothing.
    static QString Axe()
    {
        const QString path = qEnvironmentVariable("ORVANE_AXE");
        return path.isEmpty() ? path : QString::fromStdString(BytesOf(path));
    }

    /// Moves the mouse, which may stand there since the page before.
    void Move(const QPoint& at)
    {
        QTest::mouseMove(&m_page->Surface(), at + QPoint(1, 1));
        QTest::mouseMove(&m_page->Surface(), at);
    }

    void Tap(const QPoint& at)
    {
        QTest::touchEvent(&m_page->Surface(), m_finger.get()).press(0, at);
        QTest::touchEvent(&m_page->Surface(), m_finger.get()).release(0, at);
    }

    void Begin(int height)
    {
        m_page = std::make_unique<BrowserPage>();
        m_page->Pane.resize(800, height);
        m_page->AddFile("orvane.js", BytesOf(":/runtime/orvane.js"));
    }

    void Open(const QVariantMap& asked)
    {
        const QVariantMap files = asked["files"].toMap();
        for (auto file = files.begin(); file != files.end(); ++file)
            m_page->AddFile(file.key().toStdString(), file->toString().toLatin1().toStdString());
        m_page->Load(asked["page"].toString().toLatin1().toStdString());
        m_page->Pane.activateWindow();
        m_page->Surface().setFocus();
    }

    /// What an expression gives in the page, promises kept: {"value": ...} or {"fault": ...}.
    QVariant Value(const std::string& code)
    {
        m_page->Value("window.checked = undefined; (async () => await (" + code +
                      "))().then(value => checked = {value: value ?? null},"
                      "fault => checked = {fault: String(fault)}); 0");
        QVariant value;
        static_cast<void>(WaitFor([&] {
            value = m_page->Value("window.checked && JSON.stringify(checked)");
            return value.typeId() == QMetaType::QString;
        }));
        return value;
    }

    BrowserPage m_checks;
    std::unique_ptr<BrowserPage> m_page;
    std::unique_ptr<QPointingDevice> m_finger{QTest::createTouchDevice()};
};

TEST_P(PageScriptChecksBrowserTest, Pass)
{
    const auto& [group, doctype] = GetParam();
    const QStringList faults =
        Run(std::string("run('") + group + "', " +
            (doctype == std::string("WithDoctype") ? "true" : "false") + ")");
    EXPECT_TRUE(faults.empty()) << faults.join("\n").toStdString();
}
INSTANTIATE_TEST_SUITE_P(, PageScriptChecksBrowserTest,
                         ::testing::Combine(::testing::Values("texts", "pages", "applets", "rules",
                                                              "blocks"),
                                            ::testing::Values("WithDoctype", "WithoutDoctype")),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param)) + std::get<1>(test.param);
                         });

} // namespace
} // namespace orvane::testing
