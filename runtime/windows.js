/**
 * What pages do with windows and today's browsers block: opening them on load and on exit, closing
 * them, adding favourites. A small box in the page says what the visitor can do instead.
 */
import { make, ownPlace } from "./calm.js";

/**
 * Shows a box with words, a button for what can be opened and one that closes it.
 * @param {string} words
 * @param {() => void} [run]
 */
function showBox(words, run) {
    const { host, inside } = ownPlace("");
    const text = make("div");
    const box = make("div", "box", text);
    box.setAttribute("role", "status");
    /** @param {string} caption @param {() => void} [run] */
    const addButton = (caption, run) => {
        const button = make("button", "", caption);
        button.onclick = () => (host.remove(), run?.());
        box.append(button);
    };
    if (run) addButton("Open it", run);
    addButton("Close");
    box.onkeydown = ({ key }) => void (key === "Escape" && host.remove());
    inside.append(box);
    document.documentElement.append(host);
    // Screen readers speak words that are put into a box which is there already.
    setTimeout(() => text.append(words));
}

/** What `window.open` takes. @typedef {[url: string, name: string, features: string]} Asked */

/**
 * Offers a window in a box.
 * @param {Asked} asked
 * @param {() => void} [done] called once it is opened
 */
function offerWindow(asked, done) {
    showBox(`This page has a window to show: ${asked[0]}`, () => (open(...asked), done?.()));
}

/**
 * Opens a window as `window.open` does; one that the browser blocks is offered in a box.
 * @param {Asked} asked
 */
export function openWindow(...asked) {
    const opened = open(...asked);
    if (!opened) offerWindow(asked);
    return opened;
}

/** An address without the place on the page. @param {string} url */
const pageOf = (url) => url.replace(/#.*/, "");

/** Whether a click leads from this page to another in its place. @param {MouseEvent} event */
function leads(event) {
    const link = /** @type {Element} */ (event.target).closest?.("a[href],area[href]");
    const { href, target } = /** @type {HTMLAnchorElement} */ (link ?? {});
    const isOther = event.defaultPrevented || event.ctrlKey || event.shiftKey || target;
    return /^(http|file)/.test(href) && !isOther && pageOf(href) !== pageOf(location.href);
}

/**
 * Opens a window at the click on a link that leads away, which browsers let a page do, and offers
 * it once the visitor seems about to leave: the pointer leaves the page at the top, a key such as
 * Ctrl or Alt is pressed, or the page is shown again after it was hidden.
 * @param {Asked} asked
 * @param {() => void} [done] called once it is opened
 */
export function openOnLeaving(asked, done) {
    let isOver = false;
    /** @param {boolean} now */
    const offer = (now) => {
        if (!now || isOver) return;
        isOver = true;
        offerWindow(asked, done);
    };
    document.documentElement.addEventListener("mouseleave", ({ clientY }) => offer(clientY <= 0));
    document.addEventListener("keydown", ({ key }) => offer(/^(Control|Alt|Meta)$/.test(key)));
    document.addEventListener("visibilitychange", () => offer(!document.hidden));
    addEventListener("click", (event) => {
        if (isOver || !leads(event) || !open(...asked)) return;
        isOver = true;
        done?.();
    });
}

/** What stands in front of the letter of a shortcut. */
const command = /^(Mac|iP)/.test(navigator.platform) ? "\u2318" : "Ctrl+";

/** Closes the window; when the browser keeps it open, says how the visitor can close it. */
export function closeWindow() {
    close();
    setTimeout(() => {
        if (!window.closed)
            showBox(`A page may not close this window. Press ${command}W to close it.`);
    }, 300);
}

/**
 * Says how the visitor adds a page to the bookmarks.
 * @param {string} url @param {string} title
 */
export function addFavorite(url, title) {
    const key = command + "D";
    if (pageOf(new URL(url, document.baseURI).href) === pageOf(location.href))
        showBox(`Press ${key} to add "${title}" to your bookmarks.`);
    else
        showBox(
            `To bookmark "${title}", open it and press ${key}.`,
            () => void (location.href = url),
        );
}
