#pragma once

#include "core/complaint.h"
#include "core/look.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Day Calendar window; the defaults are those of a fresh window.
struct DayCalendar
{
    static constexpr std::array Kinds = {EffectKind::DayCalendar};
    static constexpr TextView Block = u"calendar-1";
    static constexpr std::array<ControlName, 2> PageStarts = {"cboLook", "cmdHeadColor"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array ColorPairs = {ColorPair{"cmdHeadTextColor", "cmdHeadColor"},
                                              ColorPair{"cmdTextColor", "cmdPaperColor"}};
    static constexpr std::array<TextView, 2> Looks = {u"leaf", u"plain"};

    Text cboLook = u"leaf"; ///< one of Looks
    Text cboLanguage;       ///< such as "de"; "visitor"; empty: the page's
    Text cboTimeZone;       ///< such as "Europe/Rome"; empty: the visitor's
    bool chkMonth = true;
    bool chkWeekday = true;
    bool chkDay = true;
    bool chkYear = true;
    Text HeadColor = u"#a02020";
    Text HeadTextColor = u"#ffffff";
    Text PaperColor = u"#ffffff";
    TextLook Look{.TextColor = u"#202020"};
    Text txtCorners = u"6"; ///< their radius in pixels, as typed
    BlockAttributes Others;
    bool operator==(const DayCalendar&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<DayCalendar> Calendar, class Field>
void ForEachField(Calendar& calendar, Field&& field)
{
    field(ChoiceField("cboLook", DayCalendar::Looks), calendar.cboLook);
    field("cboLanguage", calendar.cboLanguage);
    field("cboTimeZone", calendar.cboTimeZone);
    field("chkMonth", calendar.chkMonth);
    field("chkWeekday", calendar.chkWeekday);
    field("chkDay", calendar.chkDay);
    field("chkYear", calendar.chkYear);
    field(ColorField("cmdHeadColor"), calendar.HeadColor);
    field(ColorField("cmdHeadTextColor"), calendar.HeadTextColor);
    field(ColorField("cmdPaperColor"), calendar.PaperColor);
    ForEachField(calendar.Look, field);
    field(NumberField("txtCorners", 0, 100), calendar.txtCorners);
    field(Secret("Others"), calendar.Others);
}

/// The day, which the page's script writes.
BlockContent ContentOf(const DayCalendar& calendar);

/// The colours and corners of a leaf are enabled for one.
Look LookOf(const DayCalendar& calendar);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const DayCalendar& calendar, int page);

} // namespace orvane
