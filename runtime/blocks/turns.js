/** One of several items at a time, in turn. */
import { shuffled } from "../reveal.js";

/** All items lie in one cell, so that the largest gives the size. */
export const turnsCss =
    ".stage{display:grid;min-width:0}.stage>*{grid-area:1/1;min-width:0}" +
    ".stage>:not(.shown){opacity:0;pointer-events:none}";

/**
 * The items' numbers in the order of their turns, one round of them after the other. What is shown
 * at first is number 0.
 * @param {number} count
 * @param {string} order "forward", "back" for there and back, or "random": each once, then anew
 */
function* numbers(count, order) {
    for (let last = 0; ;) {
        let round = [...Array(count).keys()];
        if (order === "back") round.push(...round.slice(1, -1).reverse());
        if (order === "random") {
            round = shuffled(count);
            // Nothing comes twice in succession.
            if (round[0] === last) round.reverse();
            last = round[count - 1];
        }
        yield* round;
    }
}

/**
 * Lets items that are in one stage take turns; the first is shown now. An item that gets the focus
 * is shown at once.
 * @param {HTMLElement[]} items
 * @param {{order: string, times: number, pause: number}} asked `times` 0 is for ever; `pause` is
 *     the time between two changes in milliseconds
 * @param {(from: HTMLElement, to: HTMLElement) => Promise<any> | void} change what is seen of a
 *     change, by animations alone
 * @param {() => void} end called when they have had their turns
 */
export function turns(items, { order, times, pause }, change, end) {
    const turn = numbers(items.length, order);
    const round = order === "back" ? 2 * items.length - 2 : items.length;
    let left = times * round;
    let shown = items[0];
    let moves = false;
    let timer = 0;
    if (order !== "random") turn.next();
    shown.classList.add("shown");

    const wait = () => {
        clearTimeout(timer);
        if (moves && items[1]) timer = setTimeout(next, pause);
    };
    const next = async () => {
        if (!--left) {
            left = times * round;
            return end();
        }
        const before = shown;
        show(items[Number(turn.next().value)]);
        await change(before, shown);
        wait();
    };
    const show = (/** @type {HTMLElement} */ item) => {
        for (const { classList } of items) classList.remove("shown");
        shown = item;
        item.classList.add("shown");
    };
    for (const item of items)
        item.addEventListener("focusin", () => {
            for (const one of items) for (const run of one.getAnimations()) run.finish();
            show(item);
        });
    return {
        /** What a visitor's wish changes. @param {boolean} moving @param {boolean} still */
        run(moving, still) {
            moves = moving;
            if (still) show(items[0]);
            wait();
        },
    };
}
