/**
 * The timers of generated scripts. They make no calls while the page is hidden, while the visitor
 * has stopped their effect, and while it has nothing to do. Their ids are the browser's own.
 */
import { make, readCall } from "./calls.js";
import { onSeen } from "./calm.js";

/** @typedef {import("./calls.js").Call} Call */

/** Calls that came due while their effect rested, by timer id. @type {Map<number, Call>} */
const waiting = new Map();
/** Functions that the visitor has stopped. @type {Set<string>} */
const stopped = new Set();
/** Functions whose effect is off the screen. @type {Set<string>} */
const away = new Set();
/** The functions that running intervals call, by the interval's id. @type {Map<number, string>} */
const intervals = new Map();
/** Functions that timers or effects have named. @type {Set<string>} */
const seen = new Set();

/** Shortest pauses between two calls of a function, in milliseconds. @type {Map<string, number>} */
export const shortest = new Map();
/**
 * By function: tells whether its next calls may wait until `go`, as they have nothing to do.
 * @type {Map<string, () => boolean>}
 */
export const idle = new Map();
/**
 * By function: called when an interval that calls it begins or ends, with whether one still runs.
 * @type {Map<string, (runs: boolean) => void>}
 */
export const onInterval = new Map();

/** Whether the calls of a function rest now. @param {string} name */
const rests = (name) => document.hidden || stopped.has(name) || away.has(name);

/** Whether a timer was set for this function, or `note` was called with it. @param {string} name */
export const hasRun = (name) => seen.has(name);

/** Notes that an effect has started. @param {string} name */
export const note = (name) => seen.add(name);

/** Lets the timers that call this function rest. @param {string} name */
export const stop = (name) => stopped.add(name);

/** Lets them go on. @param {string} name */
export function go(name) {
    stopped.delete(name);
    wake();
}

/**
 * Lets them rest while an element is off the screen.
 * @param {string} name @param {Element} element
 */
export const restUnseen = (name, element) =>
    onSeen(element, (seen) => {
        if (seen) away.delete(name);
        else away.add(name);
        wake();
    });

/** Makes the calls that have waited and whose effect does not rest now. */
function wake() {
    for (const [id, call] of [...waiting]) {
        if (rests(call.name)) continue;
        waiting.delete(id);
        make(call);
    }
}
document.addEventListener("visibilitychange", wake);

/** Calls the function's entry in `onInterval`. @param {string} name */
function tellInterval(name) {
    onInterval.get(name)?.([...intervals.values()].includes(name));
}

/**
 * The call that the browser's timer is to make for a text: `run` for its call. What is no plain
 * call is handed on.
 * @param {any} code @param {(call: Call) => void} run
 */
function handler(code, run) {
    const call = typeof code === "string" && readCall(code);
    if (!call) return { code, name: "" };
    seen.add(call.name);
    return { code: () => run(call), name: call.name };
}

/** The timer functions that generated scripts see in place of the browser's. */
export const timers = {
    /** @param {any} text @param {number} pause @param {any[]} rest */
    setTimeout(text, pause, ...rest) {
        const { code, name } = handler(text, (call) => {
            if (rests(call.name)) waiting.set(id, call);
            else make(call);
        });
        if (idle.get(name)?.()) stop(name);
        const id = setTimeout(code, pause, ...rest);
        return id;
    },
    /** @param {any} text @param {number} pause @param {any[]} rest */
    setInterval(text, pause, ...rest) {
        const { code, name } = handler(text, (call) => {
            if (!rests(call.name)) make(call);
        });
        const id = setInterval(code, Math.max(pause, shortest.get(name) ?? 0), ...rest);
        intervals.set(id, name);
        tellInterval(name);
        return id;
    },
    /** @param {number} id */
    clearTimeout(id) {
        waiting.delete(id);
        clearTimeout(id);
        const name = intervals.get(id);
        if (name === undefined) return;
        intervals.delete(id);
        tellInterval(name);
    },
    /** @param {number} id */
    clearInterval(id) {
        timers.clearTimeout(id);
    },
};
