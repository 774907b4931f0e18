/** Thought Bubbles: what somebody on a picture thinks. */
import { dress, fields, look, make, on, place, start } from "../start.js";

const css =
    "figure{margin:0;position:relative;display:inline-block;max-width:100%;vertical-align:top}" +
    "img{display:block;max-width:100%;height:auto}" +
    ".spot{all:unset;position:absolute;width:28px;height:28px;margin:-14px;border-radius:50%;" +
    "cursor:pointer;background:#fffc;color:#222;text-align:center;font:700 16px/20px sans-serif;" +
    "box-shadow:0 0 0 1px #2224}.spot:focus-visible{outline:2px solid}" +
    ".bubble{position:absolute;z-index:9;box-sizing:border-box;padding:.9em 1.3em;" +
    "border-radius:2em;background:var(--paper);box-shadow:0 2px 8px #0005;text-align:center;" +
    "max-width:90vw;visibility:hidden;opacity:0}" +
    ".bubble.shown{visibility:visible;opacity:1}" +
    ".bubble::before,.bubble::after{content:'';position:absolute;left:var(--tail);" +
    "background:var(--paper);border-radius:50%;box-shadow:0 1px 3px #0005;margin-left:-7px;" +
    "top:calc(100% + 2px);width:14px;height:14px}" +
    ".bubble::after{top:calc(100% + 18px);width:8px;height:8px;margin-left:-4px}" +
    ".below::before{top:-16px}.below::after{top:-26px}" +
    "@media(prefers-reduced-motion:no-preference){.bubble{transition:opacity .2s}}" +
    "@media print{.spot{display:none}.bubble{position:static;visibility:visible;opacity:1}}";

/** How far a bubble is from its place, for its tail. */
const tail = 44;

start("bubble-1", (root) => {
    /** @type {[number, number, number]} */
    const middle = [50, 0, 100];
    const field = fields(root, {
        placeX: middle,
        placeY: middle,
        tail: "middle",
        width: [200, 60, 800],
        ...look,
        textColor: "#222222",
        paperColor: "#ffffff",
        show: "hover",
        secondPlaceX: middle,
        secondPlaceY: middle,
    });
    const picture = /** @type {HTMLImageElement} */ (root.querySelector("img")?.cloneNode());
    const figure = make("figure", "", picture);
    const always = field.show === "always";
    /** @type {{spot: HTMLElement, bubble: HTMLElement}[]} */
    const thoughts = [];
    let timer = 0;

    /** Shows one of the bubbles, inside the window, or none. @param {number} shown */
    const show = (shown) => {
        clearTimeout(timer);
        thoughts.forEach(({ spot, bubble }, i) => {
            const open = always || i === shown;
            bubble.classList.toggle("shown", open);
            spot.setAttribute("aria-expanded", String(open));
            if (!open) return;
            const at = spot.getBoundingClientRect();
            const frame = figure.getBoundingClientRect();
            const [x, y] = [at.left + at.width / 2, at.top + at.height / 2];
            const [w, h] = [bubble.offsetWidth, bubble.offsetHeight];
            const share = { left: 0.15, right: 0.85 }[field.tail] ?? 0.5;
            const { clientWidth } = document.documentElement;
            const left = Math.max(4, Math.min(x - w * share, clientWidth - w - 4));
            const below = y - h - tail < 0;
            bubble.classList.toggle("below", below);
            bubble.style.left = left - frame.left + "px";
            bubble.style.top = (below ? y + tail : y - h - tail) - frame.top + "px";
            bubble.style.setProperty("--tail", Math.max(24, Math.min(x - left, w - 24)) + "px");
        });
    };
    const hideSoon = () => {
        clearTimeout(timer);
        timer = setTimeout(show, 300, -1);
    };

    const texts = [...root.querySelectorAll("figcaption>*")];
    if (!texts[0]) throw 0;
    texts.slice(0, 2).forEach((text, i) => {
        const spot = make("button", "spot", "\u2026");
        spot.title = `What ${picture.alt || "is thought here"} is thinking`;
        spot.style.left = (i ? field.secondPlaceX : field.placeX) + "%";
        spot.style.top = (i ? field.secondPlaceY : field.placeY) + "%";
        const bubble = make("div", "bubble", ...text.cloneNode(true).childNodes);
        dress(bubble, field);
        bubble.style.setProperty("--paper", field.paperColor);
        thoughts.push({ spot, bubble });
        figure.append(spot, bubble);
        on(spot, "focus", () => spot.matches(":focus-visible") && show(i));
        on(spot, "blur", hideSoon);
        on(spot, "click", () => show(field.show === "click" && bubble.matches(".shown") ? -1 : i));
        if (field.show === "hover") {
            on(spot, "pointerenter", () => show(i));
            on(bubble, "pointerenter", () => show(i));
            on(spot, "pointerleave", hideSoon);
            on(bubble, "pointerleave", hideSoon);
        }
    });
    on(document, "keydown", ({ key }) => key === "Escape" && show(-1));
    on(window, "resize", () => always && show(-1));
    place(root, css, figure);
    if (always) {
        on(picture, "load", () => show(-1));
        show(-1);
    }
});
