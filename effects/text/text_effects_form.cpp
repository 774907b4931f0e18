#include "effects/text/text_effects_form.h"

#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Text Effects";

constexpr ChoiceItem effects[] = {{u"grow", u"Grow"},
                                  {u"shrink", u"Shrink: grow backwards"},
                                  {u"wide", u"Stretch sideways"},
                                  {u"high", u"Stretch upwards"},
                                  {u"pulse", u"Pulse: grow and shrink"}};

constexpr ChoiceItem starts[] = {{u"seen", u"When the visitor sees the text"},
                                 {u"hover", u"When the mouse comes over it"}};

} // namespace

TextEffectsForm::TextEffectsForm(Workbench& bench, QWidget* parent)
    : EffectForm("TextEffects", bench, parent)
{
    PageBuilder growth = AddPage({heading, u"Enter the text, and choose how it grows, shrinks or "
                                           u"stretches."});
    growth.MultiLineBox("txtText", u"&Text:", u"The text that changes its size");
    growth.ChoiceBox("cboEffect", u"&Effect:", effects);
    growth.NumberBox("txtFrom", u"&From:", u"100 is its own size", u"percent of its size");
    growth.NumberBox("txtTo", u"T&o:", u"100 is its own size", u"percent of its size");
    growth.NumberBox("txtSeconds", u"It t&akes:", {}, u"seconds");
    AddTimes(growth);
    growth.ChoiceBox("cboStart", u"&Begin:", starts);
    growth.Fill();

    PageBuilder look = AddPage({heading, u"Choose what the text looks like."});
    AddTextLook(look);
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
