#include "core/catalogue.h"
#include "core/utf8.h"
#include "insertion/page_encoding.h"
#include "insertion/page_script.h"
#include "tests/support/expect_text.h"
#include "tests/tour/program.h"
#include "tests/tour/visitor.h"
#include "windows/qt_text.h"

#include <QDir>

#include <fstream>
#include <iterator>
#include <regex>

namespace orvane::testing {

namespace {

std::string BytesOf(const QString& path)
{
    std::ifstream file(path.toStdString(), std::ios::binary);
    EXPECT_TRUE(file) << path.toStdString();
    return std::string(std::istreambuf_iterator<char>(file), {});
}

/// The text that a tour's page must hold; of a table, the row with that key.
std::string TextOf(const Expectation& expected)
{
    std::string text = ExpectedBytes(expected.File);
    if (expected.Key.empty())
        return text;
    const std::string key = std::regex_replace(expected.Key, std::regex("\\|"), "\t") + "\t";
    const std::size_t row = ("\n" + text).find("\n" + key);
    EXPECT_NE(row, std::string::npos) << expected.Key;
    text = text.substr(row + key.size(), text.find('\n', row) - row - key.size());
    return std::regex_replace(text, std::regex("\t"), "\r\n");
}

/// Takes what the effect put into the author's page out again, with the character that it doubles.
std::string Without(std::string page, const FinishedPayload& payload)
{
    for (const Text& part : {payload.Effect.HEADHTML, payload.Effect.BODYHTML}) {
        const std::string block = "\r\n" + ToUtf8(part) + "\r\n";
        const std::size_t place = part.empty() ? 0 : page.find(block);
        EXPECT_NE(place, std::string::npos) << "the generated text is not in the page";
        if (place != 0 && place != std::string::npos)
            page.erase(place - 1, block.size() + 1);
    }
    const EffectPayload& effect = payload.Effect;
    for (const auto& [word, call] :
         {std::pair("onload", ToUtf8(effect.OnLoadFunc + effect.OnLoadArgs)),
          std::pair("onunload", ToUtf8(effect.OnUnloadFunc + effect.OnUnloadArgs))}) {
        const std::string attribute = " " + std::string(word) + "=\"" + call + "\" ";
        if (const std::size_t place = page.find(attribute); place != std::string::npos)
            page.erase(place, attribute.size());
    }
    return page;
}

} // namespace

/// A tour through real windows, with real files, a real disk and the real browser engine.
class TourTest : public ::testing::TestWithParam<Tour>
{
protected:
    QString Folder(const QString& kind) const
    {
        return tourFolder + u'/' + QString::fromStdString(GetParam().Name) + u'/' + kind;
    }

    /// Leads the author to a page in a fresh folder; gives the effect that it holds.
    FinishedPayload Deliver(const std::string& kind)
    {
        const QString folder = Folder(QString::fromStdString(kind));
        QDir().mkpath(folder);
        if (kind == "existing")
            QFile::copy(QStringLiteral(ORVANE_TOUR_SOURCES "/page.html"),
                        folder + QStringLiteral("/page.html"));
        std::vector<Step> steps = GetParam().Steps;
        const std::vector<Step>& delivery = DeliveryOf(kind).Steps;
        steps.insert(steps.end(), delivery.begin(), delivery.end());
        Settings& settings = program->Whole.Bench.Settings;
        settings.Put(settingKeys::webPageEditor, u"Other");
        // The pictures of the windows are for the help.
        settings.Put(settingKeys::previewFolded, u"1");
        settings.Put(settingKeys::runsToday, kind == "new" ? u"1" : u"0");
        program->Guide->Lead(GetParam().Name, steps, {samplesFolder, folder, picturesFolder});
        ExpectSaid({QStringLiteral("All files have been copied to the ")});
        return Finish(program->Previewed);
    }

    void ExpectSaid(const std::vector<QString>& expected)
    {
        const std::vector<Text> said = program->Dialogs.TakeSaid();
        EXPECT_EQ(said.size(), expected.size());
        for (std::size_t i = 0; i < std::min(said.size(), expected.size()); ++i)
            EXPECT_TRUE(ToQt(said[i]).startsWith(expected[i])) << ToUtf8(said[i]);
    }

    /// The page holds what the effect must give, all its files lie beside it, and no script fails.
    void ExpectWholePage(const QString& kind, const FinishedPayload& payload)
    {
        const QString path = Folder(kind) + QStringLiteral("/page.html");
        const std::string page = BytesOf(path);
        const PageEncoding encoding = EncodingOf(page);
        std::set<std::string> unseen;
        for (const Expectation& text : GetParam().Texts)
            unseen.insert(EncodeForPage(FromUtf8(TextOf(text)), encoding));
        const std::size_t begin = payload.BeginMarker.size() + lineEnd.size();
        for (const std::string& part : {EncodeForPage(payload.Effect.HEADHTML, encoding),
                                        EncodeForPage(payload.Effect.BODYHTML, encoding)}) {
            EXPECT_NE(page.find(part), std::string::npos) << part;
            if (part.empty() || GetParam().Texts.empty())
                continue;
            // A row of a table has no line end of its own.
            const std::string code =
                part.substr(begin, part.size() - begin - payload.EndMarker.size());
            EXPECT_TRUE(unseen.erase(code) != 0 ||
                        unseen.erase(code.substr(0, code.size() - lineEnd.size())) != 0)
                << code;
        }
        EXPECT_TRUE(unseen.empty()) << *unseen.begin();
        for (const Expectation& expected : GetParam().Files) {
            const std::string file =
                BytesOf(Folder(kind) + u'/' + QString::fromStdString(expected.Key));
            if (!expected.File.empty())
                ExpectSameBytes(ExpectedBytes(expected.File), file);
        }
        const Visit visit = VisitPage(path);
        std::set<std::string> missing = visit.MissingFiles;
        for (const std::string& name : FilesNamedIn(page))
            if (!QFile::exists(Folder(kind) + u'/' + QString::fromStdString(name)))
                missing.insert(name);
        EXPECT_EQ(missing, GetParam().Missing);
        EXPECT_EQ(visit.Errors, std::vector<std::string>());
        visit.Picture.save(picturesFolder + u'/' + QString::fromStdString(GetParam().Name) +
                           QStringLiteral("_page_") + kind + QStringLiteral(".png"));
    }
};

TEST_P(TourTest, LeavesPagesThatAreWhole)
{
    QDir(tourFolder + u'/' + QString::fromStdString(GetParam().Name)).removeRecursively();
    if (!GetParam().EndsInPages()) {
        QDir().mkpath(Folder({}));
        program->Whole.Bench.Settings.Put(settingKeys::webPageEditor, u"");
        program->Guide->Lead(GetParam().Name, GetParam().Steps,
                             {samplesFolder, Folder({}), picturesFolder});
        return ExpectSaid(GetParam().Says);
    }
    const FinishedPayload created = Deliver("new");
    ExpectWholePage(QStringLiteral("new"), created);
    const bool gains = !RunsByItself(created.Effect);
    EXPECT_EQ(HasPageScript(BytesOf(Folder(QStringLiteral("new/page.html")))), gains);
    EXPECT_EQ(QFile::exists(Folder(QStringLiteral("new/orvane.js"))), gains);
    const FinishedPayload inserted = Deliver("existing");
    ExpectWholePage(QStringLiteral("existing"), inserted);
    const std::string before = BytesOf(QStringLiteral(ORVANE_TOUR_SOURCES "/page.html"));
    ExpectSameBytes(before,
                    Without(BytesOf(Folder(QStringLiteral("existing/page.html"))), inserted));
    ExpectSameBytes(before, BytesOf(Folder(QStringLiteral("existing/Backup of page.html"))));
}

INSTANTIATE_TEST_SUITE_P(All, TourTest, ::testing::ValuesIn(Tours()),
                         [](const auto& tour) { return tour.param.Name; });

} // namespace orvane::testing
