/** Text Effects: a text that grows, shrinks or stretches. */
import { buttonCss, motion } from "../calm.js";
import { drive } from "../flight.js";
import { fields, look, make, on, start, words } from "../start.js";

const css =
    ".box{display:inline-flex;align-items:center}.text{display:inline-block}.room{display:inline-grid;place-items:center}" +
    ".text{width:max-content;max-width:100%}";

start("grow-1", (root) => {
    const field = fields(root, {
        effect: "grow",
        from: [20, 1, 500],
        to: [100, 1, 500],
        seconds: [1, 0.1, 20],
        times: [1, 0, 10],
        start: "seen",
        ...look,
    });
    const { text, box } = words(root, css + buttonCss, field);
    const { effect } = field;
    const scale = (/** @type {number} */ n) =>
        `scale(${effect === "high" ? 1 : n / 100},${effect === "wide" ? 1 : n / 100})`;
    const sizes = effect === "shrink" ? [field.to, field.from] : [field.from, field.to];
    const pulse = effect === "pulse";
    const animation = text.animate(
        { transform: sizes.map(scale) },
        {
            duration: field.seconds * 1000,
            iterations: (field.times || Infinity) * (pulse ? 2 : 1),
            direction: pulse ? "alternate" : "normal",
            easing: "ease-in-out",
        },
    );
    animation.pause();
    // At the end the text stands in its last size, in a room that is large enough for all.
    text.style.transform = scale(sizes[pulse ? 0 : 1]);
    const most = Math.max(1, field.from / 100, field.to / 100);
    const room = make("span", "room");
    text.replaceWith(room);
    room.append(text);
    new ResizeObserver(() => {
        if (effect !== "high") room.style.width = text.offsetWidth * most + "px";
        if (effect !== "wide") room.style.height = text.offsetHeight * most + "px";
    }).observe(text);
    animation.onfinish = () => button.remove();

    const hovers = field.start === "hover";
    const { button } = motion(root, "the text", (moves, still) => {
        if (still || hovers) animation.cancel();
        else drive([animation], moves);
    });
    if (hovers) on(room, "pointerenter", () => animation.play());
    else if (!field.times || field.seconds * field.times > 5) box.append(button);
});
