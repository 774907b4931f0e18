/**
 * The `filters` that old scripts expect on elements: opacity, and the transition of slides.
 */
import { attribute } from "./calm.js";
import { makeReveal } from "./reveal.js";

/** Opacities in per cent, from the tag or as set last. @type {WeakMap<Element, number>} */
const opacities = new WeakMap();
/** @type {WeakMap<Element, ReturnType<typeof makeReveal>>} */
const reveals = new WeakMap();

/**
 * Shows the opacity of an image's style attribute, `filter:alpha(opacity=50)`, which browsers drop,
 * and gives an image that brightens `filters`: its handlers pass the real element, no stand-in.
 * @param {HTMLElement} element
 */
export function prepareFilter(element) {
    if (/startHighlight\(/.test(attribute(element, "onmouseover")) && !("filters" in element))
        Object.defineProperty(element, "filters", {
            configurable: true,
            value: filtersOf(element),
        });
    const found = /alpha\(opacity=(\d+)/i.exec(attribute(element, "style"));
    if (found) setOpacity(element, Number(found[1]));
}

/** Shows and keeps an opacity. @param {HTMLElement} element @param {number} percent */
function setOpacity(element, percent) {
    opacities.set(element, percent);
    element.style.opacity = String(Math.min(Math.max(percent / 100, 0), 1));
}

/**
 * Does what an old script wants by setting `style.filter`.
 * @param {HTMLElement} element @param {string} text
 */
export function setFilter(element, text) {
    const found = /transition=(\d+),duration=(.+)\)/i.exec(text);
    if (found) {
        reveals.get(element)?.end();
        reveals.set(element, makeReveal(element, Number(found[1]), Number(found[2])));
    } else element.style.filter = text;
}

/**
 * The object that an old script reads as `filters`.
 * @param {HTMLElement} element
 */
export function filtersOf(element) {
    const alpha = {
        get opacity() {
            return opacities.get(element) ?? 100;
        },
        set opacity(percent) {
            setOpacity(element, percent);
        },
    };
    return { alpha, 0: reveals.get(element) ?? alpha };
}
