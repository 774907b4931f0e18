/** Sound Effect: a sound on arrival and another one on leaving. */
import { onLeaving } from "../leaving.js";
import { fields, make, on, place, start } from "../start.js";
import { store } from "../store.js";

const css =
    "audio{display:block;max-width:100%}button{all:unset;font:inherit;cursor:pointer;" +
    "padding:.4em .9em;min-height:24px;box-sizing:border-box;border:1px solid;border-radius:4px}" +
    "button:focus-visible{outline:2px solid}[hidden]{display:none}" +
    "input{width:7em;height:24px;margin:0 .5em;vertical-align:middle;accent-color:currentColor}@media print{:host{display:none!important}}";

start("sound-1", (root) => {
    const field = fields(root, {
        leavingSound: "",
        volume: [60, 0, 100],
        times: [1, 0, 10],
        controls: true,
        ifBlocked: "button",
        rememberOff: true,
    });
    const { get, set } = store(root);
    const own = /** @type {HTMLAudioElement | null} */ (root.querySelector("audio"));
    if (!own) throw 0;
    const sound = /** @type {HTMLAudioElement} */ (own.cloneNode(true));
    sound.preload = "auto";
    sound.controls = field.controls;
    sound.volume = field.volume / 100;
    sound.loop = !field.times;
    let left = field.times;
    let mine = true;
    const button = make("button", "", "Play the sound");
    const name = () => (button.textContent = sound.paused ? "Play the sound" : "Stop the sound");
    const play = () => sound.play().then(name);
    button.hidden = field.controls;
    // The browser's player has one of its own.
    const volume = make("input", "");
    volume.type = "range";
    volume.value = String(field.volume);
    volume.title = volume.ariaLabel = "Volume";
    volume.hidden = field.controls;
    on(volume, "input", () => (sound.volume = volume.valueAsNumber / 100));
    on(sound, "play", () => {
        button.hidden = field.controls;
        name();
        if (field.rememberOff) set("");
    });
    on(sound, "pause", () => {
        name();
        if (field.rememberOff && !sound.ended && mine && !document.hidden) set("off");
    });
    on(sound, "ended", () => {
        if (--left > 0) play();
    });
    on(button, "click", () => (sound.paused ? play().catch(() => {}) : sound.pause()));
    place(root, css, ...(own.getAttribute("src") ? [sound, button, volume] : []));
    on(window, "pagehide", () => (mine = false));
    if (get() !== "off" && own.getAttribute("src"))
        // Browsers refuse sounds before the visitor has done anything to the page.
        play().catch(() => {
            button.hidden = false;
            if (field.ifBlocked !== "click") return;
            const once = (/** @type {Event} */ { target }) => {
                removeEventListener("pointerdown", once);
                removeEventListener("keydown", once);
                if (target !== root) play().catch(() => {});
            };
            on(window, "pointerdown", once);
            on(window, "keydown", once);
        });
    if (!field.leavingSound) return;
    onLeaving(400, () => {
        const last = new Audio(field.leavingSound);
        last.volume = sound.volume;
        last.play().catch(() => {});
    });
});
