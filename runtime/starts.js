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

/** Orvane's scripts. @type {Set<HTMLScriptElement>} */
export const ownScripts = new Set();

/** Whether the page's function of this name is Orvane's. @param {string} name */
export function isOwn(name) {
    const defined = /** @type {any} */ (window)[name];
    return defined && [...ownScripts].some((script) => script.text.includes(String(defined)));
}

/** Whether the slideshow has made its images. */
export const slidesHaveBegun = () => /** @type {any} */ (window).mypix?.length > 0;

/**
 * Runs what a script puts into `window.onload` or `window.onunload` besides what is there.
 * @param {string} event @param {any} run
 */
export function listenLate(event, run) {
    if (run) addEventListener(event, (told) => run.call(window, told));
}

/**
 * Takes over the calls of the BODY tag that browsers block: windows on load and on exit. Expects a
 * page that was parsed to its end, since a second BODY tag adds attributes to the first.
 */
export function takeBodyCalls() {
    const body = /** @type {any} */ (document.body);
    /** @param {string} handler @returns {any} */
    const callOf = (handler) => {
        const text = body?.getAttribute(handler) ?? "";
        const call = document.readyState !== "complete" && readCall(text);
        // Only such a window is Orvane's.
        return call && call.name === "window.open" && /,toolbar=/.test(text) && call;
    };
    const [load, unload] = [callOf("onload"), callOf("onunload")];
    if (load) {
        body.onload = null;
        addEventListener("load", () => openWindow(...argsOf(load)));
    }
    if (unload) openOnLeaving(argsOf(unload), () => (body.onunload = null));
}

/** What a call opens a window by. @param {Call} call @returns {[string, string, string]} */
const argsOf = (call) => /** @type {any} */ (call.args());

/** Whether the `onload` of the page makes a call to this function. @param {string} name */
const isCalled = (name) => RegExp(`(^|[^\\w$.]|window\\.)${name}\\(`).test(String(window.onload));

/** Whether an effect runs. @param {string} name the function that starts it */
const runs = (name) => (name === "loadImages" ? slidesHaveBegun() : hasRun(name));

/**
 * Starts, once the page has loaded, the effects that nothing else has started: those whose
 * functions generated scripts have declared, and the calls that the page script's tag carries.
 * @param {DOMStringMap | undefined} carried the data of the page script's own tag
 */
export function startLate(carried) {
    const start = () => {
        /** @type {string[]} */
        const made = [];
        const own = /** @type {Call[]} */ (starts.map(readCall)).filter(({ name }) => isOwn(name));
        for (const call of [...own, ...readCalls(carried?.onload)]) {
            if (runs(call.name) || made.includes(call.name) || isCalled(call.name)) continue;
            made.push(call.name);
            if (call.name === "window.open") openWindow(...argsOf(call));
            else make(call);
        }
        started = true;
        for (const run of afterwards) run();
    };
    // Behind all that the page itself does then.
    if (document.readyState === "complete") setTimeout(start);
    else addEventListener("load", () => setTimeout(start));
    for (const call of readCalls(carried?.onunload)) {
        if (call.name === "window.open") openOnLeaving(argsOf(call));
        else addEventListener("pagehide", () => make(call));
    }
}
