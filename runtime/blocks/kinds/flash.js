/** Flashing Text: a text that changes between two looks. */
import { buttonCss, motion } from "../calm.js";
import { dress, fields, look, on, start, words } from "../start.js";

const css =
    ".box{display:inline-flex;align-items:center}.text{display:inline-block}.text{padding:0 .2em}";

start("flash-1", (root) => {
    const { textColor: _, ...font } = look;
    const field = fields(root, {
        textColor: "",
        secondTextColor: "#ffffff",
        backColor: "",
        secondBackColor: "#c00000",
        // More than three a second can be dangerous.
        timesPerSecond: [1, 0.2, 3],
        seconds: [5, 0, 600],
        ...font,
        onHover: false,
    });
    const { text, box } = words(root, css + buttonCss, field);
    let timer = 0;
    let left = field.seconds * field.timesPerSecond * 2;
    let second = false;
    const show = (/** @type {boolean} */ other) => {
        second = other;
        text.style.color = text.style.background = "";
        dress(text, {
            textColor: other ? field.secondTextColor : field.textColor,
            backColor: other ? field.secondBackColor : field.backColor,
        });
    };
    const run = (/** @type {boolean} */ moves, still = false) => {
        clearTimeout(timer);
        if (!moves) show(false);
        text.style.outline = still ? `2px solid ${field.secondBackColor}` : "";
        if (moves) timer = setTimeout(flash, 500 / field.timesPerSecond, moves);
    };
    const flash = () => {
        if (--left < 0 && field.seconds && !field.onHover) {
            show(false);
            return button.remove();
        }
        show(!second);
        run(true);
    };
    let over = false;
    let may = false;
    const { button } = motion(root, "the flashing text", (moves, still) => {
        may = moves;
        run(moves && (over || !field.onHover), still);
    });
    if (field.onHover) {
        on(text, "pointerenter", () => run((over = true) && may));
        on(text, "pointerleave", () => run((over = false)));
    } else if (!field.seconds || field.seconds > 5) box.append(button);
});
