/** Lets what reacts to the mouse react to the keyboard's focus as well. */

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
    // An element that was told that the pointer came is told once that it went: by mouse or focus.
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
    // An element with a link inside gets the focus by the link; any other gets it itself.
    if (!holder)
        window.addEventListener("load", () => {
            if (!element.querySelector(focusable)) element.tabIndex = 0;
        });
    const box = /showBox\(event, "(\w+)"\)/.exec(element.getAttribute("onmousemove") ?? "");
    if (box) element.setAttribute("aria-describedby", box[1]);
}
