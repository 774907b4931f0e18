/** Motion only while the visitor wants it, and only while it is seen. */
import { make, on } from "./start.js";
import { sleep } from "./sleep.js";

/** The look of the pause button: the sign is drawn, since fonts differ. */
export const buttonCss =
    "button{all:unset;flex:none;width:10px;padding:6px 7px;" +
    "cursor:pointer}" +
    "button::before{content:'';display:block;height:12px;background:currentColor;" +
    "forced-color-adjust:none;clip-path:polygon(0 0,100% 50%,0 100%)}" +
    ".on::before{clip-path:none;background:none;border:solid;border-width:0 3px}" +
    "@media print{button{display:none}}";

/** The pause button as a chip in the lower right corner, for pictures. */
export const chipCss =
    "button{position:absolute;z-index:2;right:4px;bottom:4px;background:#fff;color:#222;border-radius:4px;" +
    "box-shadow:0 0 0 1px #2226}";

/**
 * Tells an effect when it moves and when it rests. It rests while the visitor has stopped it or
 * wants as little motion as possible, while it is not seen, and while `rest` says so.
 * @param {HTMLElement} root
 * @param {string} what what moves, in words for screen readers, such as "the moving text"
 * @param {(moves: boolean, still: boolean) => void} run called at every change; `still` is the
 *     state of those who want no motion
 * @param {{seen?: boolean, plays?: boolean}} options false for an effect whose place in the page
 *     does not matter, and for one that waits for the visitor
 */
export function motion(root, what, run, { seen = true, plays: begins = true } = {}) {
    const reduced = matchMedia("(prefers-reduced-motion:reduce)");
    const button = make("button", "");
    /** What keeps it from moving for now. */
    const rests = new Set(["away"]);
    let plays = begins && !reduced.matches;
    let last = "";
    const tell = () => {
        const moves = plays && !rests.size;
        const still = reduced.matches && !plays;
        button.title = (plays ? "Pause " : "Play ") + what;
        button.className = plays ? "on" : "";
        if (last !== (last = `${moves}${still}`)) run(moves, still);
    };
    /** Plays or stops, as if by the button. @param {boolean} wanted */
    const play = (wanted) => {
        plays = wanted;
        tell();
    };
    const rest = (/** @type {string} */ why, /** @type {boolean} */ now) => {
        if (now) rests.add(why);
        else rests.delete(why);
        tell();
    };
    on(button, "click", () => play(!plays));
    on(reduced, "change", () => play(begins && !reduced.matches));
    tell();
    sleep(root, seen, (sleeps) => rest("away", sleeps));
    return { button, play, rest };
}

/**
 * Lets an effect rest while the mouse or the focus is on it. Its button is not part of the stage.
 * @param {HTMLElement} stage
 * @param {(why: string, now: boolean) => void} rest
 */
export function restUnder(stage, rest) {
    on(stage, "pointerenter", () => rest("mouse", true));
    on(stage, "pointerleave", () => rest("mouse", false));
    on(stage, "focusin", ({ target }) => rest("focus", target.matches(":focus-visible")));
    on(stage, "focusout", () => rest("focus", false));
}
