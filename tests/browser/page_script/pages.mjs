/** Pages as authors have them, made of the expected texts, and the pictures beside them. */

/** An expected text by its file's name; whoever runs the checks has set `expectedText` before. */
export const text = (name) => globalThis.expectedText(name);

/** The field of a row of a table of expected texts, by the row's first field. */
export const row = (table, key, field = 1) =>
    text(table)
        .split(/\r?\n/)
        .map((line) => line.split("\t"))
        .find(([first]) => first === key)[field];

/** An effect by its markers' name and its expected texts: a head and a body, or a body alone. */
export function effect(name, file) {
    const part = (end) => text(file + end) ?? "";
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
    const bytes = new Uint8Array(54 + 3 * w * h);
    bytes.set([0x42, 0x4d]);
    [bytes.length, 0, 54, 40, w, h, 1 | (24 << 16)].forEach((n, i) =>
        new DataView(bytes.buffer).setInt32(2 + 4 * i, n, true),
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
    "black.gif": plain([0, 0, 0], 40, 40),
    "white.gif": plain([255, 255, 255], 40, 40),
    "photo.gif": plain([0, 0, 255], 200, 150),
    "paper.gif": plain([255, 255, 220]),
    "face.gif": picture(256, 256, (x, y) => [x, y, 128]),
    "lake.jpg": picture(320, 100, (x, y) => [x & 255, 2 * y, 0]),
    "pond.jpg": picture(320, 100, (x, y) => [(x >> 4) & 1 ? 255 : 0, y, 0]),
    "invisi.gif": Uint8Array.from(
        atob("R0lGODlhAQABAIAAAAAAAAAAACH5BAEAAAAALAAAAAABAAEAAAICRAEAOw=="),
        (byte) => byte.charCodeAt(0),
    ),
};

/** The bytes of an image by its name; one that is not named above is red, "gone" is not there. */
export const image = (name) =>
    name.startsWith("gone") ? undefined : (pictures[name] ?? pictures["a.gif"]);
