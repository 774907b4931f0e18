/** Shaking Text: a text that shakes now and then. */
import { buttonCss, motion } from "../calm.js";
import { drive } from "../flight.js";
import { fields, look, on, start, words } from "../start.js";

const css = ".box{display:inline-flex;align-items:center}.text{display:inline-block}";

/** @type {Record<string, (n: number) => string>} */
const ways = {
    sideways: (n) => `translateX(${n}px)`,
    up: (n) => `translateY(${n}px)`,
    turning: (n) => `rotate(${n}deg)`,
};

start("shake-1", (root) => {
    const field = fields(root, {
        way: "sideways",
        pixels: [3, 1, 10],
        burstSeconds: [0.6, 0.2, 3],
        pauseSeconds: [4.4, 0, 60],
        times: [3, 0, 10],
        onHover: false,
        ...look,
    });
    const { text, box } = words(root, css + buttonCss, field);
    const whole = field.burstSeconds + (field.onHover ? 0 : field.pauseSeconds);
    const count = Math.round(field.burstSeconds * 20) + 1;
    const way = ways[field.way] ?? ways.sideways;
    // Each time it leans to the other side, less and less.
    const frames = Array.from({ length: count + 1 }, (_, i) => ({
        transform: way(i && i < count ? field.pixels * (i % 2 ? 1 : -1) * (1 - i / count / 2) : 0),
        offset: (i / count) * (field.burstSeconds / whole),
    }));
    const animation = text.animate([...frames, { transform: "none", offset: 1 }], {
        duration: whole * 1000,
        iterations: field.onHover ? 1 : field.times || Infinity,
    });
    animation.pause();
    animation.onfinish = () => button.remove();
    let quiet = false;
    const { button } = motion(root, "the shaking text", (moves, still) => {
        quiet = still;
        if (still || field.onHover) animation.cancel();
        else drive([animation], moves);
    });
    if (field.onHover) on(text, "pointerenter", () => quiet || animation.play());
    else if (!field.times || whole * field.times > 5) box.append(button);
});
