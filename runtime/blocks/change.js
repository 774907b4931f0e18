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
    const number = Number(how);
    if (how === "fade") {
        from.animate({ opacity: [1, 1] }, duration);
        return to.animate({ opacity: [0, 1], zIndex: [1, 1] }, duration).finished;
    }
    if (!(number < 24) || from === to) return;
    const kind = number === 23 ? Math.floor(Math.random() * 23) : number;
    const order = orderOf(kind);
    const { offsetWidth: w, offsetHeight: h } = from;
    const cover = from.animate({ opacity: [1, 1], zIndex: [1, 1] }, duration);
    return new Promise((done) => {
        const step = () => {
            const p = Number(cover.currentTime ?? duration) / duration;
            const path = p < 1 && coverPath(kind, p, order, w, h);
            // Both are clipped, since what is behind a text is seen through it.
            from.style.clipPath = path ? `path(evenodd,"${path}")` : "";
            to.style.clipPath = path ? `path(evenodd,"${path}M0 0H${w}V${h}H0Z")` : "";
            if (path) requestAnimationFrame(step);
            else done(0);
        };
        step();
    });
}
