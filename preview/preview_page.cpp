#include "preview/preview_page.h"

#include "core/catalogue.h"
#include "core/file_names.h"
#include "core/template.h"
#include "insertion/page_encoding.h"
#include "insertion/page_script.h"
#include "preview/preview_note.h"
#include "preview/readable_files.h"
#include "services/preferences.h"

#include <tuple>
#include <utility>

namespace orvane {

namespace {

constexpr TextView banner =
    u"<FONT FACE=Arial SIZE=5><B>Made with Orvane <FONT SIZE=3><SUP>TM</SUP></FONT></B>"
    u"<BR CLEAR=ALL><FONT SIZE=1>This text &quot;Made with Orvane&quot; only appears in this "
    u"preview.  It will not be included when you insert the special effect into your Web page"
    u"</FONT></FONT><HR SIZE=1><BR><BR>";

constexpr Template serverScriptPage(uR"page(
<HTML> <BODY> 
«BrowserPreviewBanner»<FONT SIZE=2>The CGI password script cannot be tested on your local computer.  You will need to upload the required files to your Web server in order to correctly test it.<BR><BR>Continue with Step 2 of Orvane's Preview wizard to finish this password protection effect.</FONT></FONT><BR><BR>

«PreviewCode»
</BODY></HTML>)page");

constexpr Template previewPage(uR"page(
<HTML>
<HEAD>
«PreviewHeadPart»
</HEAD>
<BODY oncontextmenu='return false;' «BODYAttribute»>
«BrowserPreviewBanner»<table width=100% height=100%><tr><td valign=middle align=center>
«PreviewBodyPart»
</td></tr></table>
</BODY></HTML>
)page");

const PreviewWords& WordsFor(const EffectPayload& effect)
{
    const CatalogueRow& row = RowOf(effect.Kind);
    return effect.IsBlock && row.BlockPreview ? *row.BlockPreview : row.Preview;
}

Text BrowserPreviewBanner(const EffectPayload& effect, PreviewMode mode)
{
    return mode == PreviewMode::Browser1 ? Join({WordsFor(effect).AboveBanner, banner}) : Text();
}

/// The code with a word to the author where a plain preview cannot show the effect.
Text PreviewBodyPart(const FinishedPayload& payload, PreviewMode mode)
{
    const PreviewWords& words = WordsFor(payload.Effect);
    const bool isSeen = RowOf(payload.Effect.Kind).ShowsInStatusLine && !RunsInStatus(payload);
    const auto inMode = [&](TextView text) {
        return mode == PreviewMode::Live ? ReplaceAll(text, u"<b>Refresh</b>", u"<b>Run again</b>")
                                         : Text(text);
    };
    return Join({inMode(words.Before), payload.Effect.BODYHTML,
                 isSeen ? Text() : inMode(words.After),
                 mode == PreviewMode::Browser1 ? Text() : inMode(words.PaneAfter)});
}

TextView PreviewHeadPart(const EffectPayload& effect, PreviewMode mode)
{
    const TextView inPane = WordsFor(effect).PaneHead;
    return mode != PreviewMode::Browser1 && !inPane.empty() ? inPane : TextView(effect.HEADHTML);
}

bool IsKnown(const Text& browser)
{
    return !browser.empty() && browser != u"c:\\";
}

/// Whether this is the path of a browser, and not the words that the preferences store for none.
bool IsProgram(const Text& browser)
{
    return IsKnown(browser) && browser != defaultBrowser;
}

/// The platform's browser command without what follows the program's name, and without quotes.
Text BrowserProgram(TextView command)
{
    const std::size_t place = Find(command, u".exe", 4);
    return ReplaceAll(place == 0 ? command : Left(command, place + 3), u"\"", u"");
}

/// The author's browser: the stored one, else the platform's, else one picked now; empty when the
/// author picked none.
Text FindBrowser(Workbench& bench)
{
    const Text stored = bench.Settings.Get(settingKeys::browser);
    if (IsKnown(stored))
        return stored;
    ReadClassesRootValue(bench.Core, bench.Shell);
    Text browser;
    if (const auto* command = std::get_if<Text>(&bench.Core.IEVersion);
        command && !command->empty()) {
        browser = BrowserProgram(*command);
    } else {
        bench.Dialogs.Say(u"Browser statement not found in Windows Registry.\r\n"
                          u"Select the file/path of the browser you wish to use.");
        browser = bench.Dialogs
                      .OpenFile({.Title = u"Select Browser...",
                                 .Filter = u"All Files (*.*)|*.*|EXE Files (*.exe)|*.exe|"
                                           u"BAT Files (*.bat)|*.bat",
                                 .FilterIndex = 2})
                      .value_or(Text());
    }
    if (!browser.empty())
        bench.Settings.Put(settingKeys::browser, browser);
    return browser;
}

/// True when the browser did not start and the author wants to see the preferences.
bool ShowInBrowser(Workbench& bench)
{
    const Text browser = FindBrowser(bench);
    const Text page = PreviewPagePath(bench.Core);
    const bool isOverridden = bench.Settings.Get(settingKeys::overrideBrowser) != u"0";
    const bool hasDefault = !isOverridden && bench.Shell.DefaultBrowser().has_value();
    // A desktop without a browser opens nothing: there the one that the author chose is started.
    if (!isOverridden && (hasDefault || !IsProgram(browser))) {
        bench.Shell.OpenWithShell(page);
        if (!hasDefault)
            bench.Dialogs.Say(u"If no Web browser opens now, choose one in the main window under "
                              u"Edit, Preferences: tick \"Override default\" and browse for it.");
        return false;
    }
    return !bench.Shell.Start(browser, page) &&
           bench.Dialogs.Ask(
               u"Could not locate browser using the specified path/filename found in the "
               u"Windows Registry.  Check your Preference settings.  Would you like to "
               u"view your settings now?",
               u"Incorrect Browser path/filename");
}

/// Writes the page and, inline, shows it at once.
Done WritePage(Workbench& bench, const FinishedPayload& payload, PreviewMode mode)
{
    const Text path = PreviewPagePath(bench.Core);
    std::string bytes = EncodeForPage(PreviewPageText(payload, mode), PageEncoding::Windows1252);
    if (payload.WantsPageScript)
        bytes = WithPageScript(bytes);
    if (mode == PreviewMode::Inline)
        return bench.Pane.Navigate(
            {.Path = path,
             .Bytes = std::move(bytes),
             .Files = ReadableFiles(payload, bench.Files, bench.Core.ProgramFolder),
             .Note = PreviewNote(payload, bench.Files, bench.Core.ProgramFolder),
             .RunsInStatus = RunsInStatus(payload)});
    bench.Pane.LeaveFile();
    return bench.Files.PutPrivate(path, bytes);
}

} // namespace

Text PreviewPageText(const FinishedPayload& payload, PreviewMode mode)
{
    const EffectPayload& effect = payload.Effect;
    const Text bannerText = BrowserPreviewBanner(effect, mode);
    if (FindIgnoringCase(effect.BODYHTML, u"password.cgi") != 0)
        return Fill(serverScriptPage,
                    {{u"BrowserPreviewBanner", bannerText}, {u"PreviewCode", payload.PreviewCode}});
    return Fill(previewPage, {{u"PreviewHeadPart", PreviewHeadPart(effect, mode)},
                              {u"BODYAttribute", payload.BODYAttribute},
                              {u"BrowserPreviewBanner", bannerText},
                              {u"PreviewBodyPart", PreviewBodyPart(payload, mode)}});
}

Text PreviewPagePath(const OrvaneCore& core)
{
    return PathIn(core.ProgramFolder, u"ov-prvw.htm");
}

void RemovePreviewPages(FileStore& files, const OrvaneCore& core)
{
    for (const Text& page : {PreviewPagePath(core), PathIn(core.ProgramFolder, panePageName)})
        std::ignore = files.Remove(page);
}

bool LinkToBrowser(Workbench& bench, const FinishedPayload& payload, PreviewMode mode)
{
    // Two empty texts still have the line end between them.
    if (payload.PreviewCode.empty()) {
        bench.Dialogs.Say(u"There is no code in the preview window.  Cannot preview the special "
                          u"effect.");
        return false;
    }
    const Done written = WritePage(bench, payload, mode);
    if (const Fault* fault = FaultIn(written)) {
        bench.Dialogs.Say(Words(*fault));
        return false;
    }
    return mode == PreviewMode::Browser1 && ShowInBrowser(bench);
}

} // namespace orvane
