/** Image Filmstrip Scroller: pictures that pass in an endless film. */
import { buttonCss, motion, restUnder } from "../calm.js";
import { sized } from "../pictures.js";
import { fields, make, place, rows, start } from "../start.js";
import { strip, stripCss } from "../strip.js";

const css =
    ".box{display:flex;align-items:center;gap:4px}img{display:block}" +
    "a{display:block}.film .group{border:solid #111;border-width:3px 0;padding:11px 0;" +
    "background:linear-gradient(#111,#111) 0/100% calc(100% - 16px) no-repeat," +
    "repeating-linear-gradient(90deg,#111 0 6px,#eee 6px 16px)}" +
    ".still{overflow-x:auto}.still .track{width:max-content}.still .group{flex-wrap:nowrap}";

start("film-1", (root) => {
    const field = fields(root, {
        height: [120, 20, 1000],
        gap: [8, 0, 500],
        speed: [40, 5, 500],
        direction: "left",
        filmLook: false,
        pauseOnHover: true,
        target: "",
    });
    const items = rows(root, field.target);
    for (const item of items) {
        item.style.paddingRight = field.gap + "px";
        sized(item, field);
    }
    const film = strip(make("ul", "", ...items), field.speed, field.direction === "right");
    const { view } = film;
    const box = make("div", field.filmLook ? "box film" : "box", view);
    place(root, stripCss + buttonCss + css, box);
    const { button, rest } = motion(root, "the film", (moves, still) => {
        if (still) view.tabIndex = 0;
        else view.removeAttribute("tabindex");
        film.run(moves, still);
    });
    if (field.pauseOnHover) restUnder(view, rest);
    box.append(button);
});
