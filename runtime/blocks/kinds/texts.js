/** Text Transitions: texts that give way to each other in one of 24 ways. */
import { buttonCss, motion, restUnder } from "../calm.js";
import { change } from "../change.js";
import { dress, fields, look, make, place, rows, start } from "../start.js";
import { turns, turnsCss } from "../turns.js";

const css = ".box{display:flex;align-items:center}.stage{flex:1}";

start("texts-1", (root) => {
    const field = fields(root, {
        transition: "23",
        seconds: [4, 1, 60],
        duration: [1, 0.2, 5],
        times: [0, 0, 10],
        ...look,
        target: "",
    });
    const items = rows(root, field.target);
    const stage = make("ul", "stage", ...items);
    const box = make("div", "box", stage);
    dress(box, field);
    place(root, css + turnsCss + buttonCss, box);
    const { run } = turns(
        items,
        { changes: field.times * items.length, pause: field.seconds * 1000 },
        (from, to) => change(from, to, field.transition, field.duration * 1000),
        () => play(false),
    );
    const { button, play, rest } = motion(root, "the texts", run);
    restUnder(stage, rest);
    if (items[1]) box.append(button);
});
