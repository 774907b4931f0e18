/**
 * The objects that generated scripts see in place of the browser's document, window and so on: with
 * the properties that those had when the scripts were written. The author's own scripts never see
 * them.
 */
import { addFavorite, closeWindow, openWindow } from "./windows.js";
import { filtersOf, setFilter } from "./filters.js";
import { placeOf } from "./lengths.js";
import { heightOf } from "./scroller.js";
import { timers } from "./timers.js";
import { listenLate } from "./starts.js";
import { showStatus, status } from "./ticker.js";
import { changed, currentEvent, onMouseMove, prepareTrail } from "./trail.js";

/**
 * The properties of a stand-in that differ from those of the real object.
 * @typedef {Record<string, {get?: () => any, set?: (value: any) => void}>} Changes
 */

/**
 * An object that passes every property on to `real` but those in `changes`.
 * @param {any} real
 * @param {Changes} changes
 */
function standIn(real, changes) {
    return new Proxy(
        {},
        {
            get(_, key) {
                const change = changes[/** @type {string} */ (key)];
                if (change?.get) return change.get();
                const value = real[key];
                // A browser's method works on its own object only. A function with a prototype is
                // none: a class, or one of the page's own.
                return typeof value === "function" && !("prototype" in value)
                    ? value.bind(real)
                    : value;
            },
            set(_, key, value) {
                const change = changes[/** @type {string} */ (key)];
                if (change?.set) change.set(value);
                else if (!change) real[key] = value;
                return true;
            },
        },
    );
}

/** A change that always gives one value. @param {any} value */
const only = (value) => ({ get: () => value });

/** @type {WeakMap<Element, any>} */
const elements = new WeakMap();

/**
 * The stand-in of an element, whose style takes lengths without units.
 * @param {any} element
 */
function elementStandIn(element) {
    if (!element?.style) return element;
    let known = elements.get(element);
    if (!known) {
        known = standIn(element, {
            style: only(styleOf(element)),
            filters: { get: () => filtersOf(element) },
            offsetHeight: { get: () => heightOf(element) },
        });
        prepareTrail(element);
        elements.set(element, known);
    }
    return known;
}

/** The stand-in of an element's style. @param {HTMLElement} element */
function styleOf(element) {
    const { style } = element;
    /** @type {Changes} */
    const changes = {
        filter: { get: () => style.filter, set: (value) => setFilter(element, value) },
    };
    for (const side of /** @type {const} */ (["top", "left", "width", "height"])) {
        const put = (/** @type {any} */ value) => {
            const number = String(value).trim() !== "" && !isNaN(value);
            const length = placeOf(element, side, number ? value + "px" : value);
            if (style[side] === length) return;
            style[side] = length;
            changed();
        };
        changes[side] = { get: () => style[side], set: put };
        const pixels = { get: () => parseInt(style[side]) || 0, set: put };
        changes["pixel" + side[0].toUpperCase() + side.slice(1)] = pixels;
    }
    return standIn(style, changes);
}

const all = new Proxy(
    {},
    {
        get: (_, key) => elementStandIn(/** @type {any} */ (document.all)[key]),
    },
);

const documentStandIn = standIn(document, {
    all: only(all),
    body: {
        get: () =>
            document.body &&
            standIn(document.body, {
                scrollTop: { get: () => document.scrollingElement?.scrollTop ?? 0 },
                scrollLeft: { get: () => document.scrollingElement?.scrollLeft ?? 0 },
            }),
    },
    getElementById: only((/** @type {string} */ id) => elementStandIn(document.getElementById(id))),
    onmousemove: { set: onMouseMove },
});

const navigatorStandIn = standIn(navigator, { appName: only("Microsoft Internet Explorer") });

const windowStandIn = standIn(window, {
    document: only(documentStandIn),
    navigator: only(navigatorStandIn),
    event: { get: currentEvent },
    status: { get: status, set: showStatus },
    onload: { set: (run) => listenLate("load", run) },
    onunload: { set: (run) => listenLate("pagehide", run) },
    open: only(openWindow),
    close: only(closeWindow),
    external: only({ AddFavorite: addFavorite }),
    setTimeout: only(timers.setTimeout),
    setInterval: only(timers.setInterval),
    clearTimeout: only(timers.clearTimeout),
    clearInterval: only(timers.clearInterval),
});

/** An image whose `readyState` tells whether it is loaded. */
function ImageStandIn() {
    const image = new Image();
    Object.defineProperty(image, "readyState", {
        get: () => (image.complete && image.naturalWidth ? "complete" : "loading"),
    });
    return image;
}

/** The scope in which every generated script runs, by `with`. */
export const orvane = Object.assign(Object.create(null), {
    document: documentStandIn,
    window: windowStandIn,
    navigator: navigatorStandIn,
    Image: ImageStandIn,
    ...timers,
});
// The slideshow names its image as a global variable.
Object.defineProperty(orvane, "oImg", {
    get: () => elementStandIn(document.getElementById("oImg")),
});
