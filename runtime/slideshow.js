/** The slideshow: its buttons, a pause button, and a least time between slides against flashing. */
import { attribute, calm, pauseButton, placeOver, say, shortestFlash } from "./calm.js";
import { go, onInterval, restUnseen, shortest, stop, timers } from "./timers.js";

const turn = "doTrans";

shortest.set(turn, 2 * shortestFlash);

/** Whether the visitor lets it run, once a button was pressed. @type {boolean | undefined} */
let wanted;

/** Puts a button over the picture while slides change by themselves. @param {Element} picture */
function addPause(picture) {
    /** @type {ReturnType<typeof placeOver> | null} */
    let place = null;
    if (calm()) stop(turn);
    restUnseen(turn, picture);
    onInterval.set(turn, (runs) => {
        if (runs && !place) {
            const moves = wanted ?? !calm();
            (moves ? go : stop)(turn);
            place = placeOver(picture);
            place.inside.append(
                pauseButton("the slideshow", moves, (on) => ((wanted = on) ? go : stop)(turn)),
            );
        } else if (!runs) {
            place?.remove();
            place = null;
        }
    });
}

const press = /^window\.clearInterval\(iTimer\);doTrans\((.*?)\)(?:;.*, (\d+)\);)?$/;

/**
 * Prepares the picture and the buttons.
 * @param {HTMLElement} element
 */
export function prepareSlideshow(element) {
    if (element.id === "oImg") addPause(element);
    const found = press.exec(attribute(element, "onclick"));
    if (!found) return;
    const [, way, pause] = found;
    const page = /** @type {any} */ (window);
    /** @type {HTMLButtonElement} */ (element).type = "button";
    // The same as its handler does, with timers that the pause button can stop.
    element.onclick = () => {
        timers.clearInterval(page.iTimer);
        page.doTrans(Number(way));
        if (pause) {
            wanted = true;
            page.iTimer = timers.setInterval("doTrans(1)", Number(pause));
        } else say(`Picture ${page.iCounter + 1} of ${page.iTotalNumImages}`);
    };
}
