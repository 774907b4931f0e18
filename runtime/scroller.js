/** The vertical scroller: a pause button, and a first message that stands still without motion. */
import { calm, pauseButton, placeOver } from "./calm.js";
import { afterStart } from "./starts.js";
import { go, stop } from "./timers.js";

const step = "moveSpan";

/**
 * Prepares the element in which the text moves.
 * @param {HTMLElement} element
 */
export function prepareScroller(element) {
    if (element.id !== "divContainer") return;
    if (calm()) stop(step);
    afterStart(() => {
        const moving = document.getElementById("spnOne");
        if (calm() && moving) moving.style.top = "0px";
        const place = placeOver(element);
        place.inside.append(
            pauseButton("the scrolling text", !calm(), (on) => (on ? go : stop)(step)),
        );
    });
}
