#include "core/file_names.h"
#include "delivery/manual_copy.h"
#include "delivery/required_files.h"
#include "effects/recipe.h"
#include "insertion/auto_insert.h"
#include "insertion/new_page.h"
#include "insertion/page_backups.h"
#include "insertion/page_edit.h"
#include "insertion/page_script.h"
#include "insertion/page_writing.h"
#include "program/cli.h"
#include "reedit/placing.h"
#include "reedit/remembered_fields.h"
#include "reedit/taking_out.h"
#include "tests/support/doubles.h"
#include "tests/support/fault_trials.h"

namespace orvane::testing {
namespace {

const std::string oldPage =
    "<html>\n<head><title>caf\xC3\xA9</title></head>\r\n<body bgcolor=\"red\""
    ">" +
    std::string(300, 'o') + "</body></html>\r\n";
const std::string picture(400, 'p');
const std::string secondPicture(500, 's');
const std::string appletClass(300, 'c');
const std::string pageScript = "/*! Orvane page script 1.0.0 */";
const std::string oldPicture = "what the author had under that name";

/// An effect that brings code for all places of a page, two pictures and a class file.
FinishedPayload MakePayload(const TestFolder& folder)
{
    EffectPayload effect{.Kind = EffectKind::Personalize,
                         .HEADHTML = u"<SCRIPT>function greet(name) {}</SCRIPT>\r\n",
                         .BODYHTML = u"<P>Hello</P>\r\n",
                         .OnLoadFunc = u"greet",
                         .OnLoadArgs = u"('you')"};
    effect.Required.RequiredFileNames[0] = u"a.gif";
    effect.Required.RequiredFileSources[0] = folder.TextAt("pictures/a.gif");
    effect.Required.RequiredFileNames[7] = u"b.gif";
    effect.Required.RequiredFileSources[7] = folder.TextAt("pictures/b.gif");
    effect.SupportFiles = {u"", u"Applet.class"};
    return Finish(effect);
}

/// An author who says Yes to every question.
class WillingAuthor : public FakeDialogs
{
public:
    bool Ask(TextView, TextView) override { return true; }
};

/// What a way of delivery works with.
struct Delivery
{
    const TestFolder& Folder;
    FileStore& Files;
    WillingAuthor Author = {};
    FinishedPayload Payload = MakePayload(Folder);
    Report Heard = {};
    DeliveryReport Written = {};
    Text Program = Folder.TextAt("program");

    CopyJob Job() { return {Payload, Program, Files, Author, Written}; }

    void Fail(Fault fault) { Author.Say(Words(fault), Tone::Plain); }

    void End(const Outcome<MissingFiles>& copied)
    {
        if (const Fault* fault = FaultIn(copied))
            return Fail(*fault);
        Heard.Missing = ValueIn(copied);
        Heard.IsComplete = Heard.Missing.empty();
    }
};

const char* const pageName = "page/index.html";

/// With the page script, which goes wherever the effect goes.
void InsertForToday(Delivery& delivery)
{
    delivery.Payload.WantsPageScript = true;
    const Text page = delivery.Folder.TextAt(pageName);
    const BackupsPlace place{delivery.Folder.TextAt("state/first-backups"), u"2024-05-31"};
    if (AutoInsert(delivery.Files, delivery.Author, page, delivery.Payload, place) ==
        AutoInsertion::Inserted)
        delivery.End(CopyRequiredFiles(delivery.Job(), FolderOf(page)));
}

void BringBackup(Delivery& delivery)
{
    const Text page = delivery.Folder.TextAt(pageName);
    const BackupsPlace place{delivery.Folder.TextAt("state/first-backups"), u"2024-05-31"};
    delivery.Heard.IsComplete =
        BringBack(delivery.Files, delivery.Author, page, BackupPath(page), place);
}

const std::string earlierRun = [] {
    std::string page = oldPage;
    const std::string code = "<!-- ***** Begin:Varlo Personalize special effect ***** -->x"
                             "<!-- ***** End:Varlo Personalize special effect ***** -->";
    return page.insert(page.find("</head>"), code);
}();

/// What a command makes of the page that an earlier run left.
using Edit = std::string (*)(const FinishedPayload&);

std::string TakenOut(const FinishedPayload&)
{
    return Without(earlierRun, EffectsIn(earlierRun).at(0));
}

std::string Changed(const FinishedPayload& payload)
{
    return std::get<std::string>(WithReplaced(earlierRun, EffectsIn(earlierRun).at(0), payload));
}

std::string Added(const FinishedPayload& payload)
{
    return std::get<std::string>(WithEffect(earlierRun, EndOf(earlierRun), payload));
}

template <Edit edit>
void PutEdited(Delivery& delivery)
{
    const BackupsPlace place{delivery.Folder.TextAt("state/first-backups"), u"2024-05-31"};
    delivery.Heard.IsComplete =
        PutPage(delivery.Files, delivery.Author, delivery.Folder.TextAt(pageName), place,
                earlierRun, edit(delivery.Payload));
}

const std::string recipe = "Effect: Popup Alert Box\ntxtAlertText: Plums";

AnyEffect EffectOfRecipe()
{
    return std::get<AnyEffect>(ReadRecipe(FromUtf8(recipe), {}));
}

/// By the command line.
void MakeFromRecipe(Delivery& delivery)
{
    const TestFolder& folder = delivery.Folder;
    CliWorld world{.Files = delivery.Files,
                   .Folders = {delivery.Program, {}, folder.TextAt("state")},
                   .CurrentFolder = folder.TextAt("page"),
                   .Today = u"2024-05-31",
                   .Out = [](std::string_view) {},
                   .Error =
                       [&](std::string_view words) {
                           delivery.Author.Said.push_back(
                               FromUtf8(words.substr(0, words.size() - 1)));
                       }};
    const std::vector<std::string> words = {"make", "../alert.ovr", "--into", "index.html"};
    delivery.Heard.IsComplete = RunCli(words, world) == CliExit::Success;
}

/// What that leaves: beside the page and its backups, the fields for later changes.
Contents MadeFromRecipe(const TestFolder& folder)
{
    const FinishedPayload payload = Finish(EffectOfRecipe().Generate({}));
    const auto edited = std::get<EditedPage>(EditPage(earlierRun, payload, [] { return false; }));
    Contents written{{pageName, edited.Bytes},
                     {"page/Backup of index.html", earlierRun},
                     {"state/first-backups/2024-05-31" + folder.At(pageName), earlierRun}};
    FakeFileStore state;
    RememberFields(state, u"state", payload, EffectOfRecipe().Draft());
    for (const auto& [path, bytes] : state.Contents)
        written[ToUtf8(path)] = bytes;
    return written;
}

void SaveNewPage(Delivery& delivery)
{
    const Text page = delivery.Folder.TextAt(pageName);
    const Done saved = SaveHTMLtoFile(delivery.Files, page, delivery.Payload);
    if (const Fault* fault = FaultIn(saved))
        return delivery.Fail(*fault);
    delivery.End(CopyRequiredFiles(delivery.Job(), FolderOf(page)));
}

void PublishFiles(Delivery& delivery)
{
    delivery.End(Publish(delivery.Job(), delivery.Folder.TextAt("page")));
}

void BringToPreview(Delivery& delivery)
{
    delivery.End(CopyRequiredFilesForPreview(delivery.Job()));
}

void CopyByHand(Delivery& delivery)
{
    MissingFiles missing = {u"a.gif", u"b.gif"};
    ManualCopy(delivery.Job(), delivery.Folder.TextAt("pictures"), delivery.Folder.TextAt("page"),
               {u"a.gif", u"b.gif"}, missing);
    delivery.End(missing);
}

const Contents copies = {
    {"page/a.gif", picture}, {"page/b.gif", secondPicture}, {"page/Applet.class", appletClass}};

Contents WithCopies(Contents written)
{
    written.insert(copies.begin(), copies.end());
    return written;
}

/// What an insertion leaves: the page, its backup and its first backup, and the copies; an earlier
/// version of the page script lay beside the page.
Contents Inserted(const TestFolder& folder)
{
    const auto edited =
        std::get<EditedPage>(EditPage(earlierRun, MakePayload(folder), [] { return true; }));
    EXPECT_NE(edited.Bytes, earlierRun);
    return WithCopies(
        {{pageName, WithPageScript(edited.Bytes)},
         {"page/orvane.js", pageScript},
         {"page/Backup of index.html", earlierRun},
         {"state/first-backups/2024-05-31" + folder.At("page/index.html"), earlierRun}});
}

/// What bringing back the backup beside the page leaves: the page as it was is kept.
Contents BroughtBack(const TestFolder& folder)
{
    return {{pageName, oldPage},
            {"state/first-backups/2024-05-31 3" + folder.At(pageName), earlierRun}};
}

auto NewPageAs(std::string name)
{
    return [=](const TestFolder& folder) {
        return WithCopies({{name, NewPageBytes(MakePayload(folder))}});
    };
}

void PutOldPage(const TestFolder& folder)
{
    folder.Put(pageName, oldPage, 0640);
}

void PutPageOfEarlierRun(const TestFolder& folder)
{
    folder.Put(pageName, earlierRun, 0640);
    folder.Put("page/Backup of index.html", "an earlier backup");
}

auto EditedBy(Edit edit)
{
    return [=](const TestFolder& folder) {
        return Contents{{pageName, edit(MakePayload(folder))},
                        {"page/Backup of index.html", earlierRun},
                        {"state/first-backups/2024-05-31" + folder.At(pageName), earlierRun}};
    };
}

/// Runs one of the deliveries above over prepared files.
WritingWay Way(const char* name, void (*prepare)(const TestFolder&), void (*run)(Delivery&),
               std::function<Contents(const TestFolder&)> written,
               const char* backup = "page/Backup of index.html")
{
    return {.Name = name,
            .Prepare =
                [=](const TestFolder& folder) {
                    for (const char* made : {"pictures", "program", "state"})
                        folder.MakeFolder(made);
                    folder.Put("page/b.gif", oldPicture);
                    folder.Put("pictures/a.gif", picture);
                    folder.Put("pictures/b.gif", secondPicture);
                    folder.Put("program/Applet.class", appletClass);
                    prepare(folder);
                },
            .Run =
                [=](FileStore& files, const TestFolder& folder) {
                    Delivery delivery{.Folder = folder, .Files = files};
                    run(delivery);
                    delivery.Heard.Said = delivery.Author.Said;
                    return delivery.Heard;
                },
            .Written = std::move(written),
            .Backup = backup};
}

const WritingWay ways[] = {
    Way(
        "InsertForToday",
        [](const TestFolder& f) {
            f.Put(pageName, earlierRun, 0640);
            f.Put("page/Backup of index.html", "an earlier backup");
            f.Put("page/orvane.js", "/*! Orvane page script 0.9 */");
            f.Put("program/orvane.js", pageScript);
        },
        InsertForToday, Inserted),
    Way(
        "BringBack",
        [](const TestFolder& f) {
            f.Put(pageName, earlierRun, 0640);
            f.Put("page/Backup of index.html", oldPage, 0640);
            f.MakeFolder("state/first-backups");
            f.MakeFolder("state/first-backups/2024-05-31 2");
        },
        BringBackup, BroughtBack, "state/first-backups/2024-05-31 3/"),
    Way(
        "BringBackWhatIsGone",
        [](const TestFolder& f) { f.Put("page/Backup of index.html", oldPage, 0640); }, BringBackup,
        [](const TestFolder&) {
            return Contents{{pageName, oldPage}};
        }),
    Way("TakeEffectOut", PutPageOfEarlierRun, PutEdited<TakenOut>, EditedBy(TakenOut)),
    Way("ChangeEffect", PutPageOfEarlierRun, PutEdited<Changed>, EditedBy(Changed)),
    Way("AddEffect", PutPageOfEarlierRun, PutEdited<Added>, EditedBy(Added)),
    Way(
        "MakeFromRecipe",
        [](const TestFolder& f) {
            f.Put(pageName, earlierRun, 0640);
            f.Put("page/Backup of index.html", "an earlier backup");
            f.Put("alert.ovr", recipe);
        },
        MakeFromRecipe, MadeFromRecipe),
    Way("NewPageOverOld", PutOldPage, SaveNewPage, NewPageAs(pageName)),
    Way(
        "PublishAgain", [](const TestFolder& f) { f.Put("page/ovtemp.html", "an earlier effect"); },
        PublishFiles, NewPageAs("page/ovtemp.html")),
    Way("Preview", PutOldPage, BringToPreview,
        [](const TestFolder&) {
            return Contents{{"program/a.gif", picture}, {"program/b.gif", secondPicture}};
        }),
    Way("CopyByHand", PutOldPage, CopyByHand,
        [](const TestFolder&) {
            return Contents{{"page/a.gif", picture}, {"page/b.gif", secondPicture}};
        }),
};

class DeliveryFaultsTest : public ::testing::TestWithParam<WritingWay>
{
};

TEST_P(DeliveryFaultsTest, LeavesEveryFileOldOrNewAndTellsWhateverGoesWrongAtAnyCall)
{
    const int trials = FaultTrials(GetParam()).PlayAll();
    RecordProperty("trials", trials);
    EXPECT_GT(trials, 200);
}

INSTANTIATE_TEST_SUITE_P(Ways, DeliveryFaultsTest, ::testing::ValuesIn(ways),
                         [](const auto& way) { return way.param.Name; });

} // namespace
} // namespace orvane::testing
