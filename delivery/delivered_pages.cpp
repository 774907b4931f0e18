#include "delivery/delivered_pages.h"

#include "core/catalogue.h"
#include "core/file_names.h"
#include "insertion/page_script.h"
#include "services/add_once.h"

#include <algorithm>

namespace orvane {

namespace {

/// The names of all files that the effect needs beside its page: those that its code names, and
/// those that Orvane brings there.
std::vector<Text> FilesOf(const FinishedPayload& payload)
{
    const EffectPayload& effect = payload.Effect;
    std::vector<Text> names =
        NamesInCode(EncodeForPage(Join({effect.HEADHTML, lineEnd, effect.BODYHTML, lineEnd,
                                        u"<BODY", payload.BODYAttribute, u">"}),
                                  PageEncoding::Utf8),
                    PageEncoding::Utf8);
    for (const Text& required : effect.Required.RequiredFileNames)
        if (const auto name = NameBesidePage(required))
            AddOnce(names, *name);
    for (const Text& name : effect.SupportFiles)
        if (!name.empty())
            AddOnce(names, name);
    return names;
}

/// Whether the page on the disk holds the effect, by its marker or, for an effect without code in
/// HEAD and BODY, by its call.
bool Holds(std::string_view page, const FinishedPayload& payload)
{
    const EffectPayload& effect = payload.Effect;
    if (!effect.HEADHTML.empty() || !effect.BODYHTML.empty())
        return page.find(ToUtf8(payload.BeginMarker)) != std::string_view::npos;
    return page.find(ToUtf8(effect.OnLoadFunc)) != std::string_view::npos &&
           page.find(ToUtf8(effect.OnUnloadFunc)) != std::string_view::npos;
}

DeliveredPage LookAt(const Text& path, const FinishedPayload& payload, const FileStore& files,
                     std::vector<Text> names)
{
    DeliveredPage page{.Path = path};
    const auto read = files.Read(path);
    if (const Fault* fault = FaultIn(read)) {
        if (*fault == Fault::FileNotFound || *fault == Fault::PathNotFound)
            page.HoldsEffect = false;
    } else {
        page.HoldsEffect = Holds(ValueIn(read), payload);
        page.HasPageScript = HasPageScript(ValueIn(read));
    }
    if (page.HasPageScript)
        AddOnce(names, pageScriptFile);
    page.Files = LookBesidePage(files, FolderOf(path), names);
    return page;
}

/// One line with the names behind the words, if there are any.
void AddLine(std::vector<Text>& lines, TextView words, const std::vector<Text>& names)
{
    if (!names.empty())
        lines.push_back(Join({words, u": ", Listed(names)}));
}

/// The pages of which `isSo` is true, a line for each folder.
void AddPages(std::vector<Text>& lines, TextView words, const std::vector<DeliveredPage>& pages,
              const auto& isSo)
{
    std::vector<Text> folders;
    for (const DeliveredPage& page : pages)
        if (isSo(page))
            AddOnce(folders, FolderOf(page.Path));
    for (const Text& folder : folders) {
        std::vector<Text> names;
        for (const DeliveredPage& page : pages)
            if (isSo(page) && FolderOf(page.Path) == folder)
                names.emplace_back(GetFileName(page.Path));
        AddLine(lines, Join({words, folder}), names);
    }
}

/// The first line of all when the effect went in without the page script that it needs.
void AddScriptLine(std::vector<Text>& lines, const DeliveryReport& report,
                   const FinishedPayload& payload, const std::vector<DeliveredPage>& pages)
{
    const TextView sentence = RowOf(payload.Effect.Kind).InTodaysBrowsers;
    if (sentence.empty() || RunsByItself(payload.Effect))
        return;
    AddLine(lines, Join({sentence, u"  The page script is not in"}),
            PagesWithoutScript(payload, pages));
    const bool hasCopiedScript =
        std::ranges::find(report.PartsCopied(), Text(pageScriptPart)) != report.PartsCopied().end();
    if (lines.empty() && report.HasCopiedCode() && !hasCopiedScript)
        lines.push_back(Join({sentence, u"  You did not copy its lines."}));
}

} // namespace

std::optional<bool> HoldsEffect(const FileStore& files, TextView page,
                                const FinishedPayload& payload)
{
    return LookAt(Text(page), payload, files, {}).HoldsEffect;
}

std::vector<DeliveredPage> LookAtPages(const DeliveryReport& report, const FinishedPayload& payload,
                                       const FileStore& files)
{
    const std::vector<Text> names = FilesOf(payload);
    std::vector<DeliveredPage> pages;
    for (const Text& path : report.Pages())
        pages.push_back(LookAt(path, payload, files, names));
    for (const Text& path : report.PublishedPages()) {
        pages.push_back(LookAt(path, payload, files, names));
        pages.back().IsPublished = true;
    }
    if (!pages.empty() || !report.HasCopiedCode())
        return pages;
    DeliveredPage& own = pages.emplace_back();
    for (const Text& name : names)
        own.Files.push_back({name});
    return pages;
}

std::vector<Text> PagesWithoutScript(const FinishedPayload& payload,
                                     const std::vector<DeliveredPage>& pages)
{
    std::vector<Text> paths;
    if (RunsByItself(payload.Effect))
        return paths;
    for (const DeliveredPage& page : pages)
        if (!page.IsPublished && page.HoldsEffect.value_or(false) && !page.HasPageScript)
            paths.push_back(page.Path);
    return paths;
}

std::vector<Text> ReportLines(const DeliveryReport& report, const FinishedPayload& payload,
                              const std::vector<DeliveredPage>& pages)
{
    std::vector<Text> lines;
    AddScriptLine(lines, report, payload, pages);
    if (report.Folder().empty() && report.PartsCopied().empty())
        lines.emplace_back(u"Nothing was delivered: no Web page was written, no HTML code was "
                           u"copied and no file was published.");
    AddLine(lines, u"HTML code copied for you to paste", report.PartsCopied());
    AddLine(lines, u"Earlier version brought back", report.PagesBroughtBack());
    AddPages(lines, u"Web page with the special effect in ", pages,
             [](const DeliveredPage& page) { return page.HoldsEffect.value_or(false); });
    AddPages(lines, u"No longer with the special effect in ", pages, [](const DeliveredPage& page) {
        return !page.IsPublished && !page.HoldsEffect.value_or(true);
    });
    if (const TextView words = RowOf(payload.Effect.Kind).OtherPages;
        !words.empty() && report.HasDelivered())
        lines.emplace_back(words);
    return lines;
}

} // namespace orvane
