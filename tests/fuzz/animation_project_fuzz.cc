#include "effects/applet/animation_project.h"
#include "tests/fuzz/fuzz_input.h"

#include <algorithm>

namespace orvane::testing {

namespace {

bool HoldsAQuote(const AdvancedAnimator& animator)
{
    const auto has = [](const Text& text) { return text.find(u'"') != Text::npos; };
    return has(animator.AnimationWidth) || has(animator.AnimationHeight) ||
           has(animator.BackgroundColor) || has(animator.LoopCount) ||
           std::any_of(animator.Rows.begin(), animator.Rows.end(), [&](const ImageRow& row) {
               return has(row.FileName) || has(row.Pause) || has(row.Sound) ||
                      has(row.Transition) || has(row.URL);
           });
}

/// The animation as it comes back from a project file: with the words for empty texts.
AdvancedAnimator ComingBack(AdvancedAnimator animator)
{
    const auto fill = [](Text& text, TextView word) {
        if (text.empty())
            text = word;
    };
    fill(animator.LoopCount, u"0 - Infinite");
    Text before;
    for (std::size_t i = 0; i < std::min<std::size_t>(31, animator.Rows.size()); ++i) {
        ImageRow& row = animator.Rows[i];
        fill(row.Pause, u"100");
        fill(row.Sound, u"null");
        fill(row.URL, u"null");
        fill(row.Transition, u"null");
        if (row.Transition == u"Random")
            row.Transition = before;
        before = row.Transition;
    }
    return animator;
}

void Check(std::string_view bytes)
{
    const AdvancedAnimator read = ReadProject(bytes);
    Require(!read.Rows.empty(), "any bytes are a project of at least one row");
    const auto filled = std::min<std::ptrdiff_t>(31, std::ssize(read.Rows));
    Require(std::all_of(read.Rows.begin() + filled, read.Rows.end(),
                        [](const ImageRow& row) { return row == ImageRow(); }),
            "no more than 31 rows are filled");
    // A quote is not escaped and ends its text.
    if (!HoldsAQuote(read))
        Require(ReadProject(ProjectBytes(read)) == ComingBack(read), "what is written comes back");
}

} // namespace

} // namespace orvane::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    orvane::testing::Check({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
