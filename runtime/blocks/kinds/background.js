/** Background Color Fading: the page's ground passes from one colour to another. */
import { onLeaving } from "../leaving.js";
import { paced } from "../pace.js";
import { fields, on, place, start } from "../start.js";

start("background-1", (root) => {
    const field = fields(root, {
        firstColor: "#ffffff",
        lastColor: "#c0d8f0",
        seconds: [2, 0.1, 10],
        when: "arrival",
        andBack: false,
        textColor: "",
    });
    const { firstColor, lastColor, andBack, textColor, when } = field;
    const { body } = document;
    const reduced = matchMedia("(prefers-reduced-motion:reduce)");
    /** @type {(moves: boolean) => void} */
    let run = () => {};
    place(root, "");
    const shows = (/** @type {string} */ color) => {
        body.style.backgroundColor = color;
        if (textColor) body.style.color = textColor;
    };
    const arrive = () => {
        const end = andBack ? firstColor : lastColor;
        if (when !== "leaving" && !reduced.matches) {
            const colors = andBack ? [firstColor, lastColor, firstColor] : [firstColor, lastColor];
            const duration = field.seconds * 1000;
            const fade = body.animate({ backgroundColor: colors }, duration);
            run = paced([fade], Math.min(100, duration / 25));
            run(!document.hidden);
        }
        shows(when === "leaving" ? firstColor : end);
    };
    arrive();
    on(document, "visibilitychange", () => run(!document.hidden));
    // Back from a page that was left.
    on(window, "pageshow", ({ persisted }) => persisted && arrive());
    if (when === "arrival" || reduced.matches) return;
    onLeaving(280, () => {
        const { backgroundColor } = getComputedStyle(body);
        const last = when === "both" ? firstColor : lastColor;
        body.animate(
            { backgroundColor: [backgroundColor, last] },
            { duration: 300, fill: "forwards" },
        );
    });
});
