/** A picture and its reflection in moving water. */
import { stretched } from "./tag.js";

/** Milliseconds between two pictures. */
const each = 50;

/**
 * Moves the water.
 * @param {import("./tag.js").Tag} tag @param {CanvasRenderingContext2D} pen
 * @returns {Promise<import("./applets.js").Show>}
 */
export async function lake(tag, pen) {
    const { W, H } = tag;
    const h = Math.floor((H + 10) / 2);
    const picture = await stretched(tag.text("IMAGE"), "IMAGE", W, h);
    const draw = (/** @type {number} */ t) => {
        pen.drawImage(picture, 0, 0);
        for (let r = 0; h + r < H; r++) {
            const wave = (1 + (4 * r) / h) * Math.sin(2 * Math.PI * (r / 16 - t / 1000));
            const s = Math.min(Math.max(h - 1 - r + Math.floor(wave + 0.5), 0), h - 1);
            pen.drawImage(picture, 0, s, W, 1, 0, h + r, W, 1);
        }
        return each - (t % each);
    };
    return {
        name: "Picture mirrored in water",
        draw,
        link: () => tag.text("HREF"),
    };
}
