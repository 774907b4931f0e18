/** Fading Message: messages that fade in and out, one after the other. */
import { buttonCss, motion, restUnder } from "../calm.js";
import { inOrder } from "../order.js";
import { dress, fields, look, make, place, rows, size, start } from "../start.js";
import { turns, turnsCss } from "../turns.js";

const css =
    ".box{display:flex;align-items:center;max-width:100%;box-sizing:border-box}" +
    ".stage{flex:1;align-items:center}";

start("message-1", (root) => {
    const field = fields(root, {
        seconds: [4, 1, 60],
        fadeSeconds: [1, 0.2, 10],
        order: "forward",
        times: [0, 0, 10],
        ...look,
        align: "center",
        width: size,
        target: "",
    });
    const items = rows(root, field.target);
    const stage = make("ul", "stage", ...items);
    const box = make("div", "box", stage);
    dress(box, field);
    box.style.textAlign = field.align;
    // As much room as the button has on the other side.
    if (field.align === "center") box.style.paddingLeft = "24px";
    const timing = { ...inOrder(items.length, field), pause: field.seconds * 1000 };
    const duration = field.fadeSeconds * 2000;
    const fade = (/** @type {HTMLElement} */ from, /** @type {HTMLElement} */ to) => {
        from.animate({ opacity: [1, 0, 0] }, duration);
        return to.animate({ opacity: [0, 0, 1] }, duration).finished;
    };
    place(root, css + turnsCss + buttonCss, box);
    const { run } = turns(items, timing, fade, () => play(false));
    const { button, play, rest } = motion(root, "the messages", run);
    restUnder(stage, rest);
    if (items[1]) box.append(button);
});
