/** Smooth Scrolling Text Ticker: messages that pass in an endless band. */
import { buttonCss, motion, restUnder } from "../calm.js";
import { dress, fields, look, make, place, rows, size, start } from "../start.js";
import { strip, stripCss } from "../strip.js";

const css =
    ".box{display:flex;align-items:center;box-sizing:border-box;max-width:100%;min-height:1.6em}" +
    ".faded:not(.still){-webkit-mask-image:var(--edges);mask-image:var(--edges);" +
    "--edges:linear-gradient(90deg,#0000,#000 2em calc(100% - 2em),#0000)}";

start("scroller-1", (root) => {
    const field = fields(root, {
        direction: "left",
        speed: [50, 5, 500],
        gap: [50, 0, 1000],
        width: size,
        height: size,
        ...look,
        backColor: "",
        fadedEdges: false,
        pauseOnHover: true,
        target: "",
    });
    const items = rows(root, field.target);
    for (const item of items) item.style.paddingRight = field.gap + "px";
    const { view, run } = strip(make("ul", "", ...items), field.speed, field.direction === "right");
    if (field.fadedEdges) view.className += " faded";
    const box = make("div", "box", view);
    dress(box, field);
    if (field.height) box.style.minHeight = field.height + "px";
    place(root, css + stripCss + buttonCss, box);
    const { button, rest } = motion(root, "the moving text", run);
    if (field.pauseOnHover) restUnder(view, rest);
    box.append(button);
});
