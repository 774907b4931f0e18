/** Banner/Billboard Wizard: linked pictures that take turns. */
import { buttonCss, chipCss, motion, restUnder } from "../calm.js";
import { change } from "../change.js";
import { fields, make, on, place, rows, size, start } from "../start.js";
import { turns, turnsCss } from "../turns.js";
import { framesCss, sized } from "../pictures.js";

const css =
    ".arrow{bottom:calc(50% - 12px)}.Previous{right:auto;left:4px;transform:scaleX(-1)}" +
    ".arrow::before{clip-path:polygon(0 0,100% 50%,0 100%,0 70%,50% 50%,0 30%)}";

start("banner-1", (root) => {
    const field = fields(root, {
        seconds: [5, 2, 600],
        transition: "fade",
        duration: [1, 0.2, 5],
        randomFirst: false,
        pauseOnHover: true,
        arrows: true,
        width: size,
        height: size,
        fit: "contain",
        target: "",
    });
    const items = rows(root, field.target);
    if (field.randomFirst) items.push(...items.splice(0, Math.random() * items.length));
    const stage = make("ul", "stage", ...items);
    const box = make("div", "box");
    for (const item of items) sized(item, field);
    place(root, framesCss + turnsCss + buttonCss + chipCss + css, box);
    const { run, go } = turns(items, { pause: field.seconds * 1000 }, (from, to) =>
        change(from, to, field.transition, field.duration * 1000),
    );
    const { button, play, rest } = motion(root, "the banners", run);
    if (field.pauseOnHover) restUnder(stage, rest);
    /** @param {string} name @param {number} step */
    const arrow = (name, step) => {
        const made = make("button", "arrow " + name);
        made.title = name;
        on(made, "click", () => {
            play(false);
            go(step);
        });
        return made;
    };
    // Readers meet the buttons before what they change.
    if (items[1]) {
        box.append(button);
        if (field.arrows) box.append(arrow("Previous", -1), arrow("Next", 1));
    }
    box.append(stage);
});
