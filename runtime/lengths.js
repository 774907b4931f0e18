/** Lengths without a unit, which browsers drop in pages with a doctype. */

const sizes = "top|left|width|height|padding";

/**
 * Sets, in pixels, the lengths of an element's style attribute that the browser has dropped.
 * @param {HTMLElement} element
 */
export function prepareLengths(element) {
    const style = element.getAttribute("style");
    if (!style || document.compatMode === "BackCompat") return;
    for (const [, name, number] of style.matchAll(
        RegExp(`(?:^|;)\\s*(${sizes})\\s*:\\s*(\\d+)\\s*(?=;|$)`, "gi"),
    ))
        element.style.setProperty(name, number + "px");
}

/**
 * Lets a tooltip's box follow the pointer on scrolled pages too.
 * @param {HTMLElement} element
 */
export function prepareTooltip(element) {
    if (element.classList.contains("tooltip") && element.id === "box1")
        element.style.position = "fixed";
}
