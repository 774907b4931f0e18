/** Navigator Ticker: a colourful band of links. */
import { buttonCss, motion, restUnder } from "../calm.js";
import { dress, fields, look, make, place, rows, size, start } from "../start.js";
import { strip, stripCss } from "../strip.js";

const css =
    ".box{display:flex;align-items:center;max-width:100%;min-height:2em}" +
    "a{text-decoration:none}a:hover,a:focus-visible{text-decoration:underline}" +
    ".mark{padding:0 .8em;opacity:.6}";

start("navigator-1", (root) => {
    const field = fields(root, {
        speed: [50, 5, 500],
        direction: "left",
        separator: "\u2022",
        backColor: "",
        ...look,
        width: size,
        target: "",
        pauseOnHover: true,
    });
    const items = rows(root, field.target);
    for (const item of items) {
        dress(item, { textColor: item.dataset.color });
        const mark = make("span", "mark", field.separator);
        mark.setAttribute("aria-hidden", "true");
        item.append(mark);
    }
    const { view, run } = strip(make("ul", "", ...items), field.speed, field.direction === "right");
    const box = make("div", "box", view);
    dress(box, field);
    place(root, css + stripCss + buttonCss, box);
    const { button, rest } = motion(root, "the moving links", run);
    if (field.pauseOnHover) restUnder(view, rest);
    box.append(button);
});
