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
    /** @param {HTMLElement} item @param {number} opacity at first @param {number} z its layer */
    const show = (item, opacity, z) =>
        item.animate({ opacity: [opacity, 1], zIndex: [z, z] }, duration);
    if (how === "fade") {
        show(from, 1, 0);
        return show(to, 0, 1).finished;
    }
    const old = show(from, 1, 1);
    const kind = Number(how) < 23 ? Number(how) : Math.floor(Math.random() * 23);
    const order = orderOf(kind);
    const { offsetWidth: w, offsetHeight: h } = from;
    return new Promise((done) => {
        const step = () => {
            const p = Number(old.currentTime ?? duration) / duration;
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
