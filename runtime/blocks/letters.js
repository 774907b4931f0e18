/** A text as letters that can move one by one. */
import { make } from "./start.js";

/** Scripts whose letters are joined or run from right to left move word by word. */
const joined = /[\u0590-\u08ff\u1800-\u18af\ufb1d-\ufefc]/;

/**
 * The letters of a word, as readers count them.
 * @param {string} word
 */
const graphemes = (word) => Array.from(new Intl.Segmenter().segment(word), (one) => one.segment);

export const lettersCss =
    ".word,.word span{display:inline-block;white-space:nowrap}" +
    ".letters,.text{font-kerning:none;font-variant-ligatures:none}" +
    ".letters~.text{position:absolute;width:1px;height:1px;overflow:hidden;opacity:0}" +
    "@media print{.letters{display:none}.letters~.text{all:unset}}";

/**
 * A copy of a block's text in parts that can move, unseen by readers: letters with their words kept
 * together, or words when the text is longer than `most` letters. The copy lasts as long as the
 * movement; the text itself, `.text` behind it, is for readers until then.
 * @param {HTMLElement} root
 * @param {number} most
 */
export function letters(root, most) {
    const copy = make("span", "letters", ...root.cloneNode(true).childNodes);
    /** @type {HTMLElement[]} */
    const parts = [];
    for (const script of copy.querySelectorAll("script")) script.remove();
    const long = (copy.textContent ?? "").length > most;
    const part = (/** @type {string} */ text) => {
        const made = make("span", "", text);
        parts.push(made);
        return made;
    };
    const word = (/** @type {string} */ text) =>
        /\S/.test(text)
            ? make(
                  "span",
                  "word",
                  ...(long || joined.test(text) ? [text] : graphemes(text)).map(part),
              )
            : text;
    const split = (/** @type {Node} */ parent) => {
        for (const child of [...parent.childNodes]) {
            if (child instanceof Text) child.replaceWith(...child.data.split(/(\s+)/).map(word));
            else split(child);
        }
    };
    split(copy);
    copy.inert = true;
    copy.setAttribute("aria-hidden", "true");
    return { copy, parts };
}
