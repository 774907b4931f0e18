/** The shapes of the 24 transitions: what the old picture covers while the new one comes. */

/** A rectangle of the unit square. @typedef {[x: number, y: number, w: number, h: number]} Piece */

/** How many stripes of blinds or squares a side, rows of strips, and random lines there are. */
const blinds = 8;
const rows = 12;
const bars = 48;

/**
 * @template {any[]} T
 * @param {number} count @param {(i: number) => T} piece @returns {T[]}
 */
const pieces = (count, piece) => Array.from({ length: count }, (_, i) => piece(i));

/** The numbers below `count` in random order. @param {number} count */
export const shuffled = (count) =>
    pieces(count, (i) => [Math.random(), i])
        .sort()
        .map(([, i]) => i);

/**
 * Strips at the upper and lower edge, `p / 2` high: all but what is between them, since a piece within
 * another one is a hole.
 * @param {number} p
 * @returns {Piece[]}
 */
const edges = (p) => [
    [0, 0, 1, 1],
    [0, p / 2, 1, 1 - p],
];

/**
 * Squares that open from their left edge, every second row shifted to the right by half a square.
 * @param {number} p
 * @returns {Piece[]}
 */
function checkers(p) {
    const w = 1 / blinds;
    return pieces(blinds * (blinds + 1), (i) => {
        const row = i % blinds;
        return [(((i / blinds) | 0) - (row % 2) / 2) * w, row * w, p * w, w];
    });
}

/** The same with rows and columns exchanged. @param {Piece[]} from @returns {Piece[]} */
const turned = (from) => from.map(([x, y, w, h]) => [y, x, h, w]);

/**
 * Rows that grow one after the other: 17 and 18 to the left, else to the right; with even numbers
 * the lowest is the first.
 * @param {number} p @param {number[]} _ @param {number} kind @returns {Piece[]}
 */
const strips = (p, _, kind) =>
    pieces(rows, (i) => {
        // Each begins a little later than the one before it.
        const late = (kind % 2 ? i : rows - 1 - i) / (rows - 1);
        const long = Math.min(Math.max(2 * p - late, 0), 1);
        return [kind < 19 ? 1 - long : 0, i / rows, long, 1 / rows];
    });

/**
 * The random order in which a transition uncovers its dots or lines.
 * @param {number} kind
 */
export const orderOf = (kind) => shuffled(kind === 12 ? 400 : bars);

/**
 * Dots in random order, in so many columns.
 * @param {number[]} order @param {number} p @param {number} columns @returns {Piece[]}
 */
function dots(order, p, columns) {
    const w = 1 / columns;
    const h = columns / order.length;
    return order
        .slice(0, p * order.length)
        .map((i) => [(i % columns) * w, ((i / columns) | 0) * h, w, h]);
}

/**
 * The parts of the new picture that are seen at the share `p` of the time, by the number of the
 * transition in the author's list. The circles, 2 and 3, are not here but in coverPath().
 * @type {Record<number, (p: number, order: number[], kind: number) => Piece[]>}
 */
const uncovered = {
    0: (p) => [
        [0, 0, 1, 1],
        [p / 2, p / 2, 1 - p, 1 - p],
    ],
    1: (p) => [[0.5 - p / 2, 0.5 - p / 2, p, p]],
    4: (p) => [[0, 1 - p, 1, p]],
    5: (p) => [[0, 0, 1, p]],
    6: (p) => [[0, 0, p, 1]],
    7: (p) => [[1 - p, 0, p, 1]],
    8: (p) => pieces(blinds, (i) => [i / blinds, 0, p / blinds, 1]),
    9: (p) => pieces(blinds, (i) => [0, i / blinds, 1, p / blinds]),
    10: checkers,
    11: (p) => turned(checkers(p)),
    12: (p, order) => dots(order, p, 20),
    13: (p) => turned(edges(p)),
    14: (p) => [[0.5 - p / 2, 0, p, 1]],
    15: edges,
    16: (p) => [[0, 0.5 - p / 2, 1, p]],
    17: strips,
    18: strips,
    19: strips,
    20: strips,
    21: (p, order) => dots(order, p, 1),
    22: (p, order) => dots(order, p, bars),
};

/**
 * The clip path of the old picture, which covers the new one where that is not seen yet.
 * @param {number} kind @param {number} p @param {number[]} order
 * @param {number} w @param {number} h
 */
export function coverPath(kind, p, order, w, h) {
    const all = `M0 0H${w}V${h}H0Z`;
    const shape = uncovered[kind];
    if (!shape) {
        const radius = (Math.hypot(w, h) / 2) * (kind === 2 ? 1 - p : p);
        const arc = (/** @type {number} */ dx) => `a${radius} ${radius} 0 1 0 ${dx} 0`;
        const circle = `M${w / 2 - radius} ${h / 2}${arc(2 * radius)}${arc(-2 * radius)}Z`;
        return kind === 2 ? circle : all + circle;
    }
    return (
        shape(p, order, kind)
            .map(([x, y, pw, ph]) => `M${x * w} ${y * h}h${pw * w}v${ph * h}h${-pw * w}Z`)
            .join("") + all
    );
}
