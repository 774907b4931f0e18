/** Flying Text: letters that fly to their place, one after the other. */
import { buttonCss, motion } from "../calm.js";
import { drive } from "../flight.js";
import { letters, lettersCss } from "../letters.js";
import { fields, look, start, words } from "../start.js";

/** How many letters may fly as letters; of a longer text the words fly. */
const most = 80;
const steps = 24;

/** How far a path turns on its way, in radians. @type {Record<string, number>} */
const turn = { straight: 0, arc: 1.5, spiral: 9 };

/**
 * The way of a letter to its place, which never leaves the window: so no scroll bars appear.
 * @param {HTMLElement} letter
 * @param {number} late how long after the first it starts, in milliseconds
 * @param {number} duration of all flights together
 * @param {{from: string, path: string, flightSeconds: number}} asked
 */
function way(letter, late, duration, { from, path, flightSeconds }) {
    const { left, top, width, height } = letter.getBoundingClientRect();
    // A letter that turns needs a circle.
    const radius = Math.hypot(width, height) / 2;
    const x0 = left + width / 2;
    const y0 = top + height / 2;
    const { clientWidth } = document.documentElement;
    const room = [radius - x0, clientWidth - x0 - radius, radius - y0, innerHeight - y0 - radius];
    let side = ["left", "right", "above", "below"].indexOf(from);
    if (side < 0) side = (Math.random() * 4) | 0;
    const x = side < 2 ? room[side] : 0;
    const y = side < 2 ? 0 : room[side];
    const within = (/** @type {number} */ n, /** @type {number} */ at) =>
        // Its place may be nearer to the edge.
        (n && Math.max(room[at], Math.min(room[at + 1], n))) + "px";
    return Array.from({ length: steps + 2 }, (_, n) => {
        // The first stands for the time before its start.
        const i = n && n - 1;
        const rest = (1 - i / steps) ** 3;
        const angle = rest * turn[path];
        const cos = rest * Math.cos(angle);
        const sin = rest * Math.sin(angle);
        return {
            transform:
                `translate(${within(x * cos - y * sin, 0)},${within(x * sin + y * cos, 2)})` +
                `rotate(${angle}rad)`,
            opacity: Math.min(1, i / 4),
            offset: n && Math.min(1, (late + (flightSeconds * 1000 * i) / steps) / duration),
        };
    });
}

start("flying-1", (root) => {
    const field = fields(root, {
        from: "left",
        path: "straight",
        letterPause: [100, 0, 2000],
        flightSeconds: [1, 0.2, 5],
        againAfter: [0, 0, 600],
        ...look,
    });
    const { text, box } = words(root, lettersCss + buttonCss, field);
    const { letterPause, againAfter } = field;
    const last = letters(root, most).parts.length - 1;
    const duration = field.flightSeconds * 1000 + last * letterPause;
    /** @type {Animation[]} */
    let flights = [];
    /** @type {ReturnType<typeof letters> | null} */
    let flock = null;
    let moves = false;
    let landed = false;
    let timer = 0;

    const gather = () => {
        flock = letters(root, most);
        text.before(flock.copy);
        flock.copy.style.opacity = "0";
        return flock;
    };
    const fly = () => {
        landed = false;
        const { copy, parts } = flock ?? gather();
        copy.style.opacity = "";
        const ways = parts.map((letter, i) => way(letter, i * letterPause, duration, field));
        // The browser has to do something where one begins or ends, so all do it together.
        flights = parts.map((letter, i) => letter.animate(ways[i], duration));
        flights[0].onfinish = () => {
            land(true);
            if (!againAfter) button.remove();
            wait();
        };
    };
    const land = (/** @type {boolean} */ done) => {
        flock?.copy.remove();
        flock = null;
        flights = [];
        landed = done;
    };
    const wait = () => {
        clearTimeout(timer);
        if (moves && landed && againAfter) timer = setTimeout(fly, againAfter * 1000);
    };
    const run = (/** @type {boolean} */ moving, /** @type {boolean} */ still) => {
        moves = moving;
        if (still) land(false);
        else if (!flock && !landed) gather();
        drive(flights, moves);
        if (moves && !landed && !flights[0]) fly();
        wait();
    };
    const { button } = motion(root, "the flying text", run);
    if (againAfter || duration > 5000) box.append(button);
});
