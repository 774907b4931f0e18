#include "effects/applet/animation_project.h"

#include "tests/support/doubles.h"
#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

AdvancedAnimator TwoImages()
{
    return {.Rows = {{.FileName = u"a.gif", .Transition = u"slidein(3)"},
                     {.FileName = u"b.gif", .Pause = u"-1"}},
            .AnimationWidth = u"200",
            .AnimationHeight = u"100",
            .BackgroundColor = u"255,0,0"};
}

/// What comes back of TwoImages(): empty texts are written in words.
AdvancedAnimator TwoImagesRead()
{
    AdvancedAnimator read = TwoImages();
    read.Rows[0] = {u"a.gif", u"100", u"slidein(3)", u"null", u"null"};
    read.Rows[1] = {u"b.gif", u"-1", u"null", u"null", u"null"};
    return read;
}

TEST(AnimationProjectTest, WritesOneRecordAndReadsItBack)
{
    ExpectSameBytes(ExpectedBytes("animator_project_two_images.ovn"), ProjectBytes(TwoImages()));
    EXPECT_EQ(ReadProject(ExpectedBytes("animator_project_two_images.ovn")), TwoImagesRead());

    AdvancedAnimator full = ReadProject(ExpectedBytes("animator_project_full.ovn"));
    EXPECT_EQ(full.AnimationWidth, u" 320 ");
    EXPECT_EQ(full.LoopCount, u"10 times");
    EXPECT_EQ(full.Rows.at(2).Pause, u" 250 ");
    EXPECT_EQ(full.Rows.at(0).Sound, u"ding.au");
    EXPECT_EQ(full.Rows.at(0).URL, u"http://www.example.com/x.html");
    full.Rows[1] = {.FileName = u"b.gif"};
    ExpectSameBytes(ExpectedBytes("animator_project_full.ovn"), ProjectBytes(full));
}

TEST(AnimationProjectTest, WritesWordsForWhatIsEmpty)
{
    const AdvancedAnimator empty{.Rows = {{.FileName = u"a.gif"}}, .LoopCount = u""};
    ExpectSameBytes("\"\",\"\",\"NULL\",\"0 - Infinite\",\"a.gif\",\"100\",\"null\",\"null\","
                    "\"null\"\r\n",
                    ProjectBytes(empty));
    EXPECT_EQ(ReadProject(ProjectBytes(empty)).BackgroundColor, u"");
}

TEST(AnimationProjectTest, RandomWithACapitalWritesWhatTheRowBeforeWrote)
{
    AdvancedAnimator animator;
    for (const TextView transition :
         {u"Random", u"squish(2)", u"Random", u"Random", u"", u"random"})
        animator.Rows.push_back({.Transition = Text(transition)});
    const Text record = FromBytes(ProjectBytes(animator));
    EXPECT_NE(Find(record, u"\"|squish(2)|squish(2)|squish(2)|null|random\""), 0u)
        << ToUtf8(record);
}

TEST(AnimationProjectTest, KeepsEveryCharacter)
{
    AdvancedAnimator animator = TwoImagesRead();
    animator.Rows[0].FileName = u"für€.gif";
    ExpectSameBytes("\"200\",\"100\",\"255,0,0\",\"0 - Infinite\",\"f\xFCr\x80.gif|b.gif\"",
                    ProjectBytes(animator).substr(0, 53));
    EXPECT_EQ(ReadProject(ProjectBytes(animator)), animator);
    animator.Rows[0].FileName = u"für€ ☃𝄞.gif";
    EXPECT_EQ(ReadProject(ProjectBytes(animator)), animator);
}

TEST(AnimationProjectTest, ReadsWhatItCanOfAnyRecord)
{
    struct RecordCase
    {
        std::string_view Bytes;
        TextView Width, Height, Background, FirstImage;
        std::size_t Rows;
    };
    const RecordCase cases[] = {{"", u"", u"", u"", u"", 1},
                                {"1, 2 ,NULL,x,a|b", u"1", u"2 ", u"", u"a", 2},
                                {"  \"1\" junk,\"2\"x\"y\"\r\n\"3\"", u"1", u"2", u"3", u"", 1},
                                {"1\r\n2\r3\n4\n5", u"1", u"2", u"3", u"5", 1},
                                {"1\n\r2,3,4", u"1", u"", u"2", u"4", 1},
                                {"\"1,\r\n2\",3", u"1,\r\n2", u"3", u"", u"", 1},
                                {"1,\"2,3,4", u"1", u"2,3,4", u"", u"", 1},
                                {"1\"2\",3", u"1\"2\"", u"3", u"", u"", 1},
                                {"\"\",\"\",\" NULL\",,\"|\"", u"", u"", u" NULL", u"", 2},
                                {std::string_view("\0,\0\0,\xFF", 6), TextView(u"\0", 1),
                                 TextView(u"\0\0", 2), u"ÿ", u"", 1}};
    for (const RecordCase& wanted : cases) {
        SCOPED_TRACE(wanted.Bytes);
        const AdvancedAnimator read = ReadProject(wanted.Bytes);
        EXPECT_EQ(read.AnimationWidth, wanted.Width);
        EXPECT_EQ(read.AnimationHeight, wanted.Height);
        EXPECT_EQ(read.BackgroundColor, wanted.Background);
        ASSERT_EQ(read.Rows.size(), wanted.Rows);
        EXPECT_EQ(read.Rows[0].FileName, wanted.FirstImage);
    }
}

TEST(AnimationProjectTest, Of32ImagesTheLastIsAnEmptyRow)
{
    AdvancedAnimator animator = TwoImages();
    for (const std::size_t count : {31u, 32u, 40u}) {
        animator.Rows.assign(count, {u"x.gif", u"1", u"squish(2)", u"u", u"s"});
        const AdvancedAnimator read = ReadProject(ProjectBytes(animator));
        ASSERT_EQ(read.Rows.size(), count);
        EXPECT_EQ(read.Rows[30], animator.Rows[30]);
        for (std::size_t i = 31; i < count; ++i)
            EXPECT_EQ(read.Rows[i], ImageRow());
    }
}

TEST(AnimationProjectTest, AFileOfBarsDoesNotFillTheMemory)
{
    EXPECT_EQ(ReadProject(",,,," + std::string(32766, '|')).Rows.size(), 32767u);
    EXPECT_EQ(ReadProject(",,,," + std::string(100000, '|')).Rows.size(), 32767u);
}

TEST(AnimationProjectTest, NeedsAnImageAndASize)
{
    AdvancedAnimator animator;
    EXPECT_EQ(CheckProject(animator),
              (Complaint{u"You must enter an image into the Animation Image List.", ""}));
    animator.Rows.emplace_back();
    animator.AnimationWidth = u"1";
    EXPECT_EQ(CheckProject(animator),
              (Complaint{u"Please enter the animation width and height properties.", ""}));
    animator.AnimationHeight = u" ";
    EXPECT_EQ(CheckProject(animator), std::nullopt);
}

class ProjectDeskTest : public ::testing::Test
{
protected:
    FakeDialogs m_dialogs;
    FakeFileStore m_files;
};

TEST_F(ProjectDeskTest, SavesUnderTheNameAsGivenAndSaysNothingOfAFailure)
{
    m_dialogs.AnswerSaveFile(u"/p/film");
    AnimationProject project{.Animation = TwoImages()};
    EXPECT_TRUE(SaveProject(project, m_dialogs, m_files)) << "asks while there is no file";
    const std::string saved = ProjectBytes(TwoImages());
    EXPECT_EQ(m_files.Contents[u"/p/film"], saved);
    EXPECT_EQ(project, (AnimationProject{TwoImages(), u"/p/film", saved}));
    EXPECT_EQ(m_dialogs.Requests[0].Filter, u"All Files (*.*)|*.*|Orvane Animation (*.ovn)|*.ovn");
    EXPECT_EQ(m_dialogs.Requests[0].FilterIndex, 2);

    project.Animation.Rows[0].Pause = u"7";
    const AnimationProject unsaved = project;
    m_files.FailOn(u"/p/film", Fault::PermissionDenied);
    for (const std::optional<Text>& answer :
         {std::optional<Text>(u"/p/film"), std::optional<Text>()}) {
        m_dialogs.AnswerSaveFile(answer);
        EXPECT_FALSE(SaveProjectAs(project, m_dialogs, m_files));
        EXPECT_EQ(project, unsaved);
        EXPECT_TRUE(IsModified(project));
    }
    EXPECT_EQ(m_dialogs.Requests[1].FileName, u"film");
    EXPECT_EQ(m_files.Contents[u"/p/film"], saved);
    EXPECT_FALSE(SaveProject(project, m_dialogs, m_files));
    EXPECT_EQ(project, unsaved);
    project.Path = u"/p/film.ovn";
    EXPECT_TRUE(SaveProject(project, m_dialogs, m_files));
    EXPECT_EQ(m_files.Contents[project.Path], ProjectBytes(project.Animation));
    EXPECT_FALSE(IsModified(project));
    EXPECT_TRUE(m_dialogs.Said.empty());
}

TEST_F(ProjectDeskTest, OpensAProjectOrLeavesTheRowsEmpty)
{
    m_files.Contents[u"/p/film.ovn"] = ProjectBytes(TwoImages());
    const auto open = [this](const AnimationProject& project, std::optional<Text> answer) {
        m_dialogs.AnswerOpenFile(std::move(answer));
        return OpenProject(project, m_dialogs, m_files);
    };
    const AnimationProject film = open({}, u"/p/film.ovn");
    EXPECT_EQ(film.Animation, TwoImagesRead());
    EXPECT_EQ(film.Path, u"/p/film.ovn");
    EXPECT_FALSE(IsModified(film));

    AnimationProject emptied = film;
    emptied.Animation.Rows.clear();
    EXPECT_EQ(open(film, std::nullopt), emptied);
    EXPECT_EQ(open(film, u"/p/missing.ovn"), UnnamedProject(ReadProject("")));
    EXPECT_TRUE(m_dialogs.Said.empty());

    m_files.Contents[u"/p/large.ovn"] = std::string((4 << 20) + 1, '|');
    EXPECT_EQ(open(film, u"/p/large.ovn"), film);
    EXPECT_EQ(m_dialogs.Said, Texts{u"This file is larger than 4 MB, which is too "
                                    u"large for a project."});
}

} // namespace
} // namespace orvane::testing
