/** Scrolling Credits: a text that rises in a box, or a page that scrolls by itself. */
import { buttonCss, motion, restUnder } from "../calm.js";
import { drive } from "../flight.js";
import { dress, fields, look, make, on, place, size, start } from "../start.js";

const css =
    ".box{overflow:hidden;contain:paint;text-align:center}.text p{margin:.5em 0}.box:focus-visible{outline-offset:-2px}" +
    ".faded{-webkit-mask-image:var(--edges);mask-image:var(--edges);" +
    "--edges:linear-gradient(#0000,#000 15% 85%,#0000)}" +
    ".tilted{perspective:20em}.tilted .text{transform-origin:50% 0}" +
    ".box.still{overflow:auto;mask-image:none;-webkit-mask-image:none}" +
    ":host{position:relative!important}button{position:absolute;right:0;bottom:0}" +
    ".page{position:fixed;right:8px;bottom:8px;z-index:2147483647;background:#fff;color:#222;" +
    "border-radius:4px;box-shadow:0 0 0 1px #2226}" +
    "@media print{.box{height:auto!important}.text{transform:none!important}}";

start("credits-1", (root) => {
    const field = fields(root, {
        speed: [30, 5, 300],
        waitSeconds: [1, 0, 60],
        what: "text",
        atEnd: "stop",
        nextPage: "",
        height: [240, 40, 4000],
        fadedEdges: true,
        tilted: false,
        ...look,
        backColor: "",
    });
    const end = () => {
        button.remove();
        if (field.atEnd === "page" && field.nextPage) location.href = field.nextPage;
    };

    /** The page itself, until the visitor does anything to it. */
    const scrollPage = () => {
        place(root, buttonCss + css);
        const page = document.scrollingElement ?? document.documentElement;
        let frame = 0;
        let timer = 0;
        let last = 0;
        let top = 0;
        const step = (/** @type {number} */ now) => {
            if (!last) top = page.scrollTop;
            else top += (Math.min(now - last, 100) / 1000) * field.speed;
            last = now;
            scrollTo({ top, behavior: /** @type {any} */ ("instant") });
            if (top > page.scrollTop + 2) {
                if (field.atEnd !== "again") return end();
                top = 0;
            }
            frame = requestAnimationFrame(step);
        };
        const { button, play } = motion(
            root,
            "the scrolling page",
            (moves) => {
                cancelAnimationFrame(frame);
                clearTimeout(timer);
                last = 0;
                if (moves) timer = setTimeout(step, field.waitSeconds * 1000, 0);
            },
            { seen: false },
        );
        for (const event of ["wheel", "touchstart", "keydown", "pointerdown"])
            addEventListener(event, ({ target }) => target === root || play(false), {
                passive: true,
            });
        return button;
    };

    /** A text of its own in a box. */
    const scrollText = () => {
        const content = [...root.cloneNode(true).childNodes].filter(
            ({ nodeName }) => nodeName !== "SCRIPT",
        );
        const text = make("div", "text", ...content);
        const box = make("div", "box", text);
        if (field.fadedEdges) box.className += " faded";
        if (field.tilted) box.className += " tilted";
        dress(box, field);
        box.style.height = field.height + "px";
        place(root, buttonCss + css, box);
        /** @type {Animation[]} */
        let rise = [];
        const { button, rest } = motion(root, "the credits", (moves, still) => {
            box.classList.toggle("still", still);
            if (still) {
                box.tabIndex = 0;
                for (const one of rise) one.cancel();
                rise = [];
            } else if (moves && !rise[0]) rise = [begin()];
            drive(rise, moves);
        });
        restUnder(box, rest);
        const begin = () => {
            const [h, room] = [text.offsetHeight, field.height];
            const again = field.atEnd === "again";
            const last = again ? -h : Math.min((room - h) / 2, room - h);
            const at = (/** @type {number} */ y) =>
                (field.tilted ? "rotateX(24deg) " : "") + `translateY(${y}px)`;
            const animation = text.animate(
                { transform: [at(room * 0.9), at(last)] },
                {
                    duration: ((room * 0.9 - last) / field.speed) * 1000,
                    delay: field.waitSeconds * 1000,
                    iterations: again ? Infinity : 1,
                    fill: "both",
                },
            );
            animation.onfinish = end;
            return animation;
        };
        return button;
    };

    const button = field.what === "page" ? scrollPage() : scrollText();
    if (field.what === "page") button.className += " page";
    root.shadowRoot?.append(button);
});
