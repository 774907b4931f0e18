/** Text Button: a coloured link whose text changes under the mouse. */
import { dress, fields, look, make, place, size, start } from "../start.js";

const states = (/** @type {string} */ state) =>
    `a:${state}{color:var(--over);background:var(--over-back)}a:${state} .over{opacity:1}` +
    `a:${state} .two{opacity:0}`;
const css =
    "a{display:inline-grid;place-items:center;box-sizing:border-box;max-width:100%;" +
    "padding:.45em 1em;text-decoration:none;text-align:center;border:0 solid;" +
    "color:var(--rest);background:var(--rest-back)}" +
    "a>*{grid-area:1/1}.over{opacity:0}a:focus-visible{outline-offset:2px}" +
    ".shadow{box-shadow:0 1px 3px #0006}.shadow:active{box-shadow:none}" +
    `@media(hover:hover){${states("hover")}}${states("focus-visible")}${states("active")}`;

start("textbutton-1", (root) => {
    const { textColor: _, ...font } = look;
    const field = fields(root, {
        hoverText: "",
        target: "",
        textColor: "#ffffff",
        backColor: "#205080",
        hoverTextColor: "#ffffff",
        hoverBackColor: "#a03010",
        ...font,
        corners: [6, 0, 100],
        border: [0, 0, 20],
        shadow: true,
        width: size,
    });
    const link = /** @type {HTMLAnchorElement} */ (root.querySelector("a")?.cloneNode(true));
    const rest = make("span", field.hoverText && "two", ...link.childNodes);
    const hover = make("span", "over", field.hoverText);
    hover.setAttribute("aria-hidden", "true");
    link.append(rest, hover);
    link.className = field.shadow ? "shadow" : "";
    if (field.target) link.target = field.target;
    const { textColor, backColor, ...rests } = field;
    dress(link, rests);
    link.style.borderRadius = field.corners + "px";
    link.style.borderWidth = field.border + "px";
    for (const [name, color] of [
        ["rest", textColor],
        ["rest-back", backColor],
        ["over", field.hoverTextColor],
        ["over-back", field.hoverBackColor],
    ])
        link.style.setProperty("--" + name, color);
    place(root, css, link);
});
