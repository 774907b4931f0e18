/** Swirly Text: a text whose colours run through it. */
import { buttonCss, motion } from "../calm.js";
import { letters, lettersCss } from "../letters.js";
import { paced } from "../pace.js";
import { fields, look, start, words } from "../start.js";

const css =
    lettersCss +
    ".box{display:inline-flex;align-items:center}.text{display:inline-block}" +
    "@media screen and (forced-colors:none){@supports((-webkit-background-clip:text) and " +
    "(-webkit-text-fill-color:#0000)){.swirl{background:var(--swirl) 0 0/200% 100%;" +
    "-webkit-background-clip:text;background-clip:text;-webkit-text-fill-color:#0000}}}";

start("swirl-1", (root) => {
    const { textColor: _, ...font } = look;
    const field = fields(root, {
        colors: "#c00000 #906000 #007030 #0050c0 #8000a0",
        seconds: [6, 4, 60],
        direction: "left",
        letters: false,
        ...font,
        align: "",
        rounds: [0, 0, 20],
    });
    const colors = field.colors.split(/\s+/);
    const { text, box } = words(root, css + buttonCss, { ...field, textColor: colors[0] });
    if (field.align) {
        box.style.display = "flex";
        box.style.justifyContent = field.align;
    }
    const timing = {
        duration: field.seconds * 1000,
        iterations: field.rounds || Infinity,
        direction: /** @type {PlaybackDirection} */ (
            field.direction === "right" ? "normal" : "reverse"
        ),
    };
    const round = [...colors, colors[0]];
    /** @type {Animation[]} */
    let swirls;
    let end = () => {};
    // Links can be used in the text itself alone.
    if (field.letters && !root.querySelector("a")) {
        const { copy, parts } = letters(root, Infinity);
        text.before(copy);
        swirls = parts.map((letter, i) => {
            const delay = -(i / colors.length / 2) * timing.duration;
            const iterations = timing.iterations - delay / timing.duration;
            return letter.animate({ color: round }, { ...timing, delay, iterations });
        });
        end = () => copy.remove();
    } else {
        text.className += " swirl";
        text.style.setProperty("--swirl", `linear-gradient(90deg,${round.join()})`);
        swirls = [text.animate({ backgroundPosition: ["0 0", "200% 0"] }, timing)];
        end = () => text.classList.remove("swirl");
    }
    const run = paced(swirls, 100);
    swirls[0].onfinish = () => {
        end();
        button.remove();
    };
    const { button } = motion(root, "the swirling colors", run);
    box.append(button);
});
