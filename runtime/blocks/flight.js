/** Things that move over the page. */

/** A layer as large as the window, which nothing is clicked on; what leaves it is not seen. */
export const flightCss =
    ".flight{position:fixed;top:0;left:0;width:100%;height:100%;overflow:hidden;" +
    "pointer-events:none;contain:strict}@media print{.flight{display:none}}";

/**
 * Lets animations go on, or begin again once they were cancelled, or rest. Those that have ended stay
 * as they are.
 * @param {Animation[]} animations
 * @param {boolean} moves
 */
export function drive(animations, moves) {
    for (const animation of animations) {
        const { playState } = animation;
        if (moves && /paused|idle/.test(playState)) animation.play();
        if (!moves && playState === "running") animation.pause();
    }
}
