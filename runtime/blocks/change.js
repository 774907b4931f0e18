/** The change from one item of a stage to another. */
import { coverPath, orderOf } from "../cover_path.js";

/**
 * Shows how one item gives way to another, which is the one that is shown from now on.
 * @param {HTMLElement} from
 * @param {HTMLElement} to
 * @param {string} how "cut", "fade" or the number of one of the 24 transitions
 * @param {number} duration in milliseconds
 * @returns {Promise<any> | void}
 */
export function change(from, to, how, duration) {
    if (how === "cut" || from === to) return;
    const fades = how === "fade";
    // What gives way is seen until the end, above or below.
    const above = fades ? to : from;
    above.style.zIndex = "1";
    const old = from.animate({ opacity: [1, 1] }, duration);
    const end = old.finished.then(() => (above.style.zIndex = ""));
    if (fades) {
        to.animate({ opacity: [0, 1] }, duration);
        return end;
    }
    const kind = Number(how) < 23 ? Number(how) : Math.floor(Math.random() * 23);
    const order = orderOf(kind);
    const { offsetWidth: w, offsetHeight: h } = from;
    return new Promise((done) => {
        const step = () => {
            const time = Number(old.currentTime ?? duration);
            const path = time < duration && coverPath(kind, time / duration, order, w, h);
            // Both are clipped, since what is behind a text is seen through it.
            from.style.clipPath = path ? `path(evenodd,"${path}")` : "";
            to.style.clipPath = path ? `path(evenodd,"${path}M0 0H${w}V${h}H0Z")` : "";
            // Thirty pictures a second are enough, and half the work.
            if (path) setTimeout(step, 33);
            else done(end);
        };
        step();
    });
}
