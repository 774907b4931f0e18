#include "delivery/delivery_panel.h"

#include "delivery/editor_panel.h"
#include "delivery/ftp_panel.h"
#include "delivery/insert_panel.h"
#include "delivery/method_panel.h"

#include <utility>

namespace orvane {

namespace {

std::array<CodePanel*, 3> MakeCodePanels(Workbench& bench, const CopyJob& job)
{
    const FinishedPayload& payload = job.Payload;
    const CodePanel::Words head{"lblNeedHelp(0)", "txtHEADHTML", "cmdCopyHEADHTML", u"HEAD", {}};
    const CodePanel::Words body{"lblNeedHelp(1)", "txtBODYHTML", "cmdcopyBODYHTML", u"BODY", {}};
    const CodePanel::Words attribute{"lblNeedHelp(2)", "txtBODYAttribute", "cmdCopyBODYAttrib",
                                     u"BODY attribute",
                                     Join({u"For example:  <BODY", payload.BODYAttribute, u">"})};
    return {new CodePanel(bench, head, payload.Effect.HEADHTML, job.Report),
            new CodePanel(bench, body, payload.Effect.BODYHTML, job.Report),
            new CodePanel(bench, attribute, payload.BODYAttribute, job.Report)};
}

} // namespace

DeliveryPanels::DeliveryPanels(Workbench& bench, const CopyJob& job, MakeFolderWindow makeFolder,
                               PickedFileFinder pickedFile)
    : Editor(new EditorPanel),
      Method(new MethodPanel),
      Insert(new InsertPanel(bench, job)),
      Codes(MakeCodePanels(bench, job)),
      Publish(new PublishPanel(job, bench.Settings, std::move(makeFolder))),
      Ftp(new FtpPanel(bench.Settings)),
      Finish(new FinishPanel(bench, job, std::move(pickedFile)))
{
}

std::array<QWidget*, 9> DeliveryPanels::InOrder() const
{
    return {Editor, Method, Insert, Codes[0], Codes[1], Codes[2], Publish, Ftp, Finish};
}

void DeliveryPanels::OfferEditorHelp(const Settings& settings, bool isScripted) const
{
    /// The own topic of the three pages that show code to copy.
    constexpr int manualPagesTopic = 50;
    const EditorHelp help =
        setWebPageEditor(settings.Get(settingKeys::webPageEditor), isScripted, manualPagesTopic);
    for (CodePanel* panel : Codes)
        panel->OfferHelp(help);
}

} // namespace orvane
