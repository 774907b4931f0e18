/** Reads an APPLET tag, and makes the pictures and words that it asks for. */
import { attribute, make } from "../calm.js";

/** Something that a canvas can draw. @typedef {HTMLImageElement | HTMLCanvasElement} Picture */

/** An APPLET tag. @typedef {ReturnType<typeof readTag>} Tag */

/**
 * Reads an APPLET tag: its size in pixels, and its parameters, whose names ignore case.
 * @param {Element} applet
 */
export function readTag(applet) {
    /** @type {Record<string, string>} */
    const values = Object.create(null);
    for (const parameter of applet.querySelectorAll("param")) {
        const name = attribute(parameter, "name").toLowerCase();
        const value = attribute(parameter, "value");
        if (value.trim()) values[name] ??= value;
    }
    /**
     * A parameter's value without blanks around it; empty when it is missing.
     * @param {string} name
     */
    const text = (name) => (values[name.toLowerCase()] ?? "").trim();
    /**
     * The number at the start of a parameter, at most a million up or down; `missing` when there is
     * none or it is below `least`.
     * @param {string} name @param {number} missing @param {number} least
     */
    const number = (name, missing, least = -Infinity) => {
        const found = /^[+-]?\d+/.exec(text(name));
        const number = Math.min(Math.max(Number(found?.[0]), -1e6), 1e6);
        return number >= least ? number : missing;
    };
    /** A colour of three numbers, or `missing`. @param {string} name @param {string} missing */
    const color = (name, missing) => {
        const parts = text(name)
            .split(",", 3)
            .map((part) => parseInt(part));
        return parts.length < 3 || parts.some(isNaN) ? missing : `rgb(${parts})`;
    };
    /** How often the whole is shown; Infinity when no number above 0 is given. */
    const cycles = () => number("CYCLES", Infinity, 1);
    /**
     * The values of `name.0`, `name.1`, ... up to the first that is missing.
     * @param {string} name
     */
    const list = (name) => {
        const found = [];
        for (let value; (value = text(`${name}.${found.length}`));) found.push(value);
        return found;
    };
    return {
        applet,
        code: attribute(applet, "code").replace(/\.class$/i, ""),
        W: parseInt(attribute(applet, "width")) || 0,
        H: parseInt(attribute(applet, "height")) || 0,
        values,
        text,
        number,
        color,
        cycles,
        list,
    };
}

/**
 * A canvas with its drawing context, filled with a colour; it draws images without smoothing.
 * @param {number} w
 * @param {number} h
 * @param {string} color
 */
export function sheet(w, h, color) {
    const canvas = make("canvas");
    canvas.width = w;
    canvas.height = h;
    const pen = /** @type {CanvasRenderingContext2D} */ (canvas.getContext("2d"));
    pen.imageSmoothingEnabled = false;
    pen.fillStyle = color;
    pen.fillRect(0, 0, w, h);
    return { canvas, pen };
}

/**
 * A text broken at blanks into lines of a width in pixels; a word too wide for that is broken.
 * @param {CanvasRenderingContext2D} pen @param {string} text @param {number} width
 */
export function brokenLines(pen, text, width) {
    const fits = (/** @type {string} */ part) => pen.measureText(part).width <= width;
    const lines = [];
    for (let rest = text; ;) {
        let end = 1;
        while (end < rest.length && fits(rest.slice(0, end + 1))) end++;
        if (end >= rest.length) return [...lines, rest];
        const blank = rest.lastIndexOf(" ", end);
        if (blank > 0) end = blank;
        lines.push(rest.slice(0, end));
        rest = rest.slice(rest[end] === " " ? end + 1 : end);
    }
}

/**
 * A picture of words that say what is wrong.
 * @param {string} text
 * @param {number} w
 * @param {number} h
 */
export function words(text, w, h) {
    const { canvas, pen } = sheet(w, h, "white");
    pen.fillStyle = "black";
    pen.font = "12px sans-serif";
    brokenLines(pen, text, w - 8).forEach((line, i) => pen.fillText(line, 4, 16 + 15 * i));
    return canvas;
}

/**
 * An image file beside the page, or null when it cannot be loaded or has no name.
 * @param {string} name
 * @returns {Promise<HTMLImageElement | null>}
 */
export function load(name) {
    return new Promise((done) => {
        const image = new Image();
        image.onload = () => done(image.width && image.height ? image : null);
        image.onerror = () => done(null);
        if (name) image.src = name;
        else done(null);
    });
}

/**
 * A picture stretched to a size on white; words in its place when it is missing.
 * @param {string} name @param {string} parameter @param {number} w @param {number} h
 */
export async function stretched(name, parameter, w, h) {
    const image = await load(name);
    if (!image) return words(wrongWords(name, parameter), w, h);
    const { canvas, pen } = sheet(w, h, "white");
    pen.drawImage(image, 0, 0, w, h);
    return canvas;
}

/**
 * A show of one picture that stands still.
 * @param {string} name @param {CanvasRenderingContext2D} pen @param {Picture} picture
 * @returns {import("./applets.js").Show}
 */
export const shown = (name, pen, picture) => ({
    name,
    draw: () => (pen.drawImage(picture, 0, 0), Infinity),
});

/**
 * The words for a file that cannot be loaded, or for a parameter that does not name it.
 * @param {string} name @param {string} parameter @param {string} kind
 */
export const wrongWords = (name, parameter, kind = "image") =>
    name ? `The ${kind} "${name}" could not be loaded.` : `The parameter ${parameter} is missing.`;

/**
 * The pixels of a canvas, or null where the browser lets no script read those of files.
 * @param {HTMLCanvasElement} canvas
 */
export function pixelsOf(canvas) {
    try {
        const { width, height } = canvas;
        const pen = /** @type {CanvasRenderingContext2D} */ (canvas.getContext("2d"));
        return new Uint32Array(pen.getImageData(0, 0, width, height).data.buffer);
    } catch {
        return null;
    }
}
