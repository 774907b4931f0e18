/** Page Transitions: how a page comes in place of the one before it. */
import { coverPath, orderOf } from "../../cover_path.js";
import { fields, on } from "../start.js";

/** How many pictures of a transition there are. */
const steps = 40;

/**
 * The clip paths of what a transition covers, or else of what it uncovers.
 * @param {string} how a number of the 24
 * @param {boolean} covers
 */
function paths(how, covers) {
    const kind = Number(how) < 23 ? Number(how) : Math.floor(Math.random() * 23);
    const order = orderOf(kind);
    const all = `M0 0H${innerWidth}V${innerHeight}H0Z`;
    return Array.from({ length: steps + 1 }, (_, i) => {
        const path = coverPath(kind, i / steps, order, innerWidth, innerHeight);
        return `path(evenodd,"${path}${covers ? "" : all}")`;
    });
}

/** The cover of a page that comes, in browsers without page transitions. */
const coverCss =
    "@media screen{html::before{content:'';position:fixed;top:0;left:0;width:100%;height:100%;" +
    "z-index:2147483647;pointer-events:none}}";

for (const style of document.querySelectorAll('[data-orvane="transitions-1"]')) {
    const { arrival, leaving, seconds, elsewhere, coverColor } = fields(
        /** @type {HTMLElement} */ (style),
        { arrival: "3", leaving: "none", seconds: [0.8, 0.2, 3], elsewhere: true, coverColor: "#ffffff" },
    );
    const duration = seconds * 1000;
    const { documentElement } = document;
    /** @param {string} part @param {PropertyIndexedKeyframes} frames @param {number} [delay] */
    const move = (part, frames, delay) =>
        documentElement.animate(frames, { duration, delay, fill: "both", pseudoElement: "::" + part });

    // The pictures of both pages belong to the one that comes.
    on(window, "pagereveal", ({ viewTransition }) =>
        viewTransition?.ready.then(() => {
            const goes = leaving !== "none";
            if (goes)
                move("view-transition-old(root)", { clipPath: paths(leaving, true), zIndex: [1, 1] });
            if (arrival !== "none")
                move(
                    "view-transition-new(root)",
                    { clipPath: paths(arrival, false) },
                    goes ? duration : 0,
                );
        }, () => {}),
    );

    const reduced = matchMedia("(prefers-reduced-motion:reduce)").matches;
    if ("onpagereveal" in window || !elsewhere || arrival === "none" || reduced) continue;
    const sheet = new CSSStyleSheet();
    sheet.replaceSync(coverCss);
    const [{ cssRules }] = /** @type {any} */ (sheet.cssRules);
    cssRules[0].style.background = coverColor;
    document.adoptedStyleSheets = [...document.adoptedStyleSheets, sheet];
    move("before", { clipPath: paths(arrival, true) }).onfinish = () => {
        document.adoptedStyleSheets = document.adoptedStyleSheets.filter((one) => one !== sheet);
    };
}
