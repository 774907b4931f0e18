/** Browser Window Earthquake: the page shakes for a moment. */
import { fields, on, place, start } from "../start.js";

start("quake-1", (root) => {
    const field = fields(root, {
        pixels: [6, 1, 12],
        seconds: [1.2, 0.2, 3],
        when: "arrival",
        againAfter: [0, 0, 600],
    });
    const { body, documentElement } = document;
    const reduced = matchMedia("(prefers-reduced-motion:reduce)");
    let timer = 0;
    const shake = () => {
        clearTimeout(timer);
        if (reduced.matches || document.hidden) return;
        const count = Math.round(field.seconds * 16);
        const move = () => (Math.random() * 2 - 1) * field.pixels + "px";
        const frames = Array.from({ length: count + 1 }, (_, i) => ({
            // Fixed parts of the page stay where they are, which they do not under a transform.
            position: "relative",
            left: i % count ? move() : "0",
            top: i % count ? move() : "0",
        }));
        documentElement.animate({ overflowX: ["clip", "clip"] }, field.seconds * 1000);
        body.animate(frames, field.seconds * 1000);
        again();
    };
    const again = () => {
        clearTimeout(timer);
        if (field.againAfter && !document.hidden && !reduced.matches)
            timer = setTimeout(shake, (field.seconds + Math.max(field.againAfter, 5)) * 1000);
    };
    place(root, "");
    on(document, "visibilitychange", again);
    if (field.when !== "click") shake();
    if (field.when !== "arrival")
        on(document, "click", ({ target }) => target.closest?.("a") && shake());
});
