/** The change from one item of a stage to another. */
import { coverPath, orderOf } from "../cover_path.js";
import { settle } from "./turns.js";

/**
 * Shows how one item gives way to another, which is the one that is shown from now on.
 * @param {HTMLElement} from
 * @param {HTMLElement} to
 * @param {string} how "cut", "fade" or the number of one of the 24 transitions
 * @param {number} duration in milliseconds
 */
export async function change(from, to, how, duration) {
    if (how === "cut" || from === to) return;
    // What gives way is seen until the end, below or above.
    from.style.opacity = from.style.zIndex = "1";
    if (how === "fade") {
        from.style.zIndex = "-1";
        await to.animate({ opacity: [0, 1] }, duration).finished;
    } else {
        const kind = +how < 23 ? +how : (Math.random() * 23) | 0;
        const order = orderOf(kind);
        const { offsetWidth: w, offsetHeight: h } = from;
        const begin = Date.now();
        // Who ends the change early takes the layer back.
        for (let p; (p = (Date.now() - begin) / duration) < 1 && from.style.zIndex; ) {
            const path = coverPath(kind, p, order, w, h);
            // Both are clipped, since what is behind a text is seen through it.
            from.style.clipPath = `path(evenodd,"${path}")`;
            to.style.clipPath = `path(evenodd,"${path}M0 0H${w}V${h}H0Z")`;
            // Each picture is work for the page: fifteen are enough for a second.
            await new Promise((done) => setTimeout(done, Math.min(duration / 6, 66)));
        }
    }
    settle(from);
    settle(to);
}
