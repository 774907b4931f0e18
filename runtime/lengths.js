/** Lengths without a unit, which browsers drop in pages with a doctype. */
import { attribute } from "./calm.js";

/**
 * Sets, in pixels, the lengths of an element's style attribute that the browser has dropped.
 * @param {HTMLElement} element
 */
export function prepareLengths(element) {
    const style = attribute(element, "style");
    if (!style || document.compatMode === "BackCompat") return;
    for (const [, name, number] of style.matchAll(
        /(?:^|;)\s*(top|left|width|height|padding)\s*:\s*(\d+)\s*(?=;|$)/gi,
    ))
        element.style.setProperty(name, number + "px");
}

/** The boxes of tooltips. @type {WeakSet<Element>} */
const boxes = new WeakSet();

/**
 * Lets a tooltip's box follow the pointer on scrolled pages too.
 * @param {HTMLElement} element
 */
export function prepareTooltip(element) {
    if (!element.matches("#box1.tooltip")) return;
    boxes.add(element);
    element.style.position = "fixed";
    // Where it is kept on the screen the pointer may be over it.
    element.style.pointerEvents = "none";
}

/**
 * Where a side of an element comes to stand: a tooltip's box stays on the screen.
 * @param {HTMLElement} element @param {string} side @param {any} length as a script sets it
 */
export function placeOf(element, side, length) {
    const size = side === "top" ? "Height" : "Width";
    if (!boxes.has(element) || side === size.toLowerCase()) return length;
    const screen = document.scrollingElement ?? document.documentElement;
    const room = screen[`client${size}`] - element[`offset${size}`];
    return Math.max(Math.min(parseFloat(length), room), 0) + "px";
}
