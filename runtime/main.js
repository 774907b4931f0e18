/** The page script: makes Orvane's effects run in today's browsers, and leaves all else alone. */
import { prepareFilter } from "./filters.js";
import { prepareFocus } from "./focus.js";
import { prepareLengths, prepareTooltip } from "./lengths.js";
import { prepareScroller } from "./scroller.js";
import { prepareSlideshow } from "./slideshow.js";
import { prepareSound } from "./sounds.js";
import { orvane } from "./stand_ins.js";
import { startLate, takeBodyCalls } from "./starts.js";
import { isOff, watch, watchLater } from "./watch.js";
import { runApplet } from "./applets/applets.js";

const preparations = [
    prepareLengths,
    prepareTooltip,
    prepareFilter,
    prepareFocus,
    prepareSound,
    prepareSlideshow,
    prepareScroller,
];

/** Prepares an element of Orvane's. @param {HTMLElement} element */
const prepare = (element) => preparations.forEach((one) => one(element));

/** Marks a document that has its page script. */
const mark = Symbol.for("orvane");
const page = /** @type {any} */ (document);

if (!page[mark] && !isOff(document.documentElement)) {
    Object.defineProperty(page, mark, { value: true });
    const tag = document.currentScript ?? document.querySelector("script[src$='orvane.js']");
    const finish = watch(orvane, prepare);
    startLate(/** @type {HTMLElement | null} */ (tag)?.dataset);
    const read = () => {
        finish();
        takeBodyCalls();
        for (const applet of document.querySelectorAll("applet"))
            runApplet(/** @type {HTMLElement} */ (applet));
        watchLater(runApplet);
    };
    if (document.readyState === "loading") document.addEventListener("DOMContentLoaded", read);
    else read();
}
