/** A picture with waves that run from its middle. */
import { pixelsOf, sheet, stretched } from "./tag.js";

/** Milliseconds between two pictures. */
const each = 50;

/**
 * How much farther from the middle than its own distance `rho` a pixel takes its colour, as a share
 * of `rho`.
 * @typedef {(rho: number) => number} Bend
 */

/**
 * The picture with the wave. A pixel and its mirror images are equally far from the middle, so they
 * are made together.
 * @param {Uint32Array} from @param {number} W @param {number} H @param {Bend} bend
 */
function bentPixels(from, W, H, bend) {
    const { canvas, pen } = sheet(W, H, "white");
    const data = new ImageData(W, H);
    const to = new Uint32Array(data.data.buffer);
    const [cx, cy] = [(W - 1) / 2, (H - 1) / 2];
    /** @param {number} x @param {number} y @param {number} q */
    const put = (x, y, q) => {
        const sx = Math.min(Math.max(x + Math.floor((x - cx) * q + 0.5), 0), W - 1);
        const sy = Math.min(Math.max(y + Math.floor((y - cy) * q + 0.5), 0), H - 1);
        to[y * W + x] = from[sy * W + sx];
    };
    for (let y = 0; y <= cy; y++)
        for (let x = 0; x <= cx; x++) {
            const q = bend(Math.sqrt((x - cx) ** 2 + (y - cy) ** 2));
            put(x, y, q);
            put(W - 1 - x, y, q);
            put(x, H - 1 - y, q);
            put(W - 1 - x, H - 1 - y, q);
        }
    pen.putImageData(data, 0, 0);
    return canvas;
}

/**
 * The same by discs, for pictures whose pixels the browser lets no script read.
 * @param {HTMLCanvasElement} from
 * @param {number} W
 * @param {number} H
 * @param {Bend} bend
 */
function bentDiscs(from, W, H, bend) {
    const { canvas, pen } = sheet(W, H, "white");
    const [cx, cy] = [W / 2, H / 2];
    pen.drawImage(from, 0, 0);
    for (let rho = Math.ceil(Math.hypot(cx, cy)); rho > 1; rho--) {
        const size = 1 / (1 + bend(rho));
        pen.save();
        pen.beginPath();
        pen.arc(cx, cy, rho + 0.5, 0, 2 * Math.PI);
        pen.clip();
        pen.drawImage(from, cx - cx * size, cy - cy * size, W * size, H * size);
        pen.restore();
    }
    return canvas;
}

/**
 * Runs the waves.
 * @param {import("./tag.js").Tag} tag @param {CanvasRenderingContext2D} pen
 * @returns {Promise<import("./applets.js").Show>}
 */
export async function ripple(tag, pen) {
    const { W, H } = tag;
    const picture = await stretched(tag.text("IMAGE"), "IMAGE", W, H);
    const pixels = pixelsOf(picture);
    const P = Math.max(tag.number("PERIOD", 20), 1);
    const F = Math.min(tag.number("FRAMES", 15, 1), 100);
    /** The waves repeat, so each picture of them is made once. @type {HTMLCanvasElement[]} */
    const made = [];
    const draw = (/** @type {number} */ t) => {
        const k = Math.floor(t / each) % F;
        /** @type {Bend} */
        const bend = (rho) =>
            rho < 1
                ? 0
                : ((1 + Math.floor(P / 10)) * Math.sin(2 * Math.PI * (rho / (2 * P) - k / F))) /
                  rho;
        made[k] ??= pixels ? bentPixels(pixels, W, H, bend) : bentDiscs(picture, W, H, bend);
        pen.drawImage(made[k], 0, 0);
        return F > 1 ? each - (t % each) : Infinity;
    };
    return {
        name: "Picture with waves",
        draw,
        drawStill: () => pen.drawImage(picture, 0, 0),
    };
}
