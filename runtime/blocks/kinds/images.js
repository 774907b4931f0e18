/** Image Transitions: pictures that give way to each other in one of 24 ways. */
import { buttonCss, chipCss, motion, restUnder } from "../calm.js";
import { change } from "../change.js";
import { fields, make, place, rows, size, start } from "../start.js";
import { framesCss, sized } from "../pictures.js";
import { turns, turnsCss } from "../turns.js";

start("images-1", (root) => {
    const field = fields(root, {
        transition: "23",
        seconds: [4, 1, 60],
        duration: [1, 0.2, 5],
        times: [0, 0, 10],
        width: size,
        height: size,
        fit: "contain",
        target: "",
    });
    const items = rows(root, field.target);
    const stage = make("ul", "stage", ...items);
    const box = make("div", "box", stage);
    for (const item of items) sized(item, field);
    place(root, framesCss + turnsCss + buttonCss + chipCss, box);
    const { run } = turns(
        items,
        { changes: field.times * items.length, pause: field.seconds * 1000 },
        (from, to) => change(from, to, field.transition, field.duration * 1000),
        () => play(false),
    );
    const { button, play, rest } = motion(root, "the pictures", run);
    restUnder(stage, rest);
    if (items[1]) box.append(button);
});
