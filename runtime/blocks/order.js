/** In which order the items of a block have their turns. */
import { shuffled } from "../cover_path.js";

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
 * What turns are to be told of a block's order and times.
 * @param {number} count how many items there are
 * @param {{order: string, times: number}} field
 */
export function inOrder(count, { order, times }) {
    const turn = numbers(count, order);
    if (order !== "random") turn.next();
    return { turn, changes: times * (order === "back" ? 2 * count - 2 : count) };
}
