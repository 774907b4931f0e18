#include "insertion/page_files.h"

#include "tests/support/doubles.h"
#include "tests/support/expect_text.h"

namespace orvane::testing {
namespace {

/// The names in the code, each followed by a bar.
Text NamesIn(std::string_view code, PageEncoding encoding = PageEncoding::Utf8)
{
    Text names;
    for (const Text& name : NamesInCode(code, encoding))
        names += name + u"|";
    return names;
}

TEST(PageFilesTest, NamesWhatEachEffectAsksForBesideItsPage)
{
    const std::pair<const char*, TextView> effects[] = {
        {"advanced_animator_full.html", u"Animate1.class|a.gif|b.gif|c.gif|ding.au|"},
        {"image_effects_ripple.html", u"ripple.class|pond.jpg|"},
        {"typewriter_full.html", u"Typewriter9.class|paper.gif|"},
        {"typewriter_file.html", u"Typewriter9.class|my words.txt|"},
        {"dynamic_button_full.html", u"up.gif|over.gif|hover.wav|down.gif|click.wav|"},
        {"slideshow_full_body.html", u"a.jpg|"},
        {"slideshow_full_head.html", u"a.jpg|b.gif|c.jpg|"},
        {"cursor_trail.html", u"star.gif|"},
        {"pulldown_all_items.html", u"news.html|"},
        {"password_gate_many_head.html", u""},
        {"translate_box.html", u"GoogleLogo.gif|"},
    };
    for (const auto& [file, names] : effects)
        EXPECT_EQ(NamesIn(ExpectedBytes(file)), names) << file;
}

TEST(PageFilesTest, ReadsNamesAsABrowserDoes)
{
    const std::pair<const char*, TextView> codes[] = {
        {"<body  onLoad=\"window.open('bye.html', 'bye', 'width=2')\" >", u"bye.html|"},
        {"<a href='#' onClick=\"playSound(&#39;a&quot;b.wav&#39;)\"><IMG SRC=\"x.gif\"border=0>",
         u"a\"b.wav|x.gif|"},
        {"<a href='LinkToLocation.html' onclick='LinkToLocation(\"n.html?x#y\")'>",
         u"LinkToLocation.html|n.html|"},
        {"<img src='my%20cat.gif'><img src='50%.gif'><img src='img\\a&amp;b&#8364;.gif'>",
         u"my cat.gif|50%.gif|img/a&b\u20AC.gif|"},
        {"<script>t[0] = '<a href=\\'it\\u20ACs.html\\'>x.gif</a>';\nx = 'b.gif';\n"
         "window.location = \"c.html\" ; window.location = 'd/' + e;\n// don't\ni.src='f.gif'",
         u"it\u20ACs.html|c.html|f.gif|"},
        {"<!-- <img src=a.gif> --><!--x--><title><img src=b.gif></title>c.gif", u""},
        {"<img src=''><img src=' a.gif '><a href='news/'>", u"a.gif|news/|"},
        {"<img src='//h/a.gif'><img src='/a.gif'><img src='C:\\a.gif'><a href='#top'>"
         "<a href='mailto:a@b.org'><a href='?q'><a href=HTTP://h/a.html>",
         u""},
        {"<option value='en'><option value='a.html'><param name=TEXT value='a.gif'>"
         "<param name=IMAGE.12 value='b.gif'><param name=x value=c.gif>",
         u"a.html|b.gif|"},
    };
    for (const auto& [code, names] : codes)
        EXPECT_EQ(NamesIn(code), names) << code;
    EXPECT_EQ(NamesIn("<img src='\xE9.gif'>", PageEncoding::Windows1252), u"\u00E9.gif|");
}

TEST(PageFilesTest, LooksForFilesAndFolders)
{
    FakeFileStore disk;
    disk.Contents[u"/site/a.gif"] = "";
    disk.Folders = {u"/site/news/"};
    EXPECT_EQ(LookBesidePage(disk, u"/site/", {u"a.gif", u"A.gif", u"news/"}),
              (std::vector<PageFile>{{u"a.gif", true}, {u"A.gif", false}, {u"news/", true}}));
}

} // namespace
} // namespace orvane::testing
