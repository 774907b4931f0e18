/**
 * What starts when the page has loaded, and what runs when the visitor leaves it. A BODY tag has
 * only one `onload` and a page only one `window.onload`; effects that were overwritten there start
 * all the same.
 */
import { make, readCall, readCalls } from "./calls.js";
import { hasRun } from "./timers.js";
import { openOnLeaving, openWindow } from "./windows.js";

/** @typedef {import("./calls.js").Call} Call */

/** The calls that start the effects which the BODY tag starts. */
const starts = ["scrollit_r2l(99)", "moveSpan()", "loadImages()"];

/** @type {(() => void)[]} */
const afterwards = [];
let started = false;

/** Calls `run` once the effects have started. @param {() => void} run */
export const afterStart = (run) => void (started ? run() : afterwards.push(run));

/** Orvane's scripts as they were written. @type {Map<Element, string>} */
const texts = new Map();

/** Notes a script of Orvane's. @param {Element} script @param {string} text */
export const noteOwn = (script, text) => void texts.set(script, text);

/** Whether the page's function of this name is Orvane's. @param {string} name */
export function isOwn(name) {
    const defined = /** @type {any} */ (window)[name];
    const code = String(defined);
    return typeof defined === "function" && [...texts.values()].some((text) => text.includes(code));
}

/** Whether the slideshow has made its images. */
export const slidesHaveBegun = () => /** @type {any} */ (window).mypix?.length > 0;

/**
 * Runs what a script puts into `window.onload` or `window.onunload` besides what is there.
 * @param {string} event @param {any} run
 */
export function listenLate(event, run) {
    if (typeof run === "function") addEventListener(event, (told) => run.call(window, told));
}

/**
 * Whether this is the window call that Orvane writes into a BODY tag.
 * @param {string | null} text
 */
const opensWindow = (text) =>
    /^\s*window\.open\([^]*,toolbar=(yes|no),status=[^]*\);?\s*$/.test(text ?? "");

/**
 * Takes over the calls of the BODY tag that browsers block: windows on load and on exit. Expects a
 * page that was parsed to its end, since a second BODY tag adds attributes to the first.
 */
export function takeBodyCalls() {
    const body = /** @type {any} */ (document.body);
    for (const [handler, run] of /** @type {const} */ ([
        ["onload", open],
        ["onunload", leave],
    ])) {
        const text = body?.getAttribute(handler) ?? null;
        const call = opensWindow(text) && readCall(text ?? "");
        if (!call || document.readyState === "complete") continue;
        const take = () => (body[handler] = null);
        if (handler === "onunload") run(call, take);
        else {
            take();
            addEventListener("load", () => run(call, take));
        }
    }
}

/** Opens the window of a call. @param {Call} call */
function open(call) {
    openWindow(.../** @type {[string, string, string]} */ (call.args()));
}

/** Offers the window of a call on leaving. @param {Call} call @param {() => void} [done] */
function leave(call, done = () => {}) {
    const [url, name, features] = /** @type {[string, string, string]} */ (call.args());
    openOnLeaving(url, name, features, done);
}

/** Whether the `onload` of the page makes a call to this function. @param {string} name */
const isCalled = (name) =>
    RegExp(`(^|[^\\w$.]|window\\.)${name.replace(/\W/g, "\\$&")}\\s*\\(`).test(
        String(window.onload),
    );

/** Whether an effect runs. @param {string} name the function that starts it */
const runs = (name) => (name === "loadImages" ? slidesHaveBegun() : hasRun(name));

/**
 * Starts, once the page has loaded, the effects that nothing else has started: those whose
 * functions generated scripts have declared, and the calls that the page script's tag carries.
 * @param {DOMStringMap | undefined} carried the data of the page script's own tag
 */
export function startLate(carried) {
    const start = () => {
        const made = new Set();
        const own = /** @type {Call[]} */ (starts.map(readCall)).filter(({ name }) => isOwn(name));
        for (const call of [...own, ...readCalls(carried?.onload)]) {
            if (runs(call.name) || made.has(call.name) || isCalled(call.name)) continue;
            made.add(call.name);
            if (call.name === "window.open") open(call);
            else make(call);
        }
        started = true;
        for (const run of afterwards) run();
    };
    // Behind all that the page itself does then.
    if (document.readyState === "complete") setTimeout(start);
    else addEventListener("load", () => setTimeout(start));
    for (const call of readCalls(carried?.onunload)) {
        if (call.name === "window.open") leave(call);
        else addEventListener("pagehide", () => make(call));
    }
}
