/** Pages as authors have them, made of the expected texts, and the server that visitors reach. */
import { existsSync, readFileSync } from "node:fs";
import { createServer } from "node:http";

const expected = new URL("../../expected/", import.meta.url);

/** An expected text by its file's name. */
export const text = (name) => readFileSync(new URL(name, expected), "latin1");

/** The field of a row of a table of expected texts, by the row's first field. */
export const row = (table, key, field = 1) =>
    text(table)
        .split(/\r?\n/)
        .map((line) => line.split("\t"))
        .find(([first]) => first === key)[field];

/** An effect by its markers' name and its expected texts: a head and a body, or a body alone. */
export function effect(name, file) {
    const part = (end) => (existsSync(new URL(file + end, expected)) ? text(file + end) : "");
    return { name, head: part("_head.html"), body: part("_body.html") || part(".html") };
}

const marked = (name, code) =>
    code &&
    `<!-- ***** Begin:Varlo ${name} special effect ***** -->\r\n${code}` +
        `<!-- ***** End:Varlo ${name} special effect ***** -->`;

/**
 * A page: `effects` are {name, head, body}, `attributes` stand in its BODY tag; `script` is the
 * page script's tag, `authorHead` and `authorBody` what the author has written, `change` changes
 * the page as a whole.
 */
export function page({
    effects = [],
    attributes = "",
    doctype = true,
    authorHead = "",
    authorBody = "",
    script = "<SCRIPT SRC='orvane.js'></SCRIPT>",
    marks = true,
    change = (html) => html,
}) {
    const part = (which) =>
        effects
            .map((effect) =>
                marks ? marked(effect.name, effect[which] ?? "") : (effect[which] ?? ""),
            )
            .join("\r\n");
    return change(
        `${doctype ? "<!DOCTYPE html>" : ""}<HTML><HEAD>${script}${part("head")}${authorHead}` +
            `</HEAD><BODY ${attributes}>${part("body")}${authorBody}</BODY></HTML>`,
    );
}

/**
 * A picture of w by h pixels, w a multiple of 4, whose colours `pixel(x, y)` gives as [r, g, b].
 */
export function picture(w, h, pixel) {
    const bytes = Buffer.alloc(54 + 3 * w * h);
    bytes.write("BM");
    [bytes.length, 0, 54, 40, w, h, 1 | (24 << 16)].forEach((n, i) =>
        bytes.writeInt32LE(n, 2 + 4 * i),
    );
    for (let y = 0; y < h; y++)
        for (let x = 0; x < w; x++)
            bytes.set(pixel(x, y).reverse(), 54 + 3 * ((h - 1 - y) * w + x));
    return bytes;
}

const plain = (color, w = 100, h = 80) => picture(w, h, () => [...color]);
const pictures = {
    "a.gif": plain([255, 0, 0]),
    "b.gif": plain([0, 0, 255]),
    "photo.gif": plain([0, 0, 255], 200, 150),
    "paper.gif": plain([255, 255, 220]),
    "face.gif": picture(256, 256, (x, y) => [x, y, 128]),
    "lake.jpg": picture(320, 100, (x, y) => [x & 255, 2 * y, 0]),
    "pond.jpg": picture(320, 100, (x, y) => [(x >> 4) & 1 ? 255 : 0, y, 0]),
};
const empty = "R0lGODlhAQABAIAAAAAAAAAAACH5BAEAAAAALAAAAAABAAEAAAICRAEAOw==";

/** An image by its name; one that is not named above is red. */
const image = (name) =>
    name === "invisi.gif" ? Buffer.from(empty, "base64") : (pictures[name] ?? pictures["a.gif"]);

/** Serves `pages` (by path), the pictures and the page script; slow pages come piece by piece. */
export async function serve(pages, script) {
    const server = createServer(async (request, answer) => {
        const name = request.url.slice(1).split("?")[0];
        if (name === "orvane.js") return answer.end(script);
        if (/\.(gif|jpg)$/.test(name)) return answer.end(image(name));
        const found = pages.get(name);
        if (found === undefined) return answer.writeHead(404).end();
        answer.setHeader("Content-Type", "text/html; charset=windows-1252");
        if (!found.slow) return answer.end(found.html);
        for (let at = 0; at < found.html.length; at += found.slow) {
            answer.write(found.html.slice(at, at + found.slow));
            await new Promise((done) => setTimeout(done, 15));
        }
        answer.end();
    });
    await new Promise((done) => server.listen(0, done));
    return { at: `http://localhost:${server.address().port}/`, close: () => server.close() };
}
