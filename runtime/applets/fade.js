/** Images that fade into one another. */
import { calm, shortestFlash } from "../calm.js";
import { stretched } from "./tag.js";

/**
 * Shows the pictures one after the other.
 * @param {import("./tag.js").Tag} tag @param {CanvasRenderingContext2D} pen
 * @returns {Promise<import("./applets.js").Show>}
 */
export async function fade(tag, pen) {
    const { W, H } = tag;
    const names = tag.list("IMAGE");
    const asked = names.length ? names : [""];
    const pictures = await Promise.all(asked.map((name) => stretched(name, "IMAGE.0", W, H)));
    const n = pictures.length;
    const S = tag.number("TRANSITION.STEPS", 15, 1);
    const V = tag.number("TRANSITION.SPEED", 40, 1);
    const way = Math.ceil((1000 * S) / V);
    const pause = Math.max(tag.number("PAUSE", 100, 0), shortestFlash - way);
    let shown = 0;
    return {
        name: "Fading pictures",
        draw(t) {
            const u = n > 1 ? t % (n * (pause + way)) : 0;
            shown = Math.floor(u / (pause + way));
            const e = (u % (pause + way)) - pause;
            pen.drawImage(pictures[shown], 0, 0);
            if (n < 2) return Infinity;
            if (e < 0) return -e;
            const k = Math.floor((e * V) / 1000);
            pen.globalAlpha = calm() ? 0 : k / S;
            pen.drawImage(pictures[(shown + 1) % n], 0, 0);
            pen.globalAlpha = 1;
            return ((k + 1) * 1000) / V - e;
        },
        link: () => tag.text(`URL.${shown}`).replace(/^null$/i, ""),
    };
}
