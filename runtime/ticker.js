/** A strip at the foot of the window, in place of the status line that browsers no longer have. */
import { calm, make, ownPlace, pauseButton } from "./calm.js";
import { go, note, stop } from "./timers.js";

const ticker = "scrollit_r2l";
let text = "";
/** @type {ReturnType<typeof makeStrip> | undefined} */
let strip;
/** The message as a whole. */
let whole = "";

/** The words that were last put into the status line. */
export const status = () => text;

/** Makes the strip. As much height is added to the end of the page, and clicks go through it. */
function makeStrip() {
    const { host, inside } = ownPlace("display:block;clear:both;pointer-events:none");
    const shown = make("span", "shown");
    shown.setAttribute("aria-hidden", "true");
    const words = make("span", "words");
    const moves = !calm();
    if (!moves) stop(ticker);
    const button = pauseButton("the moving text", moves, (on) => {
        (on ? go : stop)(ticker);
        if (!on && calm()) show(whole);
    });
    const bar = make("div", "", button, words, shown);
    inside.append(bar);
    document.documentElement.append(host);
    return { host, bar, shown, words };
}

/**
 * Shows a text; a message that stands still in as many lines as it takes.
 * @param {string} now
 */
function show(now) {
    text = now;
    strip ??= makeStrip();
    strip.shown.textContent = text;
    const look = text === whole && calm() ? "strip still" : "strip";
    if (strip.bar.className === look) return;
    strip.bar.className = look;
    strip.host.style.height = strip.bar.offsetHeight + "px";
}

/**
 * Shows words as the status line did. Screen readers get each message once and whole, which it is
 * while blanks stand before it.
 * @param {any} value
 */
export function showStatus(value) {
    text = String(value);
    if (document.body?.localName !== "body") return;
    note(ticker);
    strip ??= makeStrip();
    const isNew = /^ {2}/.test(text) && whole !== text.trim();
    if (isNew) strip.words.textContent = whole = text.trim();
    show(isNew && calm() ? whole : text);
}
