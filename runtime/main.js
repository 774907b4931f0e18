/** The page script: makes Orvane's effects run in today's browsers, and leaves all else alone. */
import { addFilters, prepareFilter } from "./filters.js";
import { prepareFocus } from "./focus.js";
import { prepareLengths, prepareTooltip } from "./lengths.js";
import { prepareScroller } from "./scroller.js";
import { prepareSlideshow } from "./slideshow.js";
import { prepareSound } from "./sounds.js";
import { orvane } from "./stand_ins.js";
import { startLate, takeBodyCalls } from "./starts.js";
import { prepareTrail } from "./trail.js";
import { watch } from "./watch.js";
import { runApplets } from "./applets/applets.js";

const preparations = [
    prepareLengths,
    prepareTooltip,
    prepareFilter,
    prepareFocus,
    prepareSound,
    prepareSlideshow,
    prepareScroller,
    prepareTrail,
];

if (!("orvane" in window)) {
    Object.defineProperty(window, "orvane", { value: orvane, configurable: true });
    addFilters();
    watch((element) => preparations.forEach((prepare) => prepare(element)));
    startLate(document.currentScript?.dataset);
    document.addEventListener("DOMContentLoaded", () => (takeBodyCalls(), runApplets()));
}
