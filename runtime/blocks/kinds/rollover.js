/** Image Rollover: words or pictures that change another picture. */
import { decoded } from "../pictures.js";
import { fields, make, on, place, rows, size, start } from "../start.js";

const css =
    ".box{display:flex;flex-wrap:wrap;gap:.8em;align-items:flex-start}li{margin-bottom:.3em}" +
    "button{all:unset;cursor:pointer}a,button{display:inline-block;padding:.15em}.stage{display:grid;flex:none;max-width:100%}" +
    ".stage img{grid-area:1/1;max-width:100%;height:auto;opacity:0;transition:opacity var(--fade)}" +
    ".stage .shown{opacity:1}.wide img{width:100%}" +
    "@media(prefers-reduced-motion:reduce){.stage img{transition:none}}";

start("rollover-1", (root) => {
    const field = fields(root, {
        first: [1, 0, 100],
        fadeMilliseconds: [250, 0, 3000],
        keepLast: true,
        width: size,
        target: "",
    });
    const triggers = rows(root, field.target);
    const shown = triggers.map((item) => {
        const own = /** @type {NodeListOf<HTMLImageElement>} */ (item.querySelectorAll("img"));
        const picture = own[own.length - 1];
        picture.loading = "eager";
        picture.remove();
        // What leads nowhere must come to the keyboard all the same.
        if (!item.querySelector("a[href]")) item.append(make("button", "", ...item.childNodes));
        return picture;
    });
    const stage = make("div", field.width ? "stage wide" : "stage", ...shown);
    if (field.width) stage.style.width = field.width + "px";
    stage.style.setProperty("--fade", field.fadeMilliseconds + "ms");
    const show = (/** @type {number} */ n) =>
        shown.forEach((picture, i) => {
            picture.classList.toggle("shown", i === n);
            // Only what is seen is there for screen readers.
            picture.setAttribute("aria-hidden", String(i !== n));
        });
    triggers.forEach((item, i) => {
        on(item, "pointerenter", () => show(i));
        on(item, "focusin", () => show(i));
        on(item, "click", () => show(i));
        if (field.keepLast) return;
        on(item, "pointerleave", () => show(field.first - 1));
        on(item, "focusout", () => show(field.first - 1));
    });
    show(field.first - 1);
    place(root, css, make("div", "box", make("ul", "", ...triggers), stage));
    decoded(shown);
});
