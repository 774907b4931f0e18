/** Movement of what the browser paints anew for each picture: no oftener than is seen. */

/**
 * Takes animations that begin and end together out of the browser's hands, which would paint sixty
 * pictures a second, and moves them on by a timer.
 * @param {Animation[]} animations
 * @param {number} step from picture to picture, in milliseconds
 * @returns {(moves: boolean) => void} lets them go on or rest
 */
export function paced(animations, step) {
    const end = Number(animations[0].effect?.getComputedTiming().endTime);
    let time = 0;
    let before = 0;
    let timer = 0;
    const tick = () => {
        const now = performance.now();
        // What the page needs until the first picture is no part of the movement.
        time += before && now - before;
        before = now;
        for (const one of animations) {
            if (time < end) one.currentTime = time;
            else one.finish();
        }
        if (time < end) timer = setTimeout(tick, step);
    };
    for (const one of animations) one.pause();
    return (moves) => {
        clearTimeout(timer);
        before = 0;
        if (moves && time < end) timer = setTimeout(tick);
    };
}
