#include "effects/text/text_transitions.h"

#include <utility>

namespace orvane {

namespace {

bool AreOfImages(const TextTransitions& transitions)
{
    return transitions.TransitionsImageMode == TransitionsOf::Images;
}

} // namespace

std::array<TextTransitions, 2> TextTransitions::Faces()
{
    return {TextTransitions(), {.TransitionsImageMode = TransitionsOf::Images}};
}

TextView BlockKindOf(const TextTransitions& transitions)
{
    return AreOfImages(transitions) ? TextTransitions::ImageBlock : TextTransitions::Block;
}

BlockContent ContentOf(const TextTransitions& transitions)
{
    if (AreOfImages(transitions))
        return transitions.lstPictures;
    return transitions.lstMessages;
}

void TakeContent(TextTransitions& transitions, BlockContent content)
{
    if (AreOfImages(transitions))
        transitions.lstPictures = std::get<BlockPictures>(std::move(content));
    else
        transitions.lstMessages = std::get<BlockRows>(std::move(content));
}

Look LookOf(const TextTransitions& transitions)
{
    Look look;
    for (const ControlName ofTexts :
         {"panMessages", "cboFont", "cboFontSize", "cboFontStyle", "cmdTextColor"})
        look.push_back({.Control = ofTexts, .IsShown = !AreOfImages(transitions)});
    for (const ControlName ofImages : {"panPictures", "txtWidth", "txtHeight", "cboFit"})
        look.push_back({.Control = ofImages, .IsShown = AreOfImages(transitions)});
    return look;
}

std::optional<Complaint> CheckPage(const TextTransitions& transitions, int page)
{
    if (page != 0)
        return CheckNumbers(transitions, page);
    return AreOfImages(transitions) ? CheckPictures(transitions.lstPictures, "lstPictures")
                                    : CheckRows(transitions.lstMessages, "lstMessages");
}

void Tidy(TextTransitions& transitions)
{
    TidyBlock(transitions);
    if (AreOfImages(transitions)) {
        transitions.lstMessages.clear();
        transitions.Look = {};
    } else {
        transitions.lstPictures.clear();
        transitions.Size = {};
    }
}

} // namespace orvane
