/**
 * Calls that stand as texts in generated pages, such as `scrollit_r2l(98)` in a timer or
 * `window.open('a.html', 'news', 'width=300')` in a BODY tag. They are parsed here and made as
 * ordinary calls, so that no text has to be run as code.
 */

/**
 * A call: the function's name as written, and its arguments.
 * @typedef {{name: string, args: () => any[]}} Call
 */

/** One argument: a quoted text, a number or a global name, with the comma after it. */
const argument = /\s*(?:(['"])((?:(?!\1)[^\\]|\\.)*)\1|(-?[\d.]+)|([A-Za-z_$][\w$]*))\s*(,|$)/y;

/**
 * The call that a text holds, or null when it is anything else than one plain call.
 * @param {string} text
 * @returns {Call | null}
 */
export function readCall(text) {
    const found = /^\s*([A-Za-z_$][\w$.]*)\s*\(([^]*)\)\s*;?\s*$/.exec(text);
    if (!found) return null;
    /** @type {(() => any)[]} */
    const values = [];
    argument.lastIndex = 0;
    let more = found[2].trim() !== "";
    while (more) {
        const part = argument.exec(found[2]);
        if (!part) return null;
        const [, , quoted, number, name, comma] = part;
        if (quoted !== undefined) values.push(() => quoted.replace(/\\(.)/g, "$1"));
        else if (number !== undefined) values.push(() => Number(number));
        else values.push(() => /** @type {any} */ (window)[name]);
        more = comma === ",";
    }
    return { name: found[1], args: () => values.map((value) => value()) };
}

/**
 * The calls of a list separated by semicolons; what is no plain call is left out.
 * @param {string | undefined} text
 * @returns {Call[]}
 */
export function readCalls(text) {
    const calls = (text ?? "").split(/;(?=[\w.$]+\()/);
    return /** @type {Call[]} */ (calls.map(readCall).filter(Boolean));
}

/**
 * Makes a call to a function of the page; nothing happens when the page has none of that name.
 * @param {Call} call
 */
export function make(call) {
    /** @type {any} */ (window)[call.name]?.(...call.args());
}
