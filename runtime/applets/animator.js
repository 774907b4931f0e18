/** Animations of several images, and the effects of one image that comes and goes. */
import { calm, shortestFlash } from "../calm.js";
import { play } from "../sounds.js";
import { load, pixelsOf, sheet, words, wrongWords } from "./tag.js";
import { drawTransition, isWay, readTransition } from "./transitions.js";

/** @typedef {import("./tag.js").Tag} Tag */

/** The image of one pixel that stands for an empty frame. */
const blank = "invisi.gif";

/** How many parts of a picture are compared, along each side. */
const parts = 16;

/**
 * The light of each part of a picture, and how red and how blue it is beside the opposed colours;
 * empty when its pixels cannot be read.
 * @param {HTMLCanvasElement} picture
 */
function lightOf(picture) {
    const { canvas, pen } = sheet(parts, parts, "white");
    pen.imageSmoothingEnabled = true;
    pen.drawImage(picture, 0, 0, parts, parts);
    return Array.from(pixelsOf(canvas) ?? [], (pixel) => {
        const [r, g, b] = [pixel & 255, (pixel >> 8) & 255, (pixel >> 16) & 255];
        return [0.2126 * r + 0.7152 * g + 0.0722 * b, (r - g) / 4, (b - (r + g) / 2) / 4];
    });
}

/** A quarter of 341 by 256 pixels, from which on a flash counts on pages. */
const flashArea = 21824;

/**
 * Whether the change between two pictures counts as half a flash: so much of them differs in light,
 * as from or to red, or as opposed colours do. Pictures that cannot be read may.
 * @param {number[][]} from @param {number[][]} to @param {number} area that of the pictures
 */
function differ(from, to, area) {
    const least = Math.min(area / 4, flashArea);
    if (!from.length || !to.length) return area >= flashArea;
    const other = from.filter((part, i) => part.some((sum, k) => Math.abs(sum - to[i][k]) > 25));
    return (other.length * area) / parts ** 2 >= least;
}

/**
 * The frames: pictures of the area's size, each with an image in the middle or words if it is
 * missing.
 * @param {Tag} tag
 * @param {string[]} names
 * @param {string} ground
 */
async function frames({ W, H }, names, ground) {
    const images = await Promise.all(names.map(load));
    return images.map((image, i) => {
        if (!image) return words(wrongWords(names[i], ""), W, H);
        const { canvas, pen } = sheet(W, H, ground);
        pen.drawImage(image, Math.floor((W - image.width) / 2), Math.floor((H - image.height) / 2));
        return canvas;
    });
}

/**
 * The link of a frame: its own, or that of the nearest frame before it that has one.
 * @param {string[]} links @param {number} frame
 */
function linkOf(links, frame) {
    while (frame > 0 && !links[frame]) frame--;
    return (links[frame] ?? "").replace(/^null$/i, "");
}

/**
 * The transition from each frame to the next, as the tag writes it; empty for none.
 * @param {Tag} tag
 * @param {number} n
 */
function stepsOf(tag, n) {
    const type = (/** @type {number} */ i) => tag.text(`TRANSITION.TYPE.${i}`);
    const leaves = (/** @type {number} */ i) => /^(slideout|shrink)/i.test(type(i));
    const step = (/** @type {number} */ i) => {
        if (tag.text("TRANSITION.LIST")) return type(i);
        if (i === n - 1) return "";
        const into = type(i + 1) && (!leaves(i + 1) || i + 1 === n - 1);
        return into ? type(i + 1) : leaves(i) ? type(i) : "";
    };
    return Array.from({ length: n }, (_, i) => step(i));
}

/**
 * Shows the frames one after the other.
 * @param {Tag} tag @param {CanvasRenderingContext2D} pen
 * @returns {Promise<import("./applets.js").Show>}
 */
export async function animator(tag, pen) {
    const names = tag.list("IMAGE");
    const n = names.length;
    const ground = tag.color("BGCOLOR.0", "white");
    const pictures = n
        ? await frames(tag, names, ground)
        : [words(wrongWords("", "IMAGE.0"), tag.W, tag.H)];
    const lights = pictures.map(lightOf);
    const steps = stepsOf(tag, n);
    const usual = tag.text("TRANSITION.RATE.0").startsWith("-") ? 0 : 20;
    const each = tag.number("TRANSITION.RATE.0", usual, 0) + 10;
    const S = tag.number("TRANSITION.STEP.0", 20, 1);
    const links = names.map((_, i) => tag.text(`URL.${i}`));

    let frame = 0;
    let cycle = 1;
    // No frame stands yet, so the first draw() begins with frame 0.
    let since = Infinity;
    /** @type {import("./transitions.js").Transition | null} */
    let under = null;

    const next = () => (frame + 1) % n;
    const ends = () => n < 2 || (frame === n - 1 && cycle >= tag.cycles());
    const pause = () => {
        const asked = tag.number(`PAUSE.${frame}`, 100, -2);
        if (asked < 0) return asked;
        const way = isWay(steps[frame]) && !calm() ? S * each : 0;
        // A quick shutter, which closes and opens, is a flash by itself.
        const closes =
            /^\s*(shutter|random)/i.test(steps[frame]) && S * each < 2 * shortestFlash && !calm();
        const changes = closes ? 2 : Number(differ(lights[frame], lights[next()], tag.W * tag.H));
        return Math.max(asked, changes * shortestFlash - way, 10);
    };
    const stand = (/** @type {number} */ t) => {
        since = t;
        const sound = tag.text(`SOUND.${frame}`);
        if (sound && /^auto$/i.test(tag.text("SOUND.ACTIVATION.0"))) play(sound);
    };
    const arrive = (/** @type {number} */ t) => {
        under = null;
        if (frame === n - 1) cycle++;
        frame = next();
        stand(t);
    };
    const leave = (/** @type {number} */ t) => {
        under = calm() ? null : readTransition(steps[frame], tag.text("TRANSITION.LIST"));
        since = t;
        if (!under) arrive(t);
    };
    /**
     * Goes on to time t; ends when frames without pause and transition have all had their turn.
     * @param {number} t
     */
    const advance = (t) => {
        for (let idle = 0, before = since; idle <= 2 * n; idle = since > before ? 0 : idle + 1) {
            before = since;
            if (under) {
                if (t < since + S * each) return;
                arrive(since + S * each);
            } else {
                if (ends()) return;
                const p = pause();
                if (p < 0 || t < since + p) return;
                leave(since + p);
            }
        }
        since = t;
    };
    const waits = () => !under && !ends() && pause() < 0;
    return {
        name: "Animation",
        draw(t) {
            if (t < since) {
                [frame, cycle, under] = [0, 1, null];
                stand(0);
            }
            advance(t);
            if (under) {
                const k = Math.floor((t - since) / each);
                drawTransition(
                    pen,
                    under,
                    pictures[frame],
                    pictures[next()],
                    k,
                    S,
                    tag.color("FGCOLOR.0", ground),
                );
                return (k + 1) * each - (t - since);
            }
            pen.drawImage(pictures[frame], 0, 0);
            return ends() || pause() < 0 ? Infinity : since + pause() - t;
        },
        drawStill() {
            const seen = names.findIndex((name) => name.toLowerCase() !== blank);
            pen.drawImage(pictures[Math.max(seen, 0)], 0, 0);
        },
        link: () => linkOf(links, frame),
        waits,
        press: leave,
        over: (t) => void (pause() === -2 && leave(t)),
    };
}
