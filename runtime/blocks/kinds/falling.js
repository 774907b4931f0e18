/** Falling/Floating Images: pictures that fall or rise over the page, such as snowflakes. */
import { buttonCss, motion } from "../calm.js";
import { drive, flightCss } from "../flight.js";
import { pictures } from "../pictures.js";
import { fields, make, place, start } from "../start.js";

const css =
    "img{position:absolute;top:0;height:auto}.flight{z-index:2147483646}.behind{z-index:-1}" +
    "button{position:fixed;bottom:8px;z-index:2147483647;background:#fff;color:#222;" +
    "border-radius:4px;box-shadow:0 0 0 1px #2226}";

/** How many parts a sway is made of. */
const steps = 24;

/** A number between two. @param {number} least @param {number} most */
const between = (least, most) => least + Math.random() * (most - least);

start("falling-1", (root) => {
    const field = fields(root, {
        number: [20, 1, 50],
        direction: "down",
        speed: [60, 5, 500],
        sway: [30, 0, 300],
        smallest: [16, 4, 300],
        largest: [40, 4, 300],
        turning: false,
        seconds: [60, 0, 3600],
        place: "front",
    });
    const copies = pictures(root);
    const layer = make("div", "flight");
    layer.setAttribute("aria-hidden", "true");
    if (field.place === "behind") layer.className += " behind";
    /** @type {Animation[]} */
    let flights = [];
    let timer = 0;
    let left = field.seconds * 1000;
    let begun = 0;

    /** A picture of its own size, place and way; near ones are large and quick. @param {number} i */
    const send = (i) => {
        const flake = /** @type {HTMLImageElement} */ (copies[i % copies.length].cloneNode());
        flake.alt = "";
        const near = Math.random();
        const size = field.smallest + near * (field.largest - field.smallest);
        flake.removeAttribute("height");
        flake.width = size;
        flake.style.left = between(0, 100) + "%";
        layer.append(flake);
        const [phase, turned] = [between(0, 6), between(-1, 1) * 360];
        const swings = Math.round(between(1, 3));
        const frames = Array.from({ length: steps + 1 }, (_, j) => {
            const p = j / steps;
            const x = Math.sin(phase + p * swings * 6.2832) * field.sway;
            const y = field.direction === "up" ? 1 - p : p;
            return {
                transform:
                    `translate(${x}px,calc(${y * 100}vh - ${(1 - y) * 2 * size}px))` +
                    (field.turning ? ` rotate(${p * turned}deg)` : ""),
            };
        });
        const duration = (1000 * (innerHeight + 2 * size)) / field.speed / (0.6 + near * 0.6);
        const flight = flake.animate(frames, {
            duration,
            delay: -Math.random() * duration,
            iterations: Infinity,
        });
        flight.onfinish = () => flake.remove();
        return flight;
    };
    /** Each flies to its end, and none comes again. */
    const end = () => {
        for (const { effect } of flights)
            effect?.updateTiming({
                iterations: Number(effect.getComputedTiming().currentIteration) + 1,
            });
        Promise.all(flights.map(({ finished }) => finished)).then(() => {
            layer.remove();
            button.remove();
        });
    };
    const run = (/** @type {boolean} */ moves, /** @type {boolean} */ still) => {
        if (still) {
            layer.replaceChildren();
            flights = [];
        }
        if (moves && !flights[0]) {
            flights = Array.from({ length: field.number }, (_, i) => send(i));
            flights.push(layer.animate({ opacity: [0, 1] }, 1000));
        }
        drive(flights, moves);
        clearTimeout(timer);
        if (begun) left -= Date.now() - begun;
        begun = moves ? Date.now() : 0;
        if (moves && field.seconds) timer = setTimeout(end, left);
    };
    place(root, flightCss + buttonCss + css, layer);
    const { button } = motion(root, "the falling pictures", run, { seen: false });
    const before = [...document.querySelectorAll("[data-orvane|=falling]")].indexOf(root);
    button.style.right = 8 + 32 * before + "px";
    layer.after(button);
});
