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
    from.style.opacity = "1";
    // A clock that paints nothing.
    const clock = from.animate([], { delay: duration });
    const end = clock.finished.then(
        () =>
            (above.style.zIndex =
                from.style.opacity =
                from.style.clipPath =
                to.style.clipPath =
                    ""),
    );
    if (fades) {
        to.animate({ opacity: [0, 1] }, duration);
        return end;
    }
    const kind = +how < 23 ? +how : (Math.random() * 23) | 0;
    const order = orderOf(kind);
    const { offsetWidth: w, offsetHeight: h } = from;
    const step = () => {
        const time = Number(clock.currentTime ?? duration);
        if (time >= duration) return;
        const path = coverPath(kind, time / duration, order, w, h);
        // Both are clipped, since what is behind a text is seen through it.
        from.style.clipPath = `path(evenodd,"${path}")`;
        to.style.clipPath = `path(evenodd,"${path}M0 0H${w}V${h}H0Z")`;
        // As many pictures as a film has are enough, and less than half the work.
        setTimeout(step, 42);
    };
    step();
    return end;
}
