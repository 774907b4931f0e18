/**
 * Watches the page while the browser parses it: an inline script of Orvane's is put into the
 * stand-ins' scope before it runs, an element of Orvane's is prepared, and all else stays as it is.
 */

const credit = /Script written by Varlo Software|Created by Orvane software/;
const marker = /^ \*{5} (Begin|End):Varlo [^]* special effect \*{5} $/;
const opening = "with(orvane){";
const closing = "\n}";

/** The own text of each script that was put into the scope. @type {WeakMap<Element, string>} */
const wrapped = new WeakMap();
/** @type {WeakSet<Node>} */
const between = new WeakSet();

let inside = false;

/**
 * Puts a script's text into the scope. A script that arrives in pieces is seen several times; the
 * parser then appends to the text that was put into the scope before.
 * @param {HTMLScriptElement} script
 */
function wrap(script) {
    if (script.src || !/^$|javascript/i.test(script.type)) return;
    const own = wrapped.get(script);
    let text = script.text;
    if (own !== undefined) text = own + text.slice(opening.length + own.length + closing.length);
    if (own === text || (own === undefined && !between.has(script) && !credit.test(text))) return;
    wrapped.set(script, text);
    const whole = opening + text + closing;
    const node = script.firstChild;
    if (node instanceof Text && node === script.lastChild) node.data = whole;
    else script.text = whole;
}

/**
 * Whether an element's own tag shows that it is Orvane's, even without markers around it.
 * @param {Element} element
 */
const tells = (element) =>
    element.localName === "img" &&
    /startHighlight\(/.test(element.getAttribute("onmouseover") ?? "");

/**
 * Watches until the page is parsed.
 * @param {(element: HTMLElement) => void} prepare called once with each element of Orvane's
 */
export function watch(prepare) {
    /** @param {Node} node */
    const meet = (node) => {
        if (node instanceof Comment) {
            const found = marker.exec(node.data);
            if (found) inside = found[1] === "Begin";
        } else if (node instanceof HTMLScriptElement) {
            if (inside) between.add(node);
            wrap(node);
        } else if (node instanceof HTMLElement && (inside || tells(node))) prepare(node);
    };
    const met = new WeakSet();
    /** @param {MutationRecord[]} records */
    const read = (records) => {
        for (const { target, addedNodes } of records) {
            const script = target instanceof Text ? target.parentNode : target;
            if (script instanceof HTMLScriptElement && met.has(script)) wrap(script);
            for (const node of addedNodes) {
                if (met.has(node)) continue;
                met.add(node);
                meet(node);
            }
        }
    };
    const observer = new MutationObserver(read);
    observer.observe(document, { childList: true, subtree: true, characterData: true });
    document.addEventListener("DOMContentLoaded", () => {
        read(observer.takeRecords());
        observer.disconnect();
    });
}
