/** Animation Wizard: pictures that follow each other in one place. */
import { buttonCss, chipCss, motion } from "../calm.js";
import { change } from "../change.js";
import { inOrder } from "../order.js";
import { decoded, pictures } from "../pictures.js";
import { fields, make, on, place, size, start } from "../start.js";
import { turns, turnsCss } from "../turns.js";

const css =
    ".box{display:inline-block;position:relative;max-width:100%;vertical-align:top}a{display:block}" +
    ".stage{place-items:center}img{display:block;max-width:100%;height:auto}.wide img{width:100%}";

start("animation-1", (root) => {
    const field = fields(root, {
        milliseconds: [500, 170, 60000],
        times: [0, 0, 10],
        order: "forward",
        change: "cut",
        start: "seen",
        width: size,
        target: "",
    });
    const frames = pictures(root);
    const stage = make("span", "stage", ...frames);
    const link = /** @type {HTMLAnchorElement | null} */ (root.querySelector("a")?.cloneNode());
    if (link) {
        if (field.target) link.target = field.target;
        link.append(stage);
    }
    const box = make("div", "box", link ?? stage);
    if (field.width) {
        box.className += " wide";
        box.style.width = field.width + "px";
    }
    frames[0].classList.add("shown");
    place(root, css + turnsCss + buttonCss + chipCss, box);

    const length = field.change === "cut" ? 0 : Math.min(field.milliseconds / 2, 1000);
    decoded(frames).then((items) => {
        if (!items[1]) return;
        // The first picture may be missing.
        frames[0].className = "";
        const { run } = turns(
            items,
            { ...inOrder(items.length, field), pause: field.milliseconds - length },
            (from, to) => change(from, to, field.change, length),
            () => play(false),
        );
        const { button, play } = motion(root, "the animation", run, {
            plays: field.start !== "click",
        });
        if (!link) on(stage, "click", () => button.click());
        box.append(button);
    });
});
