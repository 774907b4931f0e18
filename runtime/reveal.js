/** The transition from one picture to the next: the new one is uncovered piece by piece. */
import { now } from "./platform.js";
import { calm, make, placeOver } from "./calm.js";
import { coverPath, orderOf } from "./cover_path.js";

/**
 * One transition, as old scripts ask for it: they call `apply`, set the new picture, call `play`.
 * @param {HTMLElement} element @param {number} asked @param {number} seconds
 */
export function makeReveal(element, asked, seconds) {
    const image = /** @type {HTMLImageElement} */ (element);
    const kind = asked === 23 ? Math.floor(Math.random() * 23) : asked;
    const order = orderOf(kind);
    /** @type {ReturnType<typeof placeOver> | null} */
    let place = null;
    let before = "";
    let [w, h] = [0, 0];
    const reveal = {
        /** Remembers the picture that is shown now. */
        apply() {
            before = image.src;
            [w, h] = [image.width, image.height];
        },
        /** Uncovers the picture that was set in its place. */
        play() {
            if (calm() || kind > 23) return;
            place = placeOver(image);
            const cover = make("img");
            cover.alt = "";
            cover.src = before;
            cover.style.cssText = `position:absolute;left:0;top:0;width:${w}px;height:${h}px`;
            place.inside.append(cover);
            const begin = now();
            const step = () => {
                const p = Math.min((now() - begin) / 1000 / seconds, 1);
                if (!(p < 1) || !place) return reveal.end();
                cover.style.clipPath = `path(evenodd,"${coverPath(kind, p, order, w, h)}")`;
                requestAnimationFrame(step);
            };
            step();
        },
        /** Shows the new picture alone. */
        end() {
            place?.remove();
            place = null;
        },
    };
    return reveal;
}
