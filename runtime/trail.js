/** The pointer as old scripts read it, and the trail of images that follows mouse and finger. */
import { calm, onCalm } from "./calm.js";
import { go, idle } from "./timers.js";

/** @type {any} */
let told = null;
let changes = 0;
let changesBefore = -1;

/** Notes that an old script has moved something. */
export const changed = () => void changes++;

/** What an old script reads as `window.event`. */
export const currentEvent = () => told ?? window.event;

const draw = "DrawMouseTrail";

// A trail in which no image has moved since the last call waits for the pointer.
idle.set(draw, () => {
    const still = changes === changesBefore;
    changesBefore = changes;
    return still;
});

/**
 * Calls `run` of an old script when the mouse or a finger moves.
 * @param {any} run
 */
export function onMouseMove(run) {
    if (typeof run !== "function") return;
    /** @param {MouseEvent | Touch} at */
    const tell = (at) => {
        told = { x: at.clientX, y: at.clientY };
        try {
            run.call(document, told);
        } finally {
            told = null;
        }
        go(draw);
    };
    document.addEventListener("mousemove", tell);
    for (const kind of /** @type {const} */ (["touchstart", "touchmove"]))
        document.addEventListener(kind, (event) => tell(event.touches[0]), { passive: true });
}

/**
 * Lets clicks through the images of a trail; without motion only the first is shown.
 * @param {HTMLElement} element
 */
export function prepareTrail(element) {
    const number = /^imgTrail(\d+)$/.exec(element.id);
    if (!number) return;
    element.style.pointerEvents = "none";
    const show = () => (element.style.display = calm() && number[1] !== "0" ? "none" : "");
    show();
    onCalm(show);
}
