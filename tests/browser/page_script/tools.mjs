/** What the checks share. */
import { page } from "./pages.mjs";

/** A check of an effect: what a visitor sees, and how it is seen. */
export const check = (effect, name, run) => ({ effect, name, run });

export const wait = (ms) => new Promise((done) => setTimeout(done, ms));

/** Notes in `played` what the page plays, and in `opened` the windows that it asks for. */
export const recorder = `window.played = []; window.opened = [];
  window.open = (...asked) => { opened.push(asked.join(" ")); return window.blocks ? null : {}; };
  HTMLMediaElement.prototype.play = async function () { played.push(this.src); };`;

/** The visitor wants as little motion as possible. */
export const calm = `window.matchMedia = (query) => ({ matches: /motion: reduce/.test(query) });`;

/** The clock that pictures are drawn by stands still; `turn` sets it and draws. */
export const stoppedClock = `window.clock = 1; performance.now = () => window.clock;
  window.turn = (t) => { clock = 1 + t; document.dispatchEvent(new Event("visibilitychange")); };`;

/** A visitor's tab on one page after the other. */
export class Visit {
    /** `open` loads a page's text, `doctype` tells whether pages have one. */
    constructor(tab, open, doctype) {
        Object.assign(this, { tab, open, doctype });
    }

    /** Loads a page with these effects; `options` are those of a page and of `open`. */
    show(effects, options = {}) {
        return this.open(page({ effects, doctype: this.doctype, ...options }), options);
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
        await this.value((t) => window.turn(t), t);
        await wait(30);
        const color =
            '(point) => canvas.getContext("2d").getImageData(...point, 1, 1).data.slice(0, 3)';
        const list = JSON.stringify(points.split(" ").map((point) => point.split(",")));
        return this.own("canvas", `(canvas) => ${list}.map(${color}).join(" ")`);
    }

    /** How many pixels of it are dark then. */
    async dark(t) {
        await this.value((t) => window.turn(t), t);
        await wait(30);
        return this.own("canvas", (canvas) => {
            const { width, height } = canvas;
            const { data } = canvas.getContext("2d").getImageData(0, 0, width, height);
            return data.filter((part, i) => i % 4 === 0 && part + data[i + 1] < 200).length;
        });
    }
}
