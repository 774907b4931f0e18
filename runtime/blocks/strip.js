/** An endless band. */
import { drive } from "./flight.js";
import { make, on } from "./start.js";

export const stripCss =
    // In a cell of a table the band asks for the room of one group, and takes what there is.
    ".view{flex:1;min-width:0;overflow:hidden;overflow:clip;direction:ltr;display:grid;" +
    "grid-template-columns:minmax(0,max-content)}" +
    ".track{position:relative;width:max-content;will-change:transform}" +
    ".group{display:flex;align-items:center}.group>*{flex:none;unicode-bidi:plaintext}" +
    ".copy{position:absolute;top:0;width:100%}.still .track{width:auto}.still .group{flex-wrap:wrap}" +
    ".still .group>*{flex:0 1 auto}.still .copy{display:none}" +
    "@media print{.track{transform:none!important;width:auto}.group{flex-wrap:wrap}" +
    ".copy{display:none}}";

/**
 * Puts a group into an endless band that moves by the group's width and begins again, with as many
 * copies behind it as the width needs. Copies can be clicked, but neither the focus nor screen
 * readers come there.
 * @param {HTMLElement} group each part of it has its gap behind it
 * @param {number} speed in pixels a second
 * @param {boolean} right whether it moves to the right
 */
export function strip(group, speed, right) {
    group.classList.add("group");
    const track = make("div", "track", group);
    const view = make("div", "view", track);
    /** @type {Animation | undefined} */
    let animation;
    let width = 0;
    let moves = false;
    let still = false;

    /** The n-th copy, counted from 1. @param {number} n */
    const copy = (n) => {
        const made = /** @type {HTMLElement} */ (group.cloneNode(true));
        made.className += " copy";
        made.style.left = n * 100 + "%";
        made.setAttribute("aria-hidden", "true");
        for (const link of made.querySelectorAll("a")) link.tabIndex = -1;
        return made;
    };
    const lay = () => {
        const wide = parseFloat(getComputedStyle(group).width);
        if (still || !wide) return;
        for (let n = track.children.length; n < 200 && (n - 1) * wide < view.clientWidth; n++)
            track.append(copy(n));
        if (wide === width) return;
        const time = animation?.currentTime ?? 0;
        animation?.cancel();
        animation = track.animate(
            { transform: ["none", `translateX(${-wide}px)`] },
            {
                duration: (wide / speed) * 1000,
                iterations: Infinity,
                direction: right ? "reverse" : "normal",
            },
        );
        animation.currentTime = time;
        width = wide;
        drive([animation], moves);
    };
    on(group, "focusin", ({ target }) => {
        const left = target.getBoundingClientRect().left - group.getBoundingClientRect().left;
        if (animation) animation.currentTime = ((right ? width - left : left) / speed) * 1000;
    });
    const watcher = new ResizeObserver(lay);
    watcher.observe(view);
    watcher.observe(group);
    return {
        view,
        /** What a visitor's wish changes. @param {boolean} moving @param {boolean} quiet */
        run(moving, quiet) {
            moves = moving;
            still = quiet;
            view.classList.toggle("still", still);
            if (still) {
                animation?.cancel();
                width = 0;
            } else lay();
            if (animation) drive([animation], moves);
        },
    };
}
