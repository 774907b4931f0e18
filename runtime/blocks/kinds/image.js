/** Random Image: another picture at each visit. */
import { pick } from "../pick.js";
import { framesCss, sized } from "../pictures.js";
import { fields, make, place, rows, size, start } from "../start.js";

start("image-1", (root) => {
    const field = fields(root, {
        rule: "visit",
        width: size,
        height: size,
        fit: "contain",
        border: [0, 0, 50],
        borderColor: "#000000",
        target: "",
    });
    const items = rows(root, field.target);
    const item = items[pick(root, items.length, field.rule)];
    const box = make("div", "box", ...item.childNodes);
    sized(box, field);
    if (field.border) {
        box.style.border = field.border + "px solid";
        box.style.borderColor = field.borderColor;
    }
    place(root, framesCss, box);
});
