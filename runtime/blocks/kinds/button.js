/** Animated Button: a linked picture that moves under the mouse, and when it is pressed. */
import { decoded, pictures } from "../pictures.js";
import { fields, make, on, place, size, start } from "../start.js";

const css =
    "a{display:inline-grid;max-width:100%;vertical-align:top}a:focus-visible{outline-offset:2px}" +
    "img{grid-area:1/1;max-width:100%;height:auto;opacity:0}.shown{opacity:1}.wide img{width:100%}";

start("button-1", (root) => {
    const field = fields(root, {
        milliseconds: [200, 170, 10000],
        target: "",
        width: size,
        pressSound: "",
        onFocus: true,
    });
    const originals = [...root.querySelectorAll("img")];
    const all = pictures(root);
    const link = /** @type {HTMLAnchorElement} */ (root.querySelector("a")?.cloneNode());
    link.append(...all);
    if (field.target) link.target = field.target;
    if (field.width) {
        link.className = "wide";
        link.style.width = field.width + "px";
    }
    all[0].classList.add("shown");
    place(root, css, link);

    decoded(all).then((ready) => {
        /** The pictures of a state, else those of the one before it. @type {HTMLElement[][]} */
        const states = [];
        for (const state of [undefined, "over", "pressed"]) {
            const own = ready.filter((one) => originals[all.indexOf(one)].dataset.state === state);
            states.push(own[0] ? own : (states[states.length - 1] ?? [all[0]]));
        }
        const reduced = matchMedia("(prefers-reduced-motion:reduce)");
        let timer = 0;
        const is = { over: false, focused: false, pressed: false };
        const show = () => {
            clearInterval(timer);
            const frames = states[is.pressed ? 2 : is.over || is.focused ? 1 : 0];
            let at = 0;
            const draw = () => {
                for (const one of all) one.classList.toggle("shown", one === frames[at]);
                at = (at + 1) % frames.length;
            };
            draw();
            if (frames[1] && !reduced.matches && !document.hidden)
                timer = setInterval(draw, field.milliseconds);
        };
        const turn = (/** @type {string} */ event, /** @type {Partial<typeof is>} */ change) =>
            on(link, event, ({ pointerType, key }) => {
                if (change.over && pointerType === "touch") return;
                if (key && key !== "Enter") return;
                Object.assign(is, change);
                show();
            });
        turn("pointerenter", { over: true });
        turn("pointerleave", { over: false, pressed: false });
        turn("pointerdown", { pressed: true });
        turn("pointerup", { pressed: false });
        turn("pointercancel", { pressed: false });
        turn("keydown", { pressed: true });
        turn("keyup", { pressed: false });
        if (field.onFocus) turn("focus", { focused: true });
        turn("blur", { focused: false, pressed: false });
        on(document, "visibilitychange", show);
        if (field.pressSound)
            on(link, "click", () => new Audio(field.pressSound).play().catch(() => {}));
        show();
    });
});
