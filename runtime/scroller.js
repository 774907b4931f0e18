/** The vertical scroller: a pause button, and a first message that stands still without motion. */
import { now } from "./platform.js";
import { calm, pauseButton, placeOver } from "./calm.js";
import { afterStart } from "./starts.js";
import { go, restUnseen, stop } from "./timers.js";

const step = "moveSpan";

/** What is known of an element's height, and since when. @type {WeakMap<Element, number[]>} */
const heights = new WeakMap();

/**
 * The height of an element, at most half a second old: old scripts ask at each step, and the
 * browser would lay out the page each time.
 * @param {HTMLElement} element
 */
export function heightOf(element) {
    const t = now();
    let [height, since] = heights.get(element) ?? [0, -Infinity];
    if (t - since > 500) heights.set(element, [(height = element.offsetHeight), t]);
    return height;
}

/**
 * Prepares the element in which the text moves.
 * @param {HTMLElement} element
 */
export function prepareScroller(element) {
    if (element.id !== "divContainer") return;
    if (calm()) stop(step);
    restUnseen(step, element);
    afterStart(() => {
        const moving = document.getElementById("spnOne");
        if (calm() && moving) moving.style.top = "0px";
        placeOver(element).inside.append(
            pauseButton("the scrolling text", !calm(), (on) => (on ? go : stop)(step)),
        );
    });
}
