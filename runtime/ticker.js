/** A strip at the foot of the window, in place of the status line that browsers no longer have. */
import { calm, ownPlace, pauseButton } from "./calm.js";
import { go, note, stop } from "./timers.js";

const look = `
  .strip { position: fixed; left: 0; right: 0; bottom: 0; height: 22px; z-index: 2147483646;
    display: flex; overflow: hidden; background: #eee; color: #000; border-top: 1px solid #888 }
  .shown { font: 13px/22px sans-serif; white-space: pre; padding-left: 4px }
  .words { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%);
    white-space: nowrap }`;

const ticker = "scrollit_r2l";
let text = "";
/** @type {{shown: HTMLElement, words: HTMLElement} | undefined} */
let strip;

/** The words that were last put into the status line. */
export const status = () => text;

/** Makes the strip. As much height is added to the end of the page, and clicks go through it. */
function makeStrip() {
    const { host, inside } = ownPlace(
        "all:initial;display:block;clear:both;height:23px;pointer-events:none",
        look,
    );
    const bar = document.createElement("div");
    bar.className = "strip";
    const shown = document.createElement("span");
    shown.className = "shown";
    shown.setAttribute("aria-hidden", "true");
    const words = document.createElement("span");
    words.className = "words";
    const moves = !calm();
    if (!moves) stop(ticker);
    const button = pauseButton("the moving text", moves, (on) => (on ? go : stop)(ticker));
    bar.append(button, words, shown);
    inside.append(bar);
    document.documentElement.append(host);
    return { shown, words };
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
    const whole = text.trim();
    if (/^ {2}/.test(text) && strip.words.textContent !== whole) {
        strip.words.textContent = whole;
        if (calm()) text = whole;
    }
    strip.shown.textContent = text;
}
