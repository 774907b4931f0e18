/**
 * Watches the page while the browser parses it: an inline script of Orvane's is put into the
 * stand-ins' scope before it runs, an element of Orvane's is prepared, and all else stays as it is.
 */
import { make } from "./calm.js";
import { isOwn, ownScripts, slidesHaveBegun } from "./starts.js";

const credit = /(Varlo S|Orvane s)oftware/;
const marker = /^ \*{5} (Begin|End):Varlo ([^]*) special effect \*{5} $/;
/** The functions of the scripts that need the scope; scripts with other ones run as they are. */
const needs =
    /\sfunction (scrollit_r2l|moveSpan|loadImages|initMouseTrail|startHighlight|showBox|DigitalClock|playSound|addBookmark|closeWindow)\(/;
/** What never stands in Orvane's texts beside the markers. */
const otherTags = /^(body|h\d|hr|p|[dou]l)$/;
/** What the author wants left alone, and effects that run by themselves. */
const off = "[data-orvane-off],[data-orvane],[data-orvane-run]";
const brightens = "img[onmouseover*='startHighlight(']";
const opening = "with(document.currentScript.orvane){";
const closing = "\n}";

/** Whether the page script leaves an element alone. @param {Element} element */
export const isOff = (element) => !!element.closest(off);

/** @type {any} */
let scope;
/** The own text of each script that was put into the scope. @type {WeakMap<Element, string>} */
const wrapped = new WeakMap();
/** Whether scripts with this nonce may be changed. @type {Map<string | undefined, boolean>} */
const allowed = new Map();
/** The effect of each script between comments. @type {WeakMap<Element, string>} */
const between = new WeakMap();

/**
 * Runs a text as a script that can have the scope; does nothing where a policy forbids it.
 * @param {string} text @param {string} [nonce]
 */
function run(text, nonce) {
    const script = /** @type {any} */ (make("script"));
    script.orvane = scope;
    script.nonce = nonce;
    try {
        script.text = text;
        document.documentElement.append(script);
    } catch {
        // A policy wants texts that come from elsewhere.
    }
    script.remove();
    return script;
}

/**
 * Whether a policy of the page lets the script run with another text.
 * @param {HTMLScriptElement} script
 */
function mayChange({ nonce }) {
    if (!allowed.has(nonce))
        allowed.set(nonce, !run("document.currentScript.orvane=0", nonce).orvane);
    return allowed.get(nonce);
}

/**
 * Puts a script's text into the scope. A script that arrives in pieces is seen several times; the
 * parser then appends to the text that was put into the scope before.
 * @param {HTMLScriptElement} script
 * @param {boolean} [hasRun] whether it has run already; then what can be is made anew
 */
function wrap(script, hasRun) {
    if (script.src || isOff(script) || !/^$|javascript/i.test(script.type)) return;
    const own = wrapped.get(script);
    let text = script.text;
    if (own !== undefined) text = own + text.slice(opening.length + own.length + closing.length);
    const [, name] = needs.exec(text) ?? [];
    if (own === text || !name || !(own !== undefined || between.has(script) || credit.test(text)))
        return;
    ownScripts.add(script);
    if (!mayChange(script)) return;
    const whole = opening + text + closing;
    if (hasRun) {
        if (name === "initMouseTrail" || (name === "loadImages" && slidesHaveBegun()))
            console.warn(
                `orvane.js came too late for ${between.get(script) ?? name}: ` +
                    "its tag belongs right behind HEAD, without defer or async.",
            );
        else if (name !== "DigitalClock") run(whole, script.nonce);
        return;
    }
    wrapped.set(script, text);
    /** @type {any} */ (script).orvane = scope;
    const node = script.firstChild;
    if (node?.nodeType === 3 && node === script.lastChild) node.nodeValue = whole;
    else script.text = whole;
}

/**
 * Watches until the page is parsed, and gives a function that ends that.
 * @param {any} orvane the scope
 * @param {(element: HTMLElement) => void} prepare called once with each element of Orvane's
 */
export function watch(orvane, prepare) {
    scope = orvane;
    const comments = document.createTreeWalker(document, 128);
    const nodes = document.createTreeWalker(document, 129);
    const met = new WeakSet();
    /** The last node that was there. @type {Node} */
    let last = document;
    /** The comment that an effect's text begins with. @type {Node | null} */
    let begin = null;
    let effect = "";
    /** The one script of that text, once it was met. @type {HTMLScriptElement | null} */
    let script = null;
    let isFirst = true;

    /**
     * Whether an effect's text has ended before a node, although no comment says so.
     * @param {any} node
     */
    const isBehind = (node) =>
        (script && (node.localName === "script" || !needs.test(script.text))) ||
        (otherTags.test(node.localName) &&
            (node.parentNode === begin?.parentNode || node.localName === "body"));

    /** @param {any} node */
    const meet = (node) => {
        if (node.nodeType === 8) {
            const found = marker.exec(node.data);
            if (found) {
                [begin, script] = [found[1] === "Begin" ? node : null, null];
                effect = found[2];
            }
        } else if (!isOff(node)) {
            if (isBehind(node)) begin = null;
            else if (node.localName === "script") between.set((script = node), effect);
            else prepare(node);
        }
    };
    const observer = new MutationObserver(() => look());
    const look = () => {
        // Only what came since is walked through, element by element between comments alone.
        for (let node = last.isConnected ? last : document; ;) {
            const walker = begin ? nodes : comments;
            walker.currentNode = node;
            const next = walker.nextNode();
            if (!next) break;
            node = next;
            if (met.has(next)) continue;
            met.add(next);
            meet(next);
        }
        // The parser adds to these alone, and watching more would cost a long page much.
        observer.disconnect();
        for (last = document; ; last = last.lastChild) {
            if (last.nodeName === "SCRIPT" && document.readyState === "loading")
                wrap(/** @type {HTMLScriptElement} */ (last));
            observer.observe(last, { childList: true, characterData: true });
            if (!last.lastChild) break;
        }
        // What stands in front of the page script's tag has run.
        if (isFirst) for (const old of document.scripts) if (!wrapped.has(old)) wrap(old, true);
        isFirst = false;
    };
    look();
    return () => {
        look();
        observer.disconnect();
        if (isOwn("startHighlight"))
            for (const image of document.querySelectorAll(brightens))
                if (!met.has(image) && !isOff(image)) prepare(/** @type {HTMLElement} */ (image));
    };
}

/**
 * Tells of elements that a script of the author's puts in later. The browser's styles find them, so
 * that nothing is looked at while there are none.
 * @param {(element: HTMLElement) => void} found
 */
export function watchLater(found) {
    if (!document.adoptedStyleSheets) return;
    const sheet = new CSSStyleSheet();
    sheet.replaceSync("@keyframes orvane{to{order:0}}:where(applet){animation:orvane 1ms}");
    document.adoptedStyleSheets = [...document.adoptedStyleSheets, sheet];
    const tell = (/** @type {AnimationEvent} */ event) => {
        if (event.animationName !== "orvane") return;
        event.stopImmediatePropagation();
        found(/** @type {HTMLElement} */ (event.target));
    };
    addEventListener("animationstart", tell, true);
}
