/** Random Quote: another text at each visit. */
import { buttonCss, motion, restUnder } from "../calm.js";
import { pick } from "../pick.js";
import { dress, fields, look, make, place, rows, size, start } from "../start.js";

const css =
    ".box{display:flex;align-items:center;max-width:100%}.stage{flex:1;display:grid;align-items:center}" +
    "blockquote{margin:0}.marks blockquote::before{content:open-quote}" +
    ".marks blockquote::after{content:close-quote}" +
    "cite{display:block;font-size:.85em;margin-top:.3em}cite::before{content:'\\2014\\a0'}" +
    ".stage>*{grid-area:1/1;min-width:0}.stage>:not(.shown){visibility:hidden}";

start("quote-1", (root) => {
    const field = fields(root, {
        rule: "visit",
        seconds: [8, 2, 600],
        quotationMarks: true,
        ...look,
        align: "left",
        backColor: "",
        width: size,
    });
    const items = rows(root);
    const stage = make("ul", field.quotationMarks ? "stage marks" : "stage", ...items);
    const box = make("div", "box", stage);
    dress(box, field);
    box.style.textAlign = field.align;
    if (field.backColor) box.style.padding = ".6em .8em";
    place(root, css + buttonCss, box);
    let shown = pick(root, items.length, field.rule === "seconds" ? "chance" : field.rule);
    const show = (/** @type {number} */ n) => {
        items[shown].classList.remove("shown");
        shown = n % items.length;
        items[shown].classList.add("shown");
    };
    show(shown);
    if (field.rule !== "seconds" || !items[1]) return;
    let timer = 0;
    const { button, rest } = motion(root, "the quotes", (moves) => {
        clearInterval(timer);
        if (!moves) return;
        timer = setInterval(() => {
            show(shown + 1);
            items[shown].animate({ opacity: [0, 1] }, 700);
        }, field.seconds * 1000);
    });
    restUnder(stage, rest);
    box.append(button);
});
