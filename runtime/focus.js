/** What reacts to the mouse reacts to the keyboard's focus as well. */

const focusable = "a[href],button,input,select,textarea,[tabindex]";

/**
 * Lets an element that has mouse handlers hear of focus as if the pointer came and went.
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
    // Whoever is told of a pointer that comes is told once that it goes, by the mouse or by focus.
    let told = false;
    const leave = () => {
        if (told) tell("mouseout");
    };
    on.addEventListener("focusin", () => {
        if (element.matches(":hover")) return;
        tell("mouseover");
        tell("mousemove");
        told = true;
    });
    element.addEventListener("mouseout", () => (told = false));
    on.addEventListener("focusout", leave);
    on.addEventListener("keydown", (event) => event.key === "Escape" && leave());
    // What holds a link is reached through it; the rest is reached itself.
    if (!holder)
        window.addEventListener("load", () => {
            if (!element.querySelector(focusable)) element.tabIndex = 0;
        });
    const box = /showBox\(event, "(\w+)"\)/.exec(element.getAttribute("onmousemove") ?? "");
    if (box) element.setAttribute("aria-describedby", box[1]);
}
