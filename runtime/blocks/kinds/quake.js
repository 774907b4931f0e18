/** Browser Window Earthquake: the page shakes for a moment. */
import { paced } from "../pace.js";
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
    /** @type {((moves: boolean) => void) | null} */
    let run = null;
    const shake = () => {
        clearTimeout(timer);
        if (reduced.matches || document.hidden || run) return;
        const count = Math.round(field.seconds * 16);
        const move = () => (Math.random() * 2 - 1) * field.pixels + "px";
        // Fixed parts of the page stay where they are, which they do not under a transform.
        const frames = Array.from({ length: count + 1 }, (_, i) => ({
            left: i % count ? move() : "0",
            top: i % count ? move() : "0",
        }));
        const { position } = body.style;
        if (getComputedStyle(body).position === "static") body.style.position = "relative";
        const quake = body.animate(frames, field.seconds * 1000);
        const clip = documentElement.animate({ overflowX: ["clip", "clip"] }, 1);
        clip.pause();
        quake.onfinish = () => {
            clip.cancel();
            body.style.position = position;
            run = null;
            again();
        };
        run = paced([quake], 1000 / 16);
        run(true);
    };
    const again = () => {
        clearTimeout(timer);
        if (field.againAfter && !run && !document.hidden && !reduced.matches)
            timer = setTimeout(shake, Math.max(field.againAfter, 5) * 1000);
    };
    place(root, "");
    on(document, "visibilitychange", () => {
        run?.(!document.hidden);
        again();
    });
    if (field.when !== "click") shake();
    if (field.when !== "arrival")
        on(document, "click", (event) => event.composedPath()[0].closest?.("a") && shake());
});
