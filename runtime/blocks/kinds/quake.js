/** Browser Window Earthquake: the page shakes for a moment. */
import { drive } from "../flight.js";
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
    /** @type {Animation[]} */
    let quake = [];
    const shake = () => {
        clearTimeout(timer);
        if (reduced.matches || document.hidden || quake[0]) return;
        const count = Math.round(field.seconds * 16);
        const move = () => (Math.random() * 2 - 1) * field.pixels + "px";
        // Fixed parts of the page stay where they are, which they do not under a transform.
        const frames = Array.from({ length: count + 1 }, (_, i) => ({
            left: i % count ? move() : "0",
            top: i % count ? move() : "0",
        }));
        const { position } = body.style;
        if (getComputedStyle(body).position === "static") body.style.position = "relative";
        quake = [
            documentElement.animate({ overflowX: ["clip", "clip"] }, field.seconds * 1000),
            body.animate(frames, field.seconds * 1000),
        ];
        quake[1].onfinish = () => {
            body.style.position = position;
            quake = [];
            again();
        };
    };
    const again = () => {
        clearTimeout(timer);
        if (field.againAfter && !quake[0] && !document.hidden && !reduced.matches)
            timer = setTimeout(shake, Math.max(field.againAfter, 5) * 1000);
    };
    place(root, "");
    on(document, "visibilitychange", () => {
        drive(quake, !document.hidden);
        again();
    });
    if (field.when !== "click") shake();
    if (field.when !== "arrival")
        on(document, "click", (event) => event.composedPath()[0].closest?.("a") && shake());
});
