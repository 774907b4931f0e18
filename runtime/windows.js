/**
 * What pages do with windows and today's browsers block: opening them on load and on exit, closing
 * them, adding favourites. A small box in the page says what the visitor can do instead.
 */
import { ownPlace } from "./calm.js";

const look = `
  .box { position: fixed; top: 12px; right: 12px; max-width: min(22em, 80vw); z-index: 2147483647;
    font: 14px/1.4 sans-serif; color: #000; background: #fff; border: 1px solid #555;
    border-radius: 6px; padding: 10px 12px; box-shadow: 0 2px 8px #0006 }
  .choice { width: auto; height: auto; padding: 4px 10px; margin: 6px 6px 0 0; opacity: 1;
    font: inherit }`;

/**
 * Shows a box with words, a button for what can be done and one that closes it.
 * @param {string} words
 * @param {{caption: string, run: () => void}} [action]
 */
function showBox(words, action) {
    const { host, inside } = ownPlace("", look);
    const box = document.createElement("div");
    box.className = "box";
    box.setAttribute("role", "status");
    const text = document.createElement("span");
    box.append(text, document.createElement("br"));
    /** @param {string} caption @param {() => void} run */
    const addButton = (caption, run) => {
        const button = document.createElement("button");
        button.className = "choice";
        button.textContent = caption;
        button.addEventListener("click", () => (host.remove(), run()));
        box.append(button);
    };
    if (action) addButton(action.caption, action.run);
    addButton("Close", () => {});
    box.addEventListener("keydown", (event) => event.key === "Escape" && host.remove());
    inside.append(box);
    document.documentElement.append(host);
    // Screen readers speak words that are put into a box which is there already.
    setTimeout(() => (text.textContent = words));
}

/**
 * Offers a window in a box.
 * @param {string} url @param {string} name @param {string} features
 * @param {() => void} [done] called once it is opened
 */
function offerWindow(url, name, features, done = () => {}) {
    showBox(`This page has a window to show: ${url}`, {
        caption: "Open it",
        run: () => (open(url, name, features), done()),
    });
}

/**
 * Opens a window as `window.open` does; one that the browser blocks is offered in a box.
 * @param {string} url @param {string} name @param {string} features
 */
export function openWindow(url, name, features) {
    const opened = open(url, name, features);
    if (!opened) offerWindow(url, name, features);
    return opened;
}

/** An address without the place on the page. @param {string} url */
const pageOf = (url) => url.replace(/#.*/, "");

/** Whether a click leads from this page to another in its place. @param {MouseEvent} event */
function leads({ target, defaultPrevented, button, ctrlKey, shiftKey, metaKey, altKey }) {
    const link = /** @type {HTMLAnchorElement | null} */ (
        /** @type {Element} */ (target).closest?.("a[href],area[href]")
    );
    const isOther = defaultPrevented || button || ctrlKey || shiftKey || metaKey || altKey;
    return (
        link &&
        !isOther &&
        !link.hasAttribute("download") &&
        /^(_self|_top|_parent)?$/i.test(link.target) &&
        /^(https?|file):/.test(link.protocol) &&
        (pageOf(link.href) !== pageOf(location.href) || !link.href.includes("#"))
    );
}

/**
 * Opens a window at the click on a link that leads away, which browsers let a page do, and offers
 * it once the visitor seems about to leave: the pointer leaves the page at the top, a key such as
 * Ctrl or Alt is pressed, or the page is shown again after it was hidden.
 * @param {string} url @param {string} name @param {string} features
 * @param {() => void} done called once it is opened
 */
export function openOnLeaving(url, name, features, done) {
    const ended = new AbortController();
    const offer = () => (ended.abort(), offerWindow(url, name, features, done));
    /** @param {EventTarget} on @param {string} event @param {(event: any) => any} asks */
    const when = (on, event, asks) =>
        on.addEventListener(event, (told) => asks(told) && offer(), { signal: ended.signal });
    when(document.documentElement, "mouseleave", (event) => event.clientY <= 0);
    when(document, "keydown", (event) => ["Control", "Alt", "Meta"].includes(event.key));
    when(document, "visibilitychange", () => !document.hidden);
    addEventListener("pageshow", (event) => event.persisted && offer(), { signal: ended.signal });
    addEventListener(
        "click",
        (event) => {
            if (leads(event) && open(url, name, features)) (ended.abort(), done());
        },
        { signal: ended.signal },
    );
}

const mac = /Mac|iPhone|iPad/.test(navigator.platform);

/** Closes the window; when the browser keeps it open, says how the visitor can close it. */
export function closeWindow() {
    close();
    setTimeout(() => {
        const key = mac ? "\u2318W" : "Ctrl+W";
        if (!window.closed) showBox(`A page may not close this window. Press ${key} to close it.`);
    }, 300);
}

/**
 * Says how the visitor adds a page to the bookmarks.
 * @param {string} url @param {string} title
 */
export function addFavorite(url, title) {
    const key = mac ? "\u2318D" : "Ctrl+D";
    if (pageOf(new URL(url, document.baseURI).href) === pageOf(location.href))
        showBox(`Press ${key} to add "${title}" to your bookmarks.`);
    else
        showBox(`To bookmark "${title}", open it and press ${key}.`, {
            caption: "Open it",
            run: () => void (location.href = url),
        });
}
