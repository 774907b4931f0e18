/** Sliding Instant Message Window: a message that slides into the corner of the window. */
import { dress, fields, look, make, on, place, size, start } from "../start.js";
import { store } from "../store.js";

const css =
    "aside{position:fixed;z-index:2147483646;box-sizing:border-box;max-width:calc(100vw - 24px);" +
    "max-height:calc(100vh - 24px);overflow:auto;text-align:start;border-radius:8px;background:var(--paper);" +
    "box-shadow:0 4px 18px #0007;color:#222}aside[hidden]{display:none}" +
    "header{display:flex;align-items:center;padding:.3em .3em .3em .8em;background:var(--head);" +
    "color:var(--head-text);font-weight:bold}h2{flex:1;font:inherit;margin:0}" +
    "button{all:unset;width:28px;height:28px;text-align:center;font:20px/28px sans-serif;" +
    "cursor:pointer;border-radius:4px}:focus-visible{outline:2px solid;outline-offset:-2px}" +
    ".text{padding:.8em;overflow-wrap:anywhere}.text p{margin:0 0 .5em}" +
    "@media print{aside{display:none}}";

start("window-1", (root) => {
    const field = fields(root, {
        title: "Message",
        target: "",
        corner: "bottom-right",
        waitSeconds: [2, 0, 600],
        staySeconds: [0, 0, 600],
        width: [260, 120, 1000],
        headColor: "#205080",
        headTextColor: "#ffffff",
        paperColor: "#ffffff",
        ...look,
        once: "load",
        sound: "",
    });
    const content = [...root.cloneNode(true).childNodes].filter(
        ({ nodeName }) => nodeName !== "SCRIPT",
    );
    if (!content.some((node) => node.textContent?.trim())) throw 0;
    const text = make("div", "text", ...content);
    for (const link of text.querySelectorAll("a")) if (field.target) link.target = field.target;
    const close = make("button", "", "\xd7");
    close.title = "Close";
    const box = make("aside", "", make("header", "", make("h2", "", field.title), close), text);
    box.setAttribute("aria-label", field.title);
    box.setAttribute("role", "region");
    dress(text, { ...field, width: 0 });
    dress(box, { width: field.width, fontSize: 0 });
    for (const [name, color] of [
        ["head", field.headColor],
        ["head-text", field.headTextColor],
        ["paper", field.paperColor],
    ])
        box.style.setProperty("--" + name, color);
    const [up, side] = field.corner.split("-");
    box.style.setProperty(up === "top" ? "top" : "bottom", "12px");
    box.style.setProperty(side === "left" ? "left" : "right", "12px");
    box.hidden = true;
    // Readers are told of it when it comes: the live region is there before.
    const live = make("div", "", box);
    live.setAttribute("aria-live", "polite");
    place(root, css, live);

    const { get, set } = store(root);
    const day = new Date().toDateString();
    const reduced = matchMedia("(prefers-reduced-motion:reduce)");
    const seen = () => {
        try {
            if (field.once === "session") return sessionStorage.getItem(location.pathname);
        } catch {}
        return field.once === "day" && get() === day;
    };
    if (seen()) return;
    const slide = (/** @type {PlaybackDirection} */ direction) =>
        box.animate(
            { transform: [`translateY(${up === "top" ? "-120%" : "120%"})`, "none"] },
            { duration: reduced.matches ? 1 : 500, easing: "ease-out", direction },
        );
    let waits = true;
    let timer = 0;
    const hide = () => {
        clearTimeout(timer);
        if (!box.hidden) slide("reverse").onfinish = () => (box.hidden = true);
    };
    const show = () => {
        waits = false;
        box.hidden = false;
        slide("normal");
        set(field.once === "day" ? day : "");
        try {
            if (field.once === "session") sessionStorage.setItem(location.pathname, "1");
        } catch {}
        if (field.sound) new Audio(field.sound).play().catch(() => {});
        stay();
    };
    /** It stays while the mouse or the focus is on it. */
    const stay = () => {
        clearTimeout(timer);
        if (field.staySeconds && !document.hidden && !box.matches(":hover,:focus-within"))
            timer = setTimeout(hide, field.staySeconds * 1000);
    };
    const wait = () => {
        clearTimeout(timer);
        if (!document.hidden) timer = setTimeout(show, field.waitSeconds * 1000);
    };
    on(close, "click", hide);
    on(box, "keydown", ({ key }) => key === "Escape" && hide());
    for (const event of ["pointerenter", "pointerleave", "focusin", "focusout"])
        on(box, event, () => setTimeout(stay));
    on(document, "visibilitychange", () => (box.hidden ? waits && wait() : stay()));
    wait();
});
