/** The slideshow: its buttons, a pause button, and a least time between slides against flashing. */
import { calm, pauseButton, placeOver, shortestFlash } from "./calm.js";
import { go, onInterval, shortest, stop } from "./timers.js";

const turn = "doTrans";

shortest.set(turn, 2 * shortestFlash);

/** Puts a button over the picture while slides change by themselves. @param {Element} picture */
function addPause(picture) {
    /** @type {ReturnType<typeof placeOver> | null} */
    let place = null;
    if (calm()) stop(turn);
    let moves = !calm();
    onInterval.set(turn, (runs) => {
        if (runs && !place) {
            place = placeOver(picture);
            place.inside.append(
                pauseButton("the slideshow", moves, (on) => ((moves = on) ? go : stop)(turn)),
            );
        } else if (!runs) {
            place?.remove();
            place = null;
        }
    });
}

/**
 * Prepares the picture and the buttons.
 * @param {HTMLElement} element
 */
export function prepareSlideshow(element) {
    if (element.id === "oImg") addPause(element);
    if (!(element instanceof HTMLButtonElement) || !/^btn(Prev|Play|Next)$/.test(element.id))
        return;
    element.type = "button";
    if (element.id === "btnPlay") element.addEventListener("click", () => go(turn));
    // Run with the stand-ins, so that its timers are those that the pause button can stop.
    element.setAttribute("onclick", `with(orvane){${element.getAttribute("onclick")}}`);
}
