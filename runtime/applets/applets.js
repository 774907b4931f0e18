/** The applets: a canvas in place of each tag, drawn by the rules in applets/README.md. */
import { calm, onSeen, overClass, ownPlace, pauseButton } from "../calm.js";
import { isOff } from "../watch.js";
import { animator } from "./animator.js";
import { cube } from "./cube.js";
import { fade } from "./fade.js";
import { lake } from "./lake.js";
import { ripple } from "./ripple.js";
import { Tag, sheet } from "./tag.js";
import { typewriter } from "./typewriter.js";

/**
 * What an applet draws. `draw` draws the picture at a time in milliseconds and gives the time until
 * it changes; `drawStill` draws the one picture that is shown when nothing may move.
 * @typedef {object} Show
 * @property {string} name its name for screen readers
 * @property {(t: number) => number} draw
 * @property {() => void} drawStill
 * @property {() => string | null} [link] where a click leads now
 * @property {() => boolean} [waits] whether it waits for a click or the pointer now
 * @property {(t: number) => void} [press] called at a click
 * @property {(t: number) => void} [over] called when the pointer moves over it
 */

/**
 * The function that makes the show of each applet, by the name of its class.
 * @type {Map<string, (tag: Tag, pen: CanvasRenderingContext2D) => Promise<Show>>}
 */
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

const look = "a { display: block; outline-offset: 2px } canvas { display: block }";

const aligned = new Map([
    ["left", "float:left"],
    ["right", "float:right"],
    ["top", "vertical-align:top"],
    ["texttop", "vertical-align:text-top"],
    ["middle", "vertical-align:middle"],
    ["absmiddle", "vertical-align:middle"],
    ["absbottom", "vertical-align:bottom"],
]);

/** Plays one show: keeps its clock, its link and its pause button. */
class Stage {
    /** Puts the canvas into the tag's place. @param {Tag} tag */
    constructor(tag) {
        const { applet, W, H } = tag;
        const px = (/** @type {string} */ name) =>
            (parseInt(applet.getAttribute(name) ?? "") || 0) + "px";
        const side =
            aligned.get((applet.getAttribute("align") ?? "").toLowerCase()) ??
            "vertical-align:baseline";
        const { host, inside } = ownPlace(
            `display:inline-block;position:relative;width:${W}px;` +
                `height:${H}px;margin:${px("vspace")} ${px("hspace")};${side}`,
            look,
        );
        // Letters are as sharp as the screen can show them.
        const dense =
            tag.code === "Typewriter9"
                ? Math.min(Math.max(devicePixelRatio, 1), 4, longest / Math.max(W, H))
                : 1;
        const ground = tag.color("BGCOLOR.0", tag.color("BGCOLOR", "white"));
        const { canvas, pen } = sheet(Math.round(W * dense), Math.round(H * dense), ground);
        canvas.style.cssText = `width:${W}px;height:${H}px`;
        pen.scale(canvas.width / W, canvas.height / H);
        canvas.setAttribute("role", "img");
        this.link = document.createElement("a");
        this.link.append(canvas);
        this.over = document.createElement("div");
        this.over.className = overClass(W, H);
        this.over.append(this.link);
        inside.append(this.over);
        for (const old of applet.children) /** @type {HTMLElement} */ (old).style.display = "none";
        applet.append(host);
        this.tag = tag;
        this.canvas = canvas;
        this.pen = pen;
        this.t = 0;
        /** When the picture changes next. */
        this.due = 0;
        this.seen = true;
        onSeen(host, (seen) => {
            this.seen = seen;
            if (seen) this.go();
            else this.pause();
        });
        /** When the clock was last read; null while it is stopped. @type {number | null} */
        this.last = null;
        this.moves = !calm();
        /** Counts starts and stops, so that drawings ordered before the last one are not made. */
        this.round = 0;
        /** @type {Show | null} */
        this.show = null;
        /** @type {HTMLElement | null} */
        this.button = null;
    }

    /** Begins the show, once its files have come. @param {Show} show */
    play(show) {
        this.show = show;
        this.canvas.setAttribute("aria-label", this.tag.applet.getAttribute("alt") ?? show.name);
        this.link.addEventListener("click", () => this.tell(show.press));
        for (const kind of ["pointermove", "pointerdown"])
            this.canvas.addEventListener(kind, () => this.tell(show.over));
        this.link.addEventListener("focus", () => this.tell(show.over));
        this.link.addEventListener("keydown", (event) => {
            if (event.key === "Enter" && !this.link.href) this.tell(show.press);
        });
        document.addEventListener("visibilitychange", () =>
            document.hidden ? this.pause() : this.go(),
        );
        addEventListener("pageshow", (event) => event.persisted && ((this.t = 0), this.go()));
        if (!this.moves) show.drawStill();
        this.setButton(true);
        this.setLink();
        this.go();
    }

    /**
     * Calls a function of the show for what the visitor did, unless the show is stopped.
     * @param {((t: number) => void) | undefined} told
     */
    tell(told) {
        if (!this.moves || !told) return;
        told(this.time());
        this.go();
    }

    /** The show's time in milliseconds, without the time in which it was stopped. */
    time() {
        const now = performance.now();
        this.t += now - (this.last ?? now);
        this.last = now;
        return this.t;
    }

    /** Goes on from the time at which the clock was stopped. */
    go() {
        if (!this.moves || document.hidden || !this.seen) return;
        this.due = 0;
        this.step(++this.round);
    }

    /** Stops the clock and the next drawing. */
    pause() {
        if (this.last !== null) this.time();
        this.last = null;
        this.round++;
    }

    /**
     * Draws, and orders the next drawing for the time when something changes.
     * @param {number} round
     */
    step(round) {
        if (round !== this.round || !this.show) return;
        const t = this.time();
        if (t >= this.due) {
            this.due = t + this.show.draw(t);
            this.setLink();
            this.setButton(this.due < Infinity || !!this.show.waits?.());
        }
        const wait = this.due - t;
        const again = () => requestAnimationFrame(() => this.step(round));
        if (wait < 20) again();
        else if (wait < Infinity) setTimeout(again, wait - 8);
    }

    /** Shows the button that stops and starts, or takes it away. @param {boolean} needed */
    setButton(needed) {
        if (!needed) {
            this.button?.remove();
            this.button = null;
        }
        if (!needed || this.button) return;
        this.button = pauseButton("the moving picture", this.moves, (on) => {
            if (!on) this.pause();
            this.moves = on;
            this.go();
        });
        this.over.append(this.button);
    }

    /** Gives the canvas the show's link, or makes it a button while the show waits for a click. */
    setLink() {
        const url = this.show?.link?.() ?? null;
        const waits = !!this.show?.waits?.();
        if (url === this.link.getAttribute("href") && waits === this.link.hasAttribute("tabindex"))
            return;
        if (url === null) this.link.removeAttribute("href");
        else this.link.href = url;
        this.link.target = this.tag.text("TARGET") ?? this.tag.text("TARGET.0") ?? "";
        this.link.toggleAttribute("tabindex", waits);
        if (waits) this.link.tabIndex = 0;
        if (waits && url === null) this.link.setAttribute("role", "button");
        else this.link.removeAttribute("role");
    }
}

/** The tags that were looked at. */
const met = new WeakSet();

/** Shows an applet if Orvane has made it. @param {HTMLElement} applet */
export function runApplet(applet) {
    const tag = new Tag(applet);
    const kind = kinds.get(tag.code);
    const [least, most] = [Math.min(tag.W, tag.H), Math.max(tag.W, tag.H)];
    const isOwn = kind && /Orvane/.test(tag.text("WIZARD") ?? "");
    if (!isOwn || isOff(applet) || met.has(applet) || least < 1 || most > longest) return;
    met.add(applet);
    const stage = new Stage(tag);
    kind(tag, stage.pen).then((show) => stage.play(show));
}
