/** Lets what reacts to the mouse react to the keyboard's focus as well. */
import { attribute } from "./calm.js";
import { afterStart } from "./starts.js";

const focusable = "a[href],button,input,select,textarea,[tabindex]";

/**
 * Sends an element that has mouse handlers the events of a pointer that enters and leaves when it
 * gets and loses the focus.
 * @param {HTMLElement} element
 */
export function prepareFocus(element) {
    if (!element.hasAttribute("onmouseover") && !element.hasAttribute("onmousemove")) return;
    const holder = /** @type {HTMLElement | null} */ (element.closest(focusable));
    const tell = (/** @type {string} */ kind) => {
        const { left, bottom } = element.getBoundingClientRect();
        element.dispatchEvent(
            new MouseEvent(kind, { bubbles: true, clientX: left, clientY: bottom }),
        );
    };
    const on = holder ?? element;
    // Whether the pointer is over it: `:hover` matches links alone on pages without a doctype.
    let over = false;
    element.addEventListener("mouseenter", () => (over = true));
    element.addEventListener("mouseleave", () => (over = false));
    // An element that was told that the pointer came is told once that it went: by mouse or focus.
    let told = false;
    const leave = () => {
        if (told) tell("mouseout");
    };
    on.addEventListener("focusin", () => {
        if (over) return;
        tell("mouseover");
        tell("mousemove");
        told = true;
    });
    element.addEventListener("mouseout", () => (told = false));
    on.addEventListener("focusout", leave);
    on.addEventListener("keydown", (event) => event.key === "Escape" && leave());
    const [, box] = /showBox\(event, "(\w+)"\)/.exec(attribute(element, "onmousemove")) ?? [];
    // An element with a link inside gets the focus by the link; any other gets it itself, if those
    // who cannot see it are told what it is.
    afterStart(() => {
        const name =
            element.textContent?.trim() || /** @type {any} */ (element).alt || element.title;
        if (box) element.setAttribute(name ? "aria-describedby" : "aria-labelledby", box);
        if (!holder && (name || box) && !element.querySelector(focusable)) element.tabIndex = 0;
    });
}
