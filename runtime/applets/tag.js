/** Reads an APPLET tag, and makes the pictures and words that it asks for. */

/** Something that a canvas can draw. @typedef {HTMLImageElement | HTMLCanvasElement} Picture */

/** An APPLET tag: its size in pixels, and its parameters, whose names ignore case. */
export class Tag {
    /** @param {Element} applet */
    constructor(applet) {
        this.applet = applet;
        this.code = (applet.getAttribute("code") ?? "").replace(/\.class$/i, "");
        this.W = parseInt(applet.getAttribute("width") ?? "") || 0;
        this.H = parseInt(applet.getAttribute("height") ?? "") || 0;
        /** @type {Map<string, string>} */
        this.values = new Map();
        for (const parameter of applet.querySelectorAll("param")) {
            const name = (parameter.getAttribute("name") ?? "").toLowerCase();
            const value = parameter.getAttribute("value") ?? "";
            if (value.trim() && !this.values.has(name)) this.values.set(name, value);
        }
    }

    /**
     * A parameter's value without blanks around it, or null when it is missing.
     * @param {string} name
     */
    text(name) {
        return this.values.get(name.toLowerCase())?.trim() ?? null;
    }

    /**
     * The number at the start of a parameter, at most a million up or down; `missing` when there is
     * none or it is below `least`.
     * @param {string} name @param {number} missing @param {number} least
     */
    number(name, missing, least = -Infinity) {
        const found = /^[+-]?\d+/.exec(this.text(name) ?? "");
        const number = Math.min(Math.max(Number(found?.[0]), -1e6), 1e6);
        return number >= least ? number : missing;
    }

    /** A colour of three numbers, or `missing`. @param {string} name @param {string} missing */
    color(name, missing) {
        const parts = (this.text(name) ?? "").split(",").map((part) => parseInt(part));
        return parts.length < 3 || parts.slice(0, 3).some(isNaN)
            ? missing
            : `rgb(${parts.slice(0, 3)})`;
    }

    /** How often the whole is shown; Infinity when no number above 0 is given. */
    cycles() {
        return this.number("CYCLES", Infinity, 1);
    }

    /**
     * The values of `name.0`, `name.1`, ... up to the first that is missing.
     * @param {string} name
     */
    list(name) {
        const values = [];
        for (let value; (value = this.text(`${name}.${values.length}`)) !== null;)
            values.push(value);
        return values;
    }
}

/**
 * A canvas with its drawing context, filled with a colour; it draws images without smoothing.
 * @param {number} w
 * @param {number} h
 * @param {string} color
 */
export function sheet(w, h, color) {
    const canvas = document.createElement("canvas");
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

/** The words for a missing parameter. @param {string} name */
export const missing = (name) => `The parameter ${name} is missing.`;

/**
 * An image file beside the page, or null when it cannot be loaded.
 * @param {string} name
 * @returns {Promise<HTMLImageElement | null>}
 */
export function load(name) {
    return new Promise((done) => {
        const image = new Image();
        image.onload = () => done(image.width && image.height ? image : null);
        image.onerror = () => done(null);
        image.src = name;
    });
}

/**
 * A picture stretched to a size on white; words in its place when it is missing.
 * @param {string | null} name @param {string} parameter @param {number} w @param {number} h
 */
export async function stretched(name, parameter, w, h) {
    const image = name === null ? null : await load(name);
    if (!image) return words(name === null ? missing(parameter) : notLoaded(name), w, h);
    const { canvas, pen } = sheet(w, h, "white");
    pen.drawImage(image, 0, 0, w, h);
    return canvas;
}

/** The words for an image that cannot be loaded. @param {string} name */
export const notLoaded = (name) => `The image "${name}" could not be loaded.`;

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
