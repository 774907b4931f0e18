/** Flying Text: letters that fly to their place, one after the other. */
import { buttonCss, motion } from "../calm.js";
import { drive } from "../flight.js";
import { letters, lettersCss } from "../letters.js";
import { fields, look, start, words } from "../start.js";

/** How many letters may fly as letters; of a longer text the words fly. */
const most = 80;
const steps = 16;

/** How far a path turns on its way, in radians. @type {Record<string, number>} */
const turn = { straight: 0, arc: 1.5, spiral: 9 };

/**
 * The way of a letter to its place, which never leaves the window: so no scroll bars appear.
 * @param {HTMLElement} letter
 * @param {string} from
 * @param {string} path
 */
function way(letter, from, path) {
    const { left, top, width, height } = letter.getBoundingClientRect();
    // A letter that turns needs a circle.
    const radius = Math.hypot(width, height) / 2;
    const [x0, y0] = [left + width / 2, top + height / 2];
    const [x1, y1] = [document.documentElement.clientWidth - x0, innerHeight - y0];
    const room = [radius - x0, x1 - radius, radius - y0, y1 - radius];
    let side = ["left", "right", "above", "below"].indexOf(from);
    if (side < 0) side = Math.floor(Math.random() * 4);
    const [x, y] = side < 2 ? [room[side], 0] : [0, room[side]];
    const within = (/** @type {number} */ n, /** @type {number} */ at) =>
        // Its place may be nearer to the edge.
        (n && Math.max(room[at], Math.min(room[at + 1], n))) + "px";
    return Array.from({ length: steps + 1 }, (_, i) => {
        const rest = 1 - i / steps;
        const angle = rest * turn[path];
        const [cos, sin] = [rest * Math.cos(angle), rest * Math.sin(angle)];
        return {
            transform:
                `translate(${within(x * cos - y * sin, 0)},${within(x * sin + y * cos, 2)})` +
                `rotate(${angle}rad)`,
            opacity: Math.min(1, i / 4),
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
        const ways = parts.map((letter) => way(letter, field.from, field.path));
        flights = parts.map((letter, i) => {
            return letter.animate(ways[i], {
                duration: field.flightSeconds * 1000,
                delay: i * field.letterPause,
                easing: "cubic-bezier(.2,.6,.3,1)",
                fill: "backwards",
            });
        });
        flights[parts.length - 1].onfinish = () => {
            land(true);
            if (!field.againAfter) button.remove();
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
        if (moves && landed && field.againAfter) timer = setTimeout(fly, field.againAfter * 1000);
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
    const length = (letters(root, most).parts.length * field.letterPause) / 1000;
    if (field.againAfter || length + field.flightSeconds > 5) box.append(button);
});
