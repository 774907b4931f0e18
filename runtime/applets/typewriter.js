/** A text that is typed letter by letter. */
import { read } from "../files.js";
import { play } from "../sounds.js";
import { brokenLines, load, shown, words, wrongWords } from "./tag.js";

/** @typedef {import("./tag.js").Tag} Tag */

const families = new Map([
    ["helvetica", "sans-serif"],
    ["dialog", "sans-serif"],
    ["timesroman", "serif"],
    ["courier", "monospace"],
]);
/** How long the whole text stands, in milliseconds. */
const rest = 2000;

/**
 * The lines of a text file beside the page, or null when it cannot be loaded.
 * @param {string} name
 */
async function linesOf(name) {
    const bytes = await read(name);
    if (!bytes) return null;
    let text;
    try {
        text = new TextDecoder("utf-8", { fatal: true }).decode(bytes);
    } catch {
        text = new TextDecoder("windows-1252").decode(bytes);
    }
    return text.split(/\r\n|\n|\r/);
}

/**
 * The lines as the tag gives them, or words that say why there are none.
 * @param {Tag} tag
 * @returns {Promise<string[] | string>}
 */
async function textOf(tag) {
    const text = tag.values["text.0"];
    if (text !== undefined) return text.split("\\");
    const file = tag.text("TEXTFILE");
    const lines = file && (await linesOf(file));
    if (lines) return lines;
    const wrong = wrongWords(file, "TEXT.0", "text file");
    return file && location.protocol === "file:"
        ? wrong + " Browsers let no page on the disk read it."
        : wrong;
}

/** The font as CSS writes it. @param {Tag} tag */
function fontOf(tag) {
    const name = tag.text("FONTNAME") || "Dialog";
    const style = tag.text("FONTSTYLE").toLowerCase();
    const words = ["italic", "bold"].filter((word) => style.includes(word));
    const family = families.get(name.toLowerCase()) ?? `"${name}", sans-serif`;
    return [...words, tag.number("FONTSIZE", 12, 1) + "px", family].join(" ");
}

/**
 * Types the text.
 * @param {Tag} tag @param {CanvasRenderingContext2D} pen
 * @returns {Promise<import("./applets.js").Show>}
 */
export async function typewriter(tag, pen) {
    const { W, H } = tag;
    const text = await textOf(tag);
    const paper = tag.text("BACKGROUND");
    const image = await load(paper);
    const wrong = paper && !image ? wrongWords(paper, "") : typeof text === "string" ? text : "";
    if (wrong) return shown(wrong, pen, words(wrong, W, H));

    const ground = tag.color("BGCOLOR", "white");
    const tile = image && pen.createPattern(image, "repeat");
    pen.font = fontOf(tag);
    const lines =
        typeof text === "string"
            ? []
            : text.flatMap((line) => brokenLines(pen, line.trimEnd(), W - 8));
    const N = lines.reduce((sum, line) => sum + line.length, 0);
    const { fontBoundingBoxAscent: ascent, fontBoundingBoxDescent: descent } = pen.measureText("x");
    const a = Math.round(ascent);
    const h = a + Math.round(descent);
    const speed = Math.max(tag.number("SPEED", 100), 1);
    const whole = N * speed + rest;
    const sound = tag.text("SOUND");
    let before = 0;

    /** Draws the first `count` letters. @param {number} count */
    const type = (count) => {
        for (const fill of [ground, tile]) {
            pen.fillStyle = fill ?? ground;
            pen.fillRect(0, 0, W, H);
        }
        let left = count;
        const typed = [];
        for (const line of lines) {
            if (left <= 0) break;
            typed.push(line.slice(0, left));
            left -= line.length;
        }
        const up = Math.max(typed.length - Math.max(Math.floor((H - 4) / h), 1), 0);
        pen.fillStyle = tag.color("FGCOLOR", "black");
        typed.forEach((line, j) => pen.fillText(line, 4, 4 + a + h * (j - up)));
    };
    return {
        name: lines.join(" "),
        draw(t) {
            if (t >= tag.cycles() * whole) return (type(N), Infinity);
            const u = t % whole;
            const count = Math.min(N, Math.floor(u / speed));
            if (count > before && sound) play(sound);
            before = count;
            type(count);
            return u < N * speed ? speed - (u % speed) : whole - u;
        },
        drawStill: () => type(N),
        link: () => tag.text("URL"),
    };
}
