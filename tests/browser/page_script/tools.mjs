/** What the checks share. */
import { page } from "./pages.mjs";

/** A check of an effect (null: of pages as such): what a visitor sees, and how it is seen. */
export const check = (effect, name, run) => ({ effect, name, run });

export const wait = (ms) => new Promise((done) => setTimeout(done, ms));

/**
 * Notes in `played` what the page plays, in `opened` the windows and in `boxes` the boxes that it
 * asks for.
 */
export const recorder = `window.played = []; window.opened = []; window.boxes = [];
  window.alert = (words) => boxes.push(words);
  window.prompt = (words) => (boxes.push(words), "bob");
  window.open = (...asked) => { opened.push(asked.join(" ")); return window.blocks ? null : {}; };
  HTMLMediaElement.prototype.play = async function () { played.push(this.src); };`;

/** The visitor wants as little motion as possible. */
export const calm = `window.motion = Object.assign(new EventTarget(), { matches: true });
  window.matchMedia = () => motion;
  window.wish = (less) => { motion.matches = less; motion.dispatchEvent(new Event("change")); };`;

/** `leave` lets the visitor turn to another tab and back; `drawn` counts what is drawn. */
export const tabs = `window.drawn = 0;
  Object.defineProperty(document, "hidden", { get: () => window.away === true });
  window.leave = (away) => ((window.away = away), document.dispatchEvent(new Event("visibilitychange")));
  for (const draw of ["drawImage", "putImageData"]) {
    const real = CanvasRenderingContext2D.prototype[draw];
    CanvasRenderingContext2D.prototype[draw] = function (...all) { drawn++; real.apply(this, all); };
  }`;

/** The clock that pictures are drawn by stands still; `turn` sets it and draws. */
export const stoppedClock = `window.clock = 1; performance.now = () => window.clock;
  window.turn = (t) => { clock = 1 + t; document.dispatchEvent(new Event("visibilitychange")); };`;

/** A visitor's tab on one page after the other. */
export class Visit {
    /**
     * `open` loads a page's text; pages have a doctype or not, and lead to the page script or not.
     */
    constructor(tab, open, { doctype, script = true }) {
        Object.assign(this, { tab, open, doctype, script });
    }

    /** Loads a page with these effects; `options` are those of a page and of `open`. */
    show(effects, options = {}) {
        const whole = page({ effects, doctype: this.doctype, ...options });
        const bare = /<script src=['"]?orvane\.js[^>]*><\/script>/gi;
        return this.open(this.script ? whole : whole.replace(bare, ""), options);
    }

    /** What a function gives in the page. */
    value(take, ...values) {
        return this.tab.evaluate(take, ...values);
    }

    /**
     * What it makes of the first such element in the page script's own places; null without one.
     */
    own(css, take, tab = this.tab) {
        return tab.evaluate(`(() => {
            const places = [...document.querySelectorAll("*")].map((e) => e.shadowRoot);
            const found = places.map((p) => p && p.querySelector(${JSON.stringify(css)}));
            const part = found.find(Boolean);
            return part ? (${take})(part) : null;
        })()`);
    }

    /** Its words. */
    words(css, tab) {
        return this.own(css, (part) => part.textContent, tab);
    }

    /** What the first button there is called by those who cannot see it. */
    button() {
        return this.own("button", (button) => button.getAttribute("aria-label"));
    }

    /** The canvas at a time: "r,g,b" at each of the points, which are written "x,y x,y". */
    async colors(t, points) {
        await this.turn(t);
        return (
            await this.pixels(points.split(" ").map((point) => point.split(",").map(Number)))
        ).join(" ");
    }

    /** How many of every fourth pixel of it are dark then. */
    async dark(t) {
        await this.turn(t);
        const [w, h] = await this.own("canvas", ({ width, height }) => [width, height]);
        const points = Array.from({ length: (w >> 1) * (h >> 1) }, (_, i) => [
            2 * (i % (w >> 1)),
            2 * Math.floor(i / (w >> 1)),
        ]);
        return (await this.pixels(points)).filter(([r, g]) => r + g < 200).length;
    }

    async turn(t) {
        await this.value((t) => window.turn?.(t), t);
        await wait(60);
    }

    /** The colours of the canvas at points, each [r, g, b]. */
    pixels(points) {
        const color = "([x, y]) => [...pen.getImageData(x, y, 1, 1).data.slice(0, 3)]";
        return this.own(
            "canvas",
            `(canvas) => { const pen = canvas.getContext("2d", { willReadFrequently: true });
                return ${JSON.stringify(points)}.map(${color}); }`,
        );
    }
}
