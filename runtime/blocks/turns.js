/** One of several items at a time, in turn. */
import { on } from "./start.js";

/** All items lie in one cell, so that the largest gives the size; those of a list are all printed. */
export const turnsCss =
    ".stage{display:grid;min-width:0;isolation:isolate}.stage>*{grid-area:1/1;min-width:0}" +
    ".stage>:not(.shown){opacity:0;pointer-events:none}" +
    "@media print{.stage>li{grid-area:auto;opacity:1!important;clip-path:none!important}}";

/** Ends what is seen of an item's change. @param {HTMLElement} item */
export function settle(item) {
    for (const run of item.getAnimations()) run.finish();
    item.style.zIndex = item.style.opacity = item.style.clipPath = "";
}

/**
 * Lets items that are in one stage take turns; the first is shown now. An item that gets the focus
 * is shown at once.
 * @param {HTMLElement[]} items
 * @param {{pause: number, changes?: number, turn?: Iterator<number>}} asked the time between two
 *     changes in milliseconds, how many there are until the end (0 or none: for ever), and the
 *     numbers of the items that come, else one after the other
 * @param {(from: HTMLElement, to: HTMLElement) => Promise<any> | void} change what is seen of a
 *     change, which ends when its items are settled
 * @param {() => void} [end] called when they have had their turns
 */
export function turns(items, { pause, changes = 0, turn }, change, end) {
    let left = changes;
    let shown = items[0];
    let moves = false;
    let timer = 0;

    const behind = (/** @type {number} */ step) =>
        items[(items.indexOf(shown) + step + items.length) % items.length];
    const wait = () => {
        clearTimeout(timer);
        if (moves && items[1]) timer = setTimeout(next, pause);
    };
    const next = async () => {
        if (!--left) {
            left = changes;
            return end?.();
        }
        const before = shown;
        show(turn ? items[turn.next().value] : behind(1));
        await change(before, shown);
        wait();
    };
    const show = (/** @type {HTMLElement} */ item) => {
        shown.classList.remove("shown");
        shown = item;
        shown.classList.add("shown");
    };
    const jump = (/** @type {HTMLElement} */ item) => {
        items.forEach(settle);
        show(item);
        wait();
    };
    show(shown);
    for (const item of items) on(item, "focusin", () => jump(item));
    return {
        /** Shows the item that stands so many behind what is shown. @param {number} step */
        go: (step) => jump(behind(step)),
        /** What a visitor's wish changes. @param {boolean} moving @param {boolean} still */
        run(moving, still) {
            moves = moving;
            if (still) show(items[0]);
            wait();
        },
    };
}
