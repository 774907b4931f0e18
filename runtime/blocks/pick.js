/** Which of several items is shown at this visit. */
import { shuffled } from "../cover_path.js";
import { store } from "./store.js";

/**
 * The number of an item: one a day, by pure chance, or another one at each visit, each once before
 * one comes again.
 * @param {HTMLElement} root
 * @param {number} count
 * @param {string} rule "day", "chance" or "visit"
 */
export function pick(root, count, rule) {
    if (rule === "chance") return Math.floor(Math.random() * count);
    if (rule === "day") {
        const now = new Date();
        return (
            Math.floor(Date.UTC(now.getFullYear(), now.getMonth(), now.getDate()) / 864e5) % count
        );
    }
    const { get, set } = store(root);
    const [last, ...kept] = get() ? get().split(",").map(Number) : [-1];
    let order = kept.filter((n) => n < count);
    if (!order[0] && order[0] !== 0) {
        order = shuffled(count);
        if (order[0] === last) order.reverse();
    }
    set(order.join());
    return order[0];
}
