/** The applets: a canvas in place of each tag, drawn by the rules in applets/README.md. */
import { now } from "../platform.js";
import { attribute, calm, make, onSeen, overClass, ownPlace, pauseButton } from "../calm.js";
import { isOff } from "../watch.js";
import { animator } from "./animator.js";
import { cube } from "./cube.js";
import { fade } from "./fade.js";
import { lake } from "./lake.js";
import { ripple } from "./ripple.js";
import { readTag, sheet } from "./tag.js";
import { typewriter } from "./typewriter.js";

/**
 * What an applet draws. `draw` draws the picture at a time in milliseconds and gives the time until
 * it changes; `drawStill` draws the one picture that is shown when nothing may move, by default the
 * first.
 * @typedef {object} Show
 * @property {string} name its name for screen readers
 * @property {(t: number) => number} draw
 * @property {() => void} [drawStill]
 * @property {() => string} [link] where a click leads now; empty for nowhere
 * @property {() => boolean} [waits] whether it waits for a click or the pointer now
 * @property {(t: number) => void} [press] called at a click
 * @property {(t: number) => void} [over] called when the pointer moves over it
 */

/**
 * Makes the show of an applet.
 * @typedef {(tag: import("./tag.js").Tag, pen: CanvasRenderingContext2D) => Promise<Show>} Kind
 */

/** The kinds of applets, by the name of the class. @type {Map<string, Kind>} */
const kinds = new Map([
    ["Animate1", animator],
    ["Typewriter9", typewriter],
    ["TmapCube", cube],
    ["Lake", lake],
    ["ripple", ripple],
    ["ImageFade2ech", fade],
]);

/** No browser draws on a canvas with longer sides; such an applet stays as it is. */
const longest = 32767;

/**
 * Puts a canvas into the tag's place and plays the show on it: keeps its clock, its link and its
 * pause button.
 * @param {import("./tag.js").Tag} tag @param {Kind} kind
 */
async function play(tag, kind) {
    const { applet, code, W, H, text, color } = tag;
    const px = (/** @type {string} */ name) => (parseInt(attribute(applet, name)) || 0) + "px";
    const side = attribute(applet, "align")
        .toLowerCase()
        .replace(/^bottom$|^abs|\W/g, "");
    const { host, inside } = ownPlace(
        `display:inline-block;position:relative;width:${W}px;` +
            `height:${H}px;margin:${px("vspace")} ${px("hspace")};` +
            // Browsers take the one of the two that has such a value.
            `float:${side};vertical-align:${side.replace("ttop", "t-top")}`,
    );
    // Letters are as sharp as the screen can show them.
    const dense = code === "Typewriter9" && W + H < 5000 ? devicePixelRatio : 1;
    const { canvas, pen } = sheet(
        W * dense,
        H * dense,
        color("BGCOLOR.0", color("BGCOLOR", "white")),
    );
    canvas.style.cssText = `width:${W}px;height:${H}px`;
    canvas.setAttribute("role", "img");
    pen.scale(dense, dense);
    const link = make("a", "", canvas);
    link.target = text("TARGET") || text("TARGET.0");
    const over = make("div", overClass(W, H), link);
    inside.append(over);
    for (const old of applet.children) /** @type {HTMLElement} */ (old).style.display = "none";
    applet.append(host);
    const show = await kind(tag, pen);
    let t = 0;
    /** When the clock was last read; null while it is stopped. @type {number | null} */
    let last = null;
    /** When the picture changes next. */
    let due = 0;
    let moves = !calm();
    let seen = true;
    /** Counts starts and stops, so that drawings ordered before the last one are not made. */
    let round = 0;
    /** @type {HTMLElement | null} */
    let button = null;

    /** The show's time in milliseconds, without the time in which it was stopped. */
    const time = () => {
        const since = last ?? now();
        t += (last = now()) - since;
        return t;
    };
    const pause = () => {
        if (last !== null) time();
        last = null;
        round++;
    };
    /** Goes on from the time at which the clock was stopped, where that may be. */
    const go = () => {
        if (document.hidden || !seen) return pause();
        due = 0;
        if (moves) step(++round);
    };
    /** Draws, and orders the drawing of the next change. @param {number} now */
    const step = (now) => {
        if (now !== round) return;
        if (time() >= due) {
            due = t + show.draw(t);
            setLink();
            setButton(due < Infinity || show.waits?.());
        }
        const again = () => requestAnimationFrame(() => step(now));
        if (due - t < 20) again();
        else if (due < Infinity) setTimeout(again, due - t - 8);
    };
    /** Shows the button that stops and starts, or takes it away. @param {boolean} [needed] */
    const setButton = (needed) => {
        if (!needed) {
            button?.remove();
            button = null;
        } else if (!button)
            over.append(
                (button = pauseButton("the moving picture", moves, (on) => {
                    if (!on) pause();
                    moves = on;
                    go();
                })),
            );
    };
    /** Gives the canvas the show's link, or makes it a button while the show waits for a click. */
    const setLink = () => {
        const url = show.link?.() ?? "";
        const waits = !!show.waits?.();
        if (url === attribute(link, "href") && waits === link.hasAttribute("tabindex")) return;
        const set = (/** @type {string} */ name, /** @type {string | false} */ value) =>
            value ? link.setAttribute(name, value) : link.removeAttribute(name);
        set("href", url);
        set("tabindex", waits && "0");
        set("role", waits && !url && "button");
    };
    /** Tells the show what the visitor did, unless it is stopped. @param {"press" | "over"} what */
    const tell = (what) => {
        if (!moves || !show.waits?.()) return;
        show[what]?.(time());
        go();
    };

    canvas.setAttribute("aria-label", applet.getAttribute("alt") ?? show.name);
    link.onclick = () => tell("press");
    link.onkeydown = ({ key }) => void (key === "Enter" && !link.href && tell("press"));
    link.onfocus = canvas.onpointermove = () => tell("over");
    document.addEventListener("visibilitychange", go);
    addEventListener("pageshow", ({ persisted }) => persisted && ((t = 0), go()));
    onSeen(host, (now) => ((seen = now), go()));
    if (!moves) (show.drawStill ?? show.draw)(0);
    setButton(true);
    setLink();
    go();
}

/** The tags that were looked at. */
const met = new WeakSet();

/** Shows an applet if Orvane has made it. @param {HTMLElement} applet */
export function runApplet(applet) {
    const tag = readTag(applet);
    const kind = kinds.get(tag.code);
    const [least, most] = [Math.min(tag.W, tag.H), Math.max(tag.W, tag.H)];
    const isOwn = kind && /Orvane/.test(tag.text("WIZARD"));
    if (!isOwn || isOff(applet) || met.has(applet) || least < 1 || most > longest) return;
    met.add(applet);
    play(tag, kind);
}
