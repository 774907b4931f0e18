/** The transitions from one frame of an animation to the next. */

/** @typedef {import("./tag.js").Picture} Picture */

/** x and y of the directions 0 to 9, each -1, 0 or 1; 0 and 9 are the middle. */
const sides = [
    [0, 0],
    [-1, -1],
    [0, -1],
    [1, -1],
    [1, 0],
    [1, 1],
    [0, 1],
    [-1, 1],
    [-1, 0],
    [0, 0],
];

/** The directions that each transition has. */
const directions = new Map([
    ["slidein", "1-8"],
    ["slideout", "1-8"],
    ["scroll", "2:4:6:8"],
    ["expand", "1-9"],
    ["shrink", "1-9"],
    ["squish", "2:6"],
    ["shutter", "0-1"],
]);

const usual =
    "shutter|slidein(1-8)|slideout(1-8)|scroll(2:4:6:8)|expand(1-9)|overwrite|shrink(1-9)";

/** Whether a text names a transition that takes time; `random` may not. @param {string} text */
export const isWay = (text) =>
    directions.has((/^\s*\w+/.exec(text.toLowerCase()) ?? [""])[0].trim());

/**
 * A transition that has begun: its name, and its direction.
 * @typedef {{name: string, d: number}} Transition
 */

/** @template T @param {T[]} from @returns {T} */
const any = (from) => from[Math.floor(Math.random() * from.length)];

/** The directions that a text lists: `1-8` a range, `2:4` single ones. @param {string} text */
function listed(text) {
    const range = /^(\d)-(\d)$/.exec(text);
    if (!range)
        return text
            .split(":")
            .filter((part) => /^\d$/.test(part))
            .map(Number);
    const [low, high] = [Number(range[1]), Number(range[2])];
    return Array.from({ length: Math.max(high - low + 1, 0) }, (_, i) => low + i);
}

/**
 * The transition that a text such as `slidein(3)` names, chosen at random where the text leaves it
 * open; null for an overwrite, which takes no time.
 * @param {string} text @param {string} list what `random` chooses from
 * @returns {Transition | null}
 */
export function readTransition(text, list) {
    const [, name, wanted] = /^\s*(\w+)\s*(?:\(([^)]*)\))?/.exec(text.toLowerCase()) ?? [];
    if (name === "random")
        return readTransition(
            any((list || usual).split("|").filter((entry) => !/random/i.test(entry))) ?? "",
            "",
        );
    const has = directions.get(name);
    if (!has) return null;
    const own = listed(has);
    const asked = listed((wanted ?? "").trim()).filter((d) => own.includes(d));
    if (name === "shutter" && asked.length === 0) return { name, d: 1 };
    return { name, d: any(asked.length ? asked : own) };
}

/**
 * Draws a transition after `k` of `S` steps.
 * @param {CanvasRenderingContext2D} pen @param {Transition} transition
 * @param {Picture} from @param {Picture} to
 * @param {number} k @param {number} S @param {string} color
 */
export function drawTransition(pen, { name, d }, from, to, k, S, color) {
    const { width: W, height: H } = pen.canvas;
    const [dx, dy] = sides[d];
    const [w, h] = [Math.floor((W * k) / S), Math.floor((H * k) / S)];
    /** @param {Picture} picture @param {number} x @param {number} y */
    const put = (picture, x, y) => pen.drawImage(picture, x, y);
    /** @param {number} side @param {number} rw @param {number} rh */
    const at = (side, rw, rh) => {
        const [sx, sy] = sides[side];
        return /** @type {[number, number, number, number]} */ ([
            Math.floor(((sx + 1) * (W - rw)) / 2),
            Math.floor(((sy + 1) * (H - rh)) / 2),
            rw,
            rh,
        ]);
    };
    /** @param {Picture} picture @param {number} side @param {number} rw @param {number} rh */
    const stretch = (picture, side, rw, rh) =>
        rw > 0 && rh > 0 && pen.drawImage(picture, ...at(side, rw, rh));
    switch (name) {
        case "slidein":
            put(from, 0, 0);
            return put(to, dx * (W - w), dy * (H - h));
        case "slideout":
            put(to, 0, 0);
            return put(from, dx * w, dy * h);
        case "scroll":
            put(from, -dx * w, -dy * h);
            return put(to, dx * (W - w), dy * (H - h));
        case "expand":
            put(from, 0, 0);
            return void stretch(to, d, w, h);
        case "shrink":
            put(to, 0, 0);
            return void stretch(from, d, W - w, H - h);
        case "squish":
            stretch(to, 8 - d, W, h);
            return void stretch(from, d, W, H - h);
    }
    const closes = 2 * k < S;
    const open = (/** @type {number} */ length) =>
        Math.floor((length * Math.abs(2 * k - (closes ? 0 : S))) / S);
    const [ow, oh] = [open(W), open(H)];
    pen.fillStyle = color;
    if (d === 0) {
        put(closes ? from : to, 0, 0);
        return pen.fillRect(...(closes ? at(9, ow, oh) : at(9, W - ow, H - oh)));
    }
    const seen = closes ? at(9, W - ow, H - oh) : at(9, ow, oh);
    pen.fillRect(0, 0, W, H);
    if (seen[2] > 0 && seen[3] > 0) pen.drawImage(closes ? from : to, ...seen, ...seen);
}
