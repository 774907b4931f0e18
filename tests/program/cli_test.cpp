#include "program/cli.h"

#include "tests/support/doubles.h"
#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvane::testing {
namespace {

const std::string plainPage = "<html><head></head>\r\n<body>\r\nA</body></html>";

/// A folder with pages and recipes, and nobody at the terminal.
class CliTest : public ::testing::Test
{
protected:
    CliTest()
    {
        m_files.Folders = {u"/site", u"/site/sub", u"/site/.git", u"/out"};
        m_files.Contents = {
            {u"/site/a.html", plainPage},
            {u"/site/bare.html", "no tags"},
            {u"/site/sub/c.htm", plainPage},
            {u"/site/.git/d.html", plainPage},
            {u"/site/Backup of a.html", "an earlier page"},
            {u"/site/alert.ovr", "Effect: Popup Alert Box\ntxtAlertText: Plums"},
            {u"/site/ticker.ovr", "Effect: status-bar-text-ticker\ntxtStatusBarText: Figs"},
            {u"/site/bad.ovr", "Effect: Popup Alert Box\ntxtAlert: Plums"},
            {u"/site/show.ovr", "Effect: Slideshow\nList1: a.gif\nList1: \nList1: \nList1: \n"
                                "List1: \nList1: b.gif\nList1: \nList1: \nList1: \n"
                                "List1: \nRequired: 0\nRequired: a.gif\nRequired: a.gif\n"
                                "Required: 1\nRequired: b.gif\nRequired:"},
            {u"/site/gate.ovr", "Effect: Password Protection\noptScheme: Script\nGateUrl: b.html"},
            {u"/site/a.gif", "GIF"},
        };
    }

    /// Runs the program with these words, which "|" parts.
    void Run(TextView line)
    {
        m_out.clear();
        m_error.clear();
        std::vector<std::string> words;
        while (!line.empty())
            words.push_back(ToUtf8(TakeUntil(line, u'|')));
        m_exit = static_cast<int>(RunCli(words, m_world));
    }

    std::string At(TextView path) const
    {
        const auto found = m_files.Contents.find(Text(path));
        return found == m_files.Contents.end() ? std::string() : found->second;
    }

    FakeFileStore m_files;
    std::string m_out;
    std::string m_error;
    int m_exit = 0;
    std::map<Text, Text> m_variables;
    CliWorld m_world{.Files = m_files,
                     .Folders = {u"/program", u"/settings", u"/state"},
                     .CurrentFolder = u"/site",
                     .Version = u"1.2.3",
                     .Today = u"2024-05-31",
                     .Clock = 45443.5,
                     .Out = [this](std::string_view words) { m_out += words; },
                     .Error = [this](std::string_view words) { m_error += words; },
                     .Variable = [this](TextView name) -> std::optional<Text> {
                         const auto found = m_variables.find(Text(name));
                         return found == m_variables.end() ? std::nullopt
                                                           : std::optional(found->second);
                     },
                     .OwnFile = [](TextView name) -> std::optional<std::string_view> {
                         if (name == u"orvane.js")
                             return "/*! Orvane page script 1.0.0 */";
                         return std::nullopt;
                     },
                     .FieldLabel = [](ControlName form, ControlName field) -> TextView {
                         return form == "PopupAlert" && field == "txtAlertText" ? u"Text" : u"";
                     }};
};

TEST_F(CliTest, DoesWhatItsWordsSayAndTellsSo)
{
    struct Step
    {
        const char16_t* Words;
        int Exit;
        std::string Out;
        std::string Error;
        std::string AlertText; ///< what the alert in a.html says then; empty: a.html is as it was
    };
    const std::string question = "Orvane has found existing code for this special effect in your "
                                 "Web page.  Do you want to replace it?";
    const std::string inPlaceQuestion =
        "Your Web page has this special effect with other values already.  Do you want to change "
        "it in its place?  Else this one is added.";
    const Step steps[] = {
        {u"check|alert.ovr|gate.ovr", 0, "", "", ""},
        {u"check|alert.ovr|bad.ovr", 1, "",
         "orvane-cli: /site/bad.ovr:2: This effect has no field \"txtAlert\".\n", ""},
        {u"check|--set=txtAlertText=|alert.ovr", 1, "",
         "orvane-cli: /site/alert.ovr: txtAlertText: Enter the text you wish to appear in the "
         "PopUp Alert box.\n",
         ""},
        {u"make|alert.ovr|--into|a.html|gone.html|bare.html", 1, "/site/a.html: put in\n",
         "orvane-cli: /site/gone.html: File not found\n"
         "orvane-cli: /site/bare.html: it has no HEAD or BODY tag for the code\n"
         "orvane-cli: 2 failed of 3 pages\n",
         "Plums"},
        {u"make|ticker.ovr|--into|sub/c.htm", 0, "/site/sub/c.htm: put in\n", "", "Plums"},
        {u"make|ticker.ovr|--into|sub/c.htm", 0, "/site/sub/c.htm: unchanged\n", "", "Plums"},
        {u"make|ticker.ovr|--into|sub/c.htm|--set|txtStatusBarText=Pears", 1, "",
         "orvane-cli: /site/sub/c.htm: " + question + "  Say --replace or --keep.\n", "Plums"},
        {u"make|ticker.ovr|--into|sub/c.htm|--set|txtStatusBarText=Pears|--keep", 0,
         "/site/sub/c.htm: kept as it is\n", "", "Plums"},
        {u"list|sub/c.htm", 0, "/site/sub/c.htm:2: Status Bar Text Ticker\n", "", "Plums"},
        {u"make|ticker.ovr|--into|sub/c.htm|--set|txtStatusBarText=Pears|--replace", 0,
         "/site/sub/c.htm: put in\n", "", "Plums"},
        {u"list|--json|a.html|gone.html", 1,
         "[\n{\"page\": \"/site/a.html\", \"pageScript\": false, \"effects\": [{\"name\": "
         "\"Popup Alert\", \"title\": \"Popup Alert Box\", \"state\": \"whole\", "
         "\"needsPageScript\": false, \"parts\": [{\"place\": \"body\", \"line\": 4}]}]}\n]\n",
         "orvane-cli: /site/gone.html: File not found\n"
         "orvane-cli: 1 failed of 2 pages\n",
         "Plums"},
        {u"make|alert.ovr|--into|a.html", 0, "/site/a.html: unchanged\n", "", "Plums"},
        {u"make|alert.ovr|--into|a.html|--set|txtAlertText=Limes", 1, "",
         "orvane-cli: /site/a.html: " + inPlaceQuestion + "  Say --replace or --keep.\n", "Plums"},
        {u"make|alert.ovr|--into|a.html|--set|txtAlertText=Limes|--replace", 0,
         "/site/a.html: changed\n", "", "Limes"},
        {u"make|alert.ovr|--into|a.html|--keep", 0, "/site/a.html: put in\n", "", "Plums"},
        {u"make|alert.ovr|--into|a.html|--set|txtAlertText=Nuts|--replace", 1, "",
         "orvane-cli: /site/a.html: it has this special effect several times: which one is to be "
         "changed?  Take those out that are not wanted, or say --keep to add one\n",
         "Limes"},
        {u"change|a.html|--effect|popup alert box|--set|txtAlertText=Pears", 0,
         "/site/a.html: changed\n", "", "Pears"},
        {u"change|--folder|.|--effect|popupalertbox|--set|txtAlertText=Dates", 0,
         "/site/a.html: changed\n", "", "Dates"},
        {u"change|a.html|--effect|popup-alert-box|--set|txtAlertText=", 1, "",
         "orvane-cli: /site/a.html: txtAlertText: Enter the text you wish to appear in the PopUp "
         "Alert box.\n",
         "Dates"},
        {u"remove|bare.html|--effect|Popup Alert Box", 1, "",
         "orvane-cli: nothing was to be done for \"Popup Alert Box\"\n", "Dates"},
        {u"remove|--folder=/site|--effect=Popup Alert Box", 0, "/site/a.html: taken out\n", "", ""},
        {u"remove|--folder|sub|--pattern|*.htm|--effect|status bar text ticker", 0,
         "/site/sub/c.htm: taken out\n", "", ""},
        {u"list|--folder|none", 1, "", "orvane-cli: there is no page to work on\n", ""},
        {u"effects|--recipe|popup alert box", 0,
         "# A recipe of Orvane. Lines that begin with \"#\" are comments; \"\\r\\n\" is a line "
         "end, \"\\\\\" a backslash.\nEffect: Popup Alert Box\n\n"
         "cmboAlertType: Simple Alert box\ntxtAlertText: \n",
         "", ""},
        {u"effects|--fields|popup alert box", 0,
         "cmboAlertType\tSimple Alert box\ttext\t\ntxtAlertText\t\ttext\tText\n", "", ""},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(ToUtf8(step.Words));
        Run(step.Words);
        EXPECT_EQ(m_exit, step.Exit);
        ExpectSameText(FromUtf8(step.Out), FromUtf8(m_out));
        ExpectSameText(FromUtf8(step.Error), FromUtf8(m_error));
        const std::string alert = "window.alert(\"" + step.AlertText + "\")";
        if (step.AlertText.empty())
            ExpectSameBytes(plainPage, At(u"/site/a.html"));
        else
            EXPECT_NE(At(u"/site/a.html").find(alert), std::string::npos);
    }
    ExpectSameBytes(plainPage, At(u"/site/sub/c.htm"));
    ExpectSameBytes(plainPage, At(u"/site/.git/d.html"));
    EXPECT_EQ(At(u"/state/first-backups/2024-05-31/site/a.html"), plainPage);
}

TEST_F(CliTest, ShowsWhatWouldChangeAndWritesNothing)
{
    Run(u"make|alert.ovr|--into|a.html|--dry-run");
    EXPECT_EQ(m_exit, 0);
    EXPECT_EQ(m_files.Writes, Texts());
    EXPECT_TRUE(m_out.starts_with("--- /site/a.html\n+++ /site/a.html\n@@ -1,3 +1,")) << m_out;
    EXPECT_NE(m_out.find("\n+    window.alert(\"Plums\")\r\n"), std::string::npos) << m_out;
    Run(u"make|show.ovr|--new|/out/new.html|--dry-run");
    EXPECT_TRUE(m_out.starts_with("# copied: /out/a.gif\n--- /dev/null\n+++ "
                                  "/out/new.html\n@@ -0,0 +1,"))
        << m_out;
    EXPECT_EQ(m_files.Writes, Texts());
}

TEST_F(CliTest, BringsTheFilesOfAnEffectBesideEachPageOnce)
{
    m_files.Contents[u"/out/d.html"] = plainPage;
    m_files.Contents[u"/out/e.html"] = plainPage;
    Run(u"make|show.ovr|--into|/out/d.html|/out/e.html|--today|--replace");
    EXPECT_EQ(m_error, "orvane-cli: /out/d.html: put in, but these files are missing beside it: "
                       "b.gif\norvane-cli: /out/e.html: put in, but these files are missing beside "
                       "it: b.gif\norvane-cli: 2 failed of 2 pages\n");
    m_files.Contents[u"/site/b.gif"] = "GIF2";
    m_files.Writes.clear();
    Run(u"make|show.ovr|--into|/out/d.html|/out/e.html|--today|--replace");
    EXPECT_EQ(m_error, "");
    EXPECT_EQ(std::ranges::count(m_files.Writes, Text(u"/out/b.gif")), 1);
    EXPECT_EQ(At(u"/out/a.gif"), "GIF");
    EXPECT_EQ(At(u"/out/orvane.js"), "/*! Orvane page script 1.0.0 */");
    EXPECT_NE(At(u"/out/e.html").find("orvane.js"), std::string::npos);
    const std::string before = At(u"/out/e.html");
    Run(u"make|show.ovr|--into|/out/d.html|/out/e.html|--today");
    EXPECT_EQ(m_out, "/out/d.html: unchanged\n/out/e.html: unchanged\n") << m_error;
    ExpectSameBytes(before, At(u"/out/e.html"));
    m_files.Contents[u"/site/b.gif"] = "another";
    Run(u"make|show.ovr|--into|/out/d.html|--today");
    EXPECT_NE(m_error.find("b.gif already exists in this folder."), std::string::npos) << m_error;
}

TEST_F(CliTest, TakesSecretsFromTheEnvironmentOrAPromptAlone)
{
    const TextView print = u"make|gate.ovr|--print";
    Run(print);
    const std::string without = m_out;
    std::string asked;
    m_world.AskSecret = [&](std::string_view words) {
        asked += words;
        return Text(u"plum");
    };
    Run(print);
    EXPECT_EQ(asked, "GatePassword");
    EXPECT_NE(m_out, without);
    const std::string prompted = m_out;
    m_variables[u"ORVANE_GatePassword"] = u"plum";
    Run(print);
    EXPECT_EQ(asked, "GatePassword");
    EXPECT_EQ(m_out, prompted);
    Run(Join({print, u"|--set|GatePassword=plum"}));
    EXPECT_EQ(m_error, "orvane-cli: \"GatePassword\" is secret: it comes from a prompt or the "
                       "environment.\n");
}

TEST_F(CliTest, TellsWrongUseFromFailure)
{
    for (const TextView words : std::initializer_list<TextView>{
             u"", u"plums", u"list|--set|a=b", u"list|--folder", u"list|--json=1|a.html",
             u"make|--print", u"make|alert.ovr", u"make|alert.ovr|--print|--into",
             u"remove|a.html|--effect|plums"}) {
        Run(words);
        EXPECT_EQ(m_exit, 2) << ToUtf8(words);
        EXPECT_TRUE(m_error.starts_with("orvane-cli: ")) << m_error;
    }
    EXPECT_EQ(m_files.Writes, Texts());
}

} // namespace
} // namespace orvane::testing
