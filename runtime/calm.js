/** Motion only where the visitor wants and sees it, and a button that stops it. */

/**
 * A new element.
 * @template {keyof HTMLElementTagNameMap} K
 * @param {K} tag @param {string} look its class @param {...(string | Node)} content
 * @returns {HTMLElementTagNameMap[K]}
 */
export function make(tag, look = "", ...content) {
    const element = document.createElement(tag);
    if (look) element.className = look;
    element.append(...content);
    return element;
}

/** An attribute's text; empty when it is missing. @param {Element} element @param {string} name */
export const attribute = (element, name) => element.getAttribute(name) ?? "";

/** The least time between two changes of a picture, in milliseconds; two changes are one flash. */
export const shortestFlash = 170;

const motion = matchMedia("(prefers-reduced-motion: reduce)");

/** Whether the visitor asks for as little motion as possible. */
export const calm = () => motion.matches;

/** Calls `run` when the visitor's wish changes. @param {() => void} run */
export const onCalm = (run) => motion.addEventListener("change", run);

/**
 * Tells whether an element is on the screen, now and at each change.
 * @param {Element} element @param {(seen: boolean) => void} tell
 */
export const onSeen = (element, tell) =>
    new IntersectionObserver((all) => tell(!!all.pop()?.isIntersecting)).observe(element);

/** The look of all that the page script shows. */
const look = `
button,.box,.strip{box-sizing:border-box;color:#000;background:#fff;border:1px solid #555}
button{font:700 12px/22px sans-serif;width:24px;height:24px;padding:0;flex:none;
opacity:.55;cursor:pointer;pointer-events:auto}
button:hover,button:focus{opacity:1;outline:2px solid #06c}
a,canvas{display:block}
.over,.over>button{position:absolute;right:0;top:0}
.small>button{right:auto;left:100%}
.words{position:absolute;width:1px;height:1px;overflow:hidden;clip-path:inset(50%);
white-space:nowrap}
.box,.strip{position:fixed;right:0;z-index:2147483647}
.box{top:0;max-width:20em;font:14px/1.4 sans-serif;padding:12px;margin:12px}
.box>button{width:auto;height:auto;padding:4px 10px;margin:6px 6px 0 0;opacity:1;font:inherit}
.strip{left:0;bottom:0;max-height:50vh;display:flex;overflow:hidden}
.shown{font:13px/24px sans-serif;white-space:pre;padding-left:4px}
.still{overflow:auto;pointer-events:auto}
.still>.shown{white-space:pre-wrap;overflow-wrap:anywhere;min-width:0}
@media print{button,.strip,.box{display:none!important}}`;

/**
 * A small button that stops and starts what moves; so does a change of the visitor's wish.
 * @param {string} what what moves, in words for screen readers, such as "the moving text"
 * @param {boolean} moving whether it moves now
 * @param {(moving: boolean) => void} changed called at each change: whether it moves from now on
 */
export function pauseButton(what, moving, changed) {
    const button = make("button");
    button.type = "button";
    const show = () => {
        button.textContent = moving ? "\u275A\u275A" : "\u25B6\uFE0E";
        button.title = (moving ? "Pause " : "Play ") + what;
        button.setAttribute("aria-label", button.title);
    };
    button.addEventListener("click", (event) => {
        event.preventDefault();
        event.stopPropagation();
        turn();
    });
    const turn = () => {
        moving = !moving;
        show();
        changed(moving);
    };
    onCalm(() => moving === calm() && button.isConnected && turn());
    show();
    return button;
}

/**
 * An element with a shadow root, which the page's styles do not reach. The caller puts it into the
 * page.
 * @param {string} hostStyle
 */
export function ownPlace(hostStyle) {
    const host = make("div");
    host.style.cssText = "all:initial;" + hostStyle;
    const inside = host.attachShadow({ mode: "open" });
    try {
        // A Content Security Policy of the page does not forbid sheets that are made like this.
        const sheet = new CSSStyleSheet();
        sheet.replaceSync(look);
        inside.adoptedStyleSheets = [sheet];
    } catch {
        inside.append(make("style", "", look));
    }
    return { host, inside };
}

/** Where a pause button stands on a picture of this size. @param {number} w @param {number} h */
export const overClass = (w, h) => (Math.min(w, h) < 72 ? "over small" : "over");

/**
 * The same, with an `inside` that lies over an element: it is at home right behind it, as an empty
 * piece of the line, so that it goes where the element goes, and moves nothing else on the page.
 * Its `remove` takes it away.
 * @param {Element} element
 */
export function placeOver(element) {
    const shown = /** @type {HTMLElement} */ (element);
    const { host, inside } = ownPlace("pointer-events:none;z-index:9");
    const over = make("div");
    inside.append(over);
    element.after(host);
    const follow = () => {
        const { offsetWidth: w, offsetHeight: h } = shown;
        // Without a position its own offsets count from where those of the element do.
        host.style.position = "static";
        const x = shown.offsetLeft - host.offsetLeft;
        const y = shown.offsetTop - host.offsetTop;
        host.style.position = "relative";
        over.className = overClass(w, h);
        over.style.cssText = `left:${x}px;top:${y}px;width:${w}px;height:${h}px`;
    };
    const watcher = new ResizeObserver(follow);
    watcher.observe(element);
    follow();
    return { inside: over, remove: () => (watcher.disconnect(), host.remove()) };
}

/** @type {HTMLElement | undefined} */
let announced;

/** Says words to screen readers, politely. @param {string} words */
export function say(words) {
    if (!announced) {
        announced = make("span", "words");
        announced.setAttribute("aria-live", "polite");
        const { host, inside } = ownPlace("position:absolute");
        inside.append(announced);
        document.documentElement.append(host);
    }
    // Words are spoken that come into a place which is there already.
    setTimeout(() => announced?.replaceChildren(words), 50);
}
