/** How a block starts, and what its attributes and its content say. */

/**
 * Builds every block of a kind and format that was not built yet: those that the page has now, and
 * once it is read those that came later. A block that cannot be built stays as its author wrote it.
 * @param {string} kind such as "scroller-1"
 * @param {(root: HTMLElement) => void} build attaches a shadow root as its last step
 */
export function start(kind, build) {
    const all = () => {
        for (const root of document.querySelectorAll(`[data-orvane="${kind}"]`)) {
            try {
                if (!root.shadowRoot) build(/** @type {HTMLElement} */ (root));
            } catch {}
        }
    };
    all();
    on(document, "DOMContentLoaded", all);
}

/** @param {EventTarget} target @param {string} event @param {(event: any) => void} run */
export const on = (target, event, run) => target.addEventListener(event, run);

/** A number with its least and its greatest value, a text or a yes/no. */
/** @typedef {[value: number, least: number, most: number] | string | boolean} Default */

/**
 * The values of a block's fields: from its attributes, else the defaults.
 * @template {Record<string, Default>} T
 * @param {HTMLElement} root
 * @param {T} defaults
 * @returns {{[K in keyof T]: T[K] extends any[] ? number : T[K] extends boolean ? boolean : string}}
 */
export function fields(root, defaults) {
    /** @type {any} */
    const values = {};
    for (const name in defaults) {
        const text = root.dataset[name];
        /** @type {Default} */
        const standard = defaults[name];
        if (Array.isArray(standard)) {
            const [value, least, most] = standard;
            const number = parseFloat(/** @type {any} */ (text));
            values[name] = isNaN(number) ? value : Math.min(Math.max(number, least), most);
        } else values[name] = typeof standard === "boolean" && text != null ? text !== "no" : text || standard;
    }
    return values;
}

/**
 * A size in pixels; 0 leaves it as it is.
 * @type {[value: number, least: number, most: number]}
 */
export const size = [0, 0, 4000];

/** The fields of a text look; empty and 0 mean "as on the page". */
export const look = { font: "", fontSize: size, fontStyle: "", textColor: "" };

/**
 * Gives an element its looks: what is 0 or empty stays as it is.
 * @param {HTMLElement} element
 * @param {Partial<Record<"font" | "fontStyle" | "textColor" | "backColor", string>> &
 *     Partial<Record<"fontSize" | "width", number>>} values
 */
export function dress({ style }, { font, fontSize, fontStyle, textColor, backColor, width }) {
    if (font) style.fontFamily = font;
    if (fontSize) style.fontSize = fontSize + "px";
    if (fontStyle) {
        style.fontWeight = /bold/.test(fontStyle) ? "bold" : "normal";
        style.fontStyle = /italic/.test(fontStyle) ? "italic" : "normal";
    }
    if (textColor) style.color = textColor;
    if (backColor) style.background = backColor;
    if (width) style.width = width + "px";
}

/**
 * Copies of a block's list items, whose links open in `target`. Throws when there are none.
 * @param {HTMLElement} root
 * @param {string} [target]
 */
export function rows(root, target = "") {
    const items = [...root.querySelectorAll("li")].map((item) => {
        const row = /** @type {HTMLElement} */ (item.cloneNode(true));
        row.hidden = false;
        for (const link of row.querySelectorAll("a")) if (target) link.target = target;
        return row;
    });
    if (!items[0]) throw 0;
    return items;
}

/**
 * Puts the text of an effect on words in a line into boxes of its own.
 * @param {HTMLElement} root
 * @param {string} css
 * @param {Parameters<typeof dress>[1]} values
 */
export function words(root, css, values) {
    const text = make("span", "text", make("slot", ""));
    const box = make("span", "box", text);
    dress(box, values);
    place(root, "::slotted(script){display:none!important}" + css, box);
    return { text, box };
}

/**
 * A new element.
 * @template {keyof HTMLElementTagNameMap} T
 * @param {T} tag
 * @param {string} name its class
 * @param {(Node | string)[]} inside
 * @returns {HTMLElementTagNameMap[T]}
 */
export function make(tag, name, ...inside) {
    const element = document.createElement(tag);
    element.className = name;
    element.append(...inside);
    return element;
}

const base =
    ":host{all:initial!important;font:inherit!important;color:inherit!important;" +
    "letter-spacing:inherit!important;text-align:inherit!important;visibility:inherit!important}" +
    "ul,li,p{margin:0;padding:0;list-style:none}a{color:inherit}:focus-visible{outline:2px solid}";

/**
 * Puts the machinery into a block's shadow root, where the page's styles do not reach it. A DIV is
 * as wide as its place, a SPAN stands in its line.
 * @param {HTMLElement} root
 * @param {string} css
 * @param {Node[]} inside
 */
export function place(root, css, ...inside) {
    // A Content Security Policy of the page does not forbid sheets that are made like this.
    const sheet = new CSSStyleSheet();
    sheet.replaceSync(base + (root.localName === "div" ? ":host{display:block!important}" : "") + css);
    const shadow = root.attachShadow({ mode: "open" });
    shadow.adoptedStyleSheets = [sheet];
    shadow.append(...inside);
}
