#include "effects/text/status_bar_ticker.h"
#include "insertion/page_script.h"
#include "tests/support/qt_browser_page.h"

#include <QFile>

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(PageScriptBrowserTest, ADeliveredTickerRunsInAStripBesideTheAuthorsOwnOnload)
{
    FinishedPayload payload = Finish(Generate(StatusBarTicker{u"Welcome to my page!"}));
    payload.RunsToday = true;
    const auto edit =
        EditPageAndScript("<!DOCTYPE html><html><head><title>x</title></head>"
                          "<body onload=\"window.own = 1\"><p>Hello</p></body></html>",
                          payload, [] { return true; });
    QFile script(QStringLiteral(":/runtime/orvane.js"));
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    const std::string bytes = script.readAll().toStdString();
    EXPECT_NE(PageScriptVersion(bytes), "");

    BrowserPage page;
    page.AddFile("orvane.js", bytes);
    page.Load(std::get<EditedPage>(edit).Bytes);
    page.Value("window.strip = () => [...document.querySelectorAll('*')]"
               ".map(e => e.shadowRoot && e.shadowRoot.querySelector('.shown')).find(e => e)");
    page.WaitUntil("!!strip() && strip().textContent.includes('Welcome to my page!')");
    page.Value("window.first = strip().textContent.length");
    page.WaitUntil("strip().textContent.length < first");
    page.WaitUntil("Math.abs(strip().parentNode.getBoundingClientRect().bottom - innerHeight) < 2");
    page.WaitUntil("window.own === 1");
}

} // namespace
} // namespace orvane::testing
