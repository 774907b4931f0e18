/** A cube that turns, with a picture on each face. */
import { load, pixelsOf, sheet, shown, words, wrongWords } from "./tag.js";

/** @typedef {[number, number, number]} Vector */

/**
 * A face: the axis (0 x, 1 y, 2 z) that it lies across, on which side, and the axes along the width
 * and height of its picture.
 * @typedef {{axis: number, side: number, u: [number, number], v: [number, number]}} Face
 */

/**
 * The faces: near, far, right, left, top and bottom; `u` and `v` are an axis and a sign each.
 * @type {Face[]}
 */
const faces = [
    { axis: 2, side: -1, u: [0, 1], v: [1, 1] },
    { axis: 2, side: 1, u: [0, -1], v: [1, 1] },
    { axis: 0, side: 1, u: [2, 1], v: [1, 1] },
    { axis: 0, side: -1, u: [2, -1], v: [1, 1] },
    { axis: 1, side: -1, u: [0, 1], v: [2, -1] },
    { axis: 1, side: 1, u: [0, 1], v: [2, 1] },
];
/** Half the length of an edge. */
const half = 25;
/** Milliseconds between two pictures. */
const each = 40;

/**
 * Where the axes of the cube point after turns about x, y and z, in radians.
 * @param {Vector} turns @returns {Vector[]}
 */
function axesAfter([alpha, beta, gamma]) {
    const [ca, sa, cb, sb, cc, sc] = [alpha, beta, gamma].flatMap((turn) => [
        Math.cos(turn),
        Math.sin(turn),
    ]);
    return [
        [1, 0, 0],
        [0, 1, 0],
        [0, 0, 1],
    ].map(([x, y, z]) => {
        [y, z] = [y * ca - z * sa, y * sa + z * ca];
        [x, z] = [x * cb + z * sb, z * cb - x * sb];
        return [x * cc - y * sc, x * sc + y * cc, z];
    });
}

/**
 * Where a point of a face is seen, from the middle of the canvas.
 * @param {Face} face @param {Vector[]} axes @param {number} D @param {number} f
 * @param {number} a @param {number} b where it is on the picture, both -1 to 1
 */
function spotOf({ axis, side, u, v }, axes, D, f, a, b) {
    const [x, y, z] = [0, 1, 2].map(
        (k) => half * (side * axes[axis][k] + a * u[1] * axes[u[0]][k] + b * v[1] * axes[v[0]][k]),
    );
    return [(x * f) / (z + D), (y * f) / (z + D)];
}

/**
 * Colours the pixels that see the cube.
 * @param {Uint32Array} to @param {number} W @param {number} H @param {number} r the size of a dot
 * @param {Uint32Array} from @param {number} iw @param {number} ih
 * @param {Vector[]} axes @param {number} D
 */
function castRays(to, W, H, r, from, iw, ih, axes, D) {
    const f = 0.6 * Math.min(W, H);
    const [perX, perY] = [iw / (2 * half), ih / (2 * half)];
    for (const face of faces) {
        const { axis, side, u, v } = face;
        // The eye as the cube sees it; the faces that look at it do not overlap.
        const eye = side * -D * axes[axis][2];
        if (eye <= half) continue;
        const corners = [0, 1, 2, 3].map((i) =>
            spotOf(face, axes, D, f, i < 2 ? -1 : 1, i % 2 ? -1 : 1),
        );
        // The last dot that begins on the face reaches beyond it.
        const [[left, right], [top, bottom]] = [W, H].map((size, k) => {
            const at = corners.map((corner) => corner[k] + size / 2);
            return [
                Math.max(Math.floor(Math.min(...at)) - 1, 0),
                Math.min(Math.ceil(Math.max(...at)) + r, size),
            ];
        });
        const [dx, dy, dz] = axes[axis].map((part) => side * part);
        const [ux, uy, uz] = axes[u[0]].map((part) => u[1] * part);
        const [vx, vy, vz] = axes[v[0]].map((part) => v[1] * part);
        const [u0, v0] = [half - D * uz, half - D * vz];
        for (let y = top; y < bottom; y++) {
            const py = y - (y % r) + 0.5 - H / 2;
            const [d, pu0, pv0] = [dy * py + dz * f, uy * py + uz * f, vy * py + vz * f];
            for (let x = left, i = y * W + left; x < right; x++, i++) {
                const px = x - (x % r) + 0.5 - W / 2;
                const far = (half - eye) / (dx * px + d);
                const pu = far * (ux * px + pu0) + u0;
                const pv = far * (vx * px + pv0) + v0;
                if (!(far > 0) || pu < 0 || pu > 2 * half || pv < 0 || pv > 2 * half) continue;
                const ix = Math.min((pu * perX) | 0, iw - 1);
                const iy = Math.min((pv * perY) | 0, ih - 1);
                to[i] = from[iy * iw + ix];
            }
        }
    }
}

/**
 * Draws the cube by small pieces, for pictures whose pixels the browser lets no script read.
 * @param {CanvasRenderingContext2D} pen @param {HTMLCanvasElement} picture
 * @param {Vector[]} axes @param {number} D
 */
function drawPieces(pen, picture, axes, D) {
    const { width: W, height: H } = pen.canvas;
    const cells = 10;
    const [w, h] = [picture.width / cells, picture.height / cells];
    const f = 0.6 * Math.min(W, H);
    for (const face of faces) {
        if (face.side * -D * axes[face.axis][2] <= half) continue;
        const at = (/** @type {number} */ a, /** @type {number} */ b) =>
            spotOf(face, axes, D, f, (2 * a) / cells - 1, (2 * b) / cells - 1);
        for (let a = 0; a < cells; a++)
            for (let b = 0; b < cells; b++) {
                const [[px, py], [qx, qy], [ox, oy]] = [at(a, b), at(a + 1, b), at(a, b + 1)];
                pen.setTransform(
                    (qx - px) / w,
                    (qy - py) / w,
                    (ox - px) / h,
                    (oy - py) / h,
                    px + W / 2,
                    py + H / 2,
                );
                // A little larger than it is, so that nothing shines through between two of them.
                pen.drawImage(picture, a * w, b * h, w, h, 0, 0, 1.05 * w, 1.05 * h);
            }
    }
    pen.resetTransform();
}

/**
 * Turns the cube.
 * @param {import("./tag.js").Tag} tag @param {CanvasRenderingContext2D} pen
 * @returns {Promise<import("./applets.js").Show>}
 */
export async function cube(tag, pen) {
    const { W, H } = tag;
    const name = tag.text("IMAGE");
    const image = await load(name);
    const ground = `rgb(${["R", "G", "B"].map((part) => tag.number("BACK" + part, 192))})`;
    if (!image) {
        const wrong = wrongWords(name, "IMAGE");
        return shown(wrong, pen, words(wrong, W, H));
    }
    const { canvas: picture, pen: own } = sheet(image.width, image.height, ground);
    own.drawImage(image, 0, 0);
    const from = pixelsOf(picture);
    const D = Math.max(tag.number("DISTANCE", 70), 2 * half);
    const speeds = ["X", "Y", "Z"].map((axis) => tag.number("ROT" + axis, 10));
    const clears = /^(yes)?$/i.test(tag.text("CLEARBACK"));
    const clear = () => {
        pen.fillStyle = ground;
        pen.fillRect(0, 0, W, H);
    };
    const data = (clear(), from && pen.getImageData(0, 0, W, H));
    const to = data && new Uint32Array(data.data.buffer);
    const empty = to?.[0] ?? 0;
    const draw = (/** @type {number} */ t) => {
        const turns = speeds.map((speed) => (((4 * speed * t) / 1000) * Math.PI) / 180);
        const axes = axesAfter(/** @type {Vector} */ (turns));
        if (from && to && data) {
            if (clears) to.fill(empty);
            castRays(to, W, H, tag.number("RES", 1, 1), from, image.width, image.height, axes, D);
            pen.putImageData(data, 0, 0);
        } else {
            if (clears) clear();
            drawPieces(pen, picture, axes, D);
        }
        return each - (t % each);
    };
    return { name: "Turning cube", draw };
}
