/** Image Transitions: pictures that give way to each other in one of 24 ways. */
import { buttonCss, chipCss, motion, restUnder } from "../calm.js";
import { change } from "../change.js";
import { fields, make, place, rows, size, start } from "../start.js";
import { turns, turnsCss } from "../turns.js";

const css =
    ".box{display:inline-block;position:relative;max-width:100%;vertical-align:top}" +
    ".stage{isolation:isolate}li{display:grid;place-items:center}a{display:block}" +
    "img{display:block;max-width:100%;height:auto}" +
    ".sized img{width:var(--w);height:var(--h);object-fit:contain}";

start("images-1", (root) => {
    const field = fields(root, {
        transition: "23",
        seconds: [4, 1, 60],
        duration: [1, 0.2, 5],
        times: [0, 0, 10],
        width: size,
        height: size,
        target: "",
    });
    const items = rows(root, field.target);
    const stage = make("ul", "stage", ...items);
    const box = make("div", "box", stage);
    for (const item of items)
        for (const picture of item.querySelectorAll("img")) picture.loading = "eager";
    if (field.width || field.height) {
        box.className += " sized";
        box.style.setProperty("--w", field.width ? field.width + "px" : "auto");
        box.style.setProperty("--h", field.height ? field.height + "px" : "auto");
    }
    place(root, css + turnsCss + buttonCss + chipCss, box);
    const { run } = turns(
        items,
        { order: "forward", times: field.times, pause: field.seconds * 1000 },
        (from, to) => change(from, to, field.transition, field.duration * 1000),
        () => play(false),
    );
    const { button, play, rest } = motion(root, "the pictures", run);
    restUnder(stage, rest);
    if (items[1]) box.append(button);
});
