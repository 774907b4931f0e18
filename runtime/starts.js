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

/** Calls `run` once the effects have started. @param {() => void} run */
export const afterStart = (run) => afterwards.push(run);

/**
 * Runs what a script puts into `window.onload` or `window.onunload` besides what is there.
 * @param {string} event @param {any} run
 */
export function listenLate(event, run) {
    if (typeof run === "function") window.addEventListener(event, (told) => run.call(window, told));
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
    const { body } = document;
    for (const [handler, run] of /** @type {const} */ ([
        ["onload", open],
        ["onunload", leave],
    ])) {
        const text = body?.getAttribute(handler) ?? null;
        const call = opensWindow(text) && readCall(text ?? "");
        if (!call) continue;
        /** @type {any} */ (body)[handler] = null;
        if (handler === "onload") window.addEventListener("load", () => run(call));
        else run(call);
    }
}

/** Opens the window of a call. @param {Call} call */
function open(call) {
    openWindow(.../** @type {[string, string, string]} */ (call.args()));
}

/** Offers the window of a call on leaving. @param {Call} call */
function leave(call) {
    openOnLeaving(.../** @type {[string, string, string]} */ (call.args()));
}

/**
 * Starts, once the page has loaded, the effects that nothing else has started: those whose
 * functions generated scripts have declared, and the calls that the page script's tag carries.
 * @param {DOMStringMap | undefined} carried the data of the page script's own tag
 */
export function startLate(carried) {
    window.addEventListener("load", () => {
        const called = String(window.onload);
        const late = [...starts.map(readCall), ...readCalls(carried?.onload)];
        const made = new Set();
        for (const call of /** @type {Call[]} */ (late)) {
            if (hasRun(call.name) || made.has(call.name) || called.includes(call.name + "("))
                continue;
            made.add(call.name);
            if (call.name === "window.open") open(call);
            else make(call);
        }
        for (const run of afterwards) run();
    });
    for (const call of readCalls(carried?.onunload)) {
        if (call.name === "window.open") leave(call);
        else window.addEventListener("pagehide", () => make(call));
    }
}
