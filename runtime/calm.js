/** Motion only where the visitor wants it, and a button that stops it. */

/** The least time between two changes of a picture, in milliseconds; two changes are one flash. */
export const shortestFlash = 170;

/** Whether the visitor asked for as little motion as possible. */
export function calm() {
    return matchMedia("(prefers-reduced-motion: reduce)").matches;
}

const look = `
  button { font: 700 11px/16px sans-serif; width: 20px; height: 20px; padding: 0; margin: 1px;
    color: #000; background: #fff; border: 1px solid #555; border-radius: 3px; opacity: .55;
    cursor: pointer; pointer-events: auto }
  button:hover, button:focus { opacity: 1; outline: 2px solid #06c }
  @media print { button, .strip, .box { display: none !important } }`;

/**
 * A small button that stops and starts what moves.
 * @param {string} what what moves, in words for screen readers, such as "the moving text"
 * @param {boolean} moving whether it moves now
 * @param {(moving: boolean) => void} changed called at each press: whether it moves from now on
 */
export function pauseButton(what, moving, changed) {
    const button = document.createElement("button");
    button.type = "button";
    const show = () => {
        button.textContent = moving ? "\u275A\u275A" : "\u25B6\uFE0E";
        button.setAttribute("aria-label", (moving ? "Pause " : "Play ") + what);
        button.title = button.getAttribute("aria-label") ?? "";
    };
    button.addEventListener("click", (event) => {
        event.preventDefault();
        event.stopPropagation();
        moving = !moving;
        show();
        changed(moving);
    });
    show();
    return button;
}

/**
 * An element with a shadow root, which the page's styles do not reach, for `css` and the button's
 * look inside. The caller puts it into the page.
 * @param {string} hostStyle
 * @param {string} css
 */
export function ownPlace(hostStyle, css = "") {
    const host = document.createElement("div");
    host.style.cssText = hostStyle;
    const inside = host.attachShadow({ mode: "open" });
    try {
        // A Content Security Policy of the page does not forbid sheets that are made like this.
        const sheet = new CSSStyleSheet();
        sheet.replaceSync(look + css);
        inside.adoptedStyleSheets = [sheet];
    } catch {
        const style = document.createElement("style");
        style.textContent = look + css;
        inside.append(style);
    }
    return { host, inside };
}

/**
 * The same, placed over an element; it follows the element's place and size, and moves nothing else
 * on the page. Its `remove` takes it away.
 * @param {Element} element
 */
export function placeOver(element) {
    const place = ownPlace(
        "all:initial;position:absolute;left:0;top:0;pointer-events:none;z-index:9",
        "button { position: absolute; right: 0; top: 0 }",
    );
    const { host } = place;
    element.after(host);
    const follow = () => {
        const wanted = element.getBoundingClientRect();
        const now = host.getBoundingClientRect();
        host.style.left = parseFloat(host.style.left) + wanted.left - now.left + "px";
        host.style.top = parseFloat(host.style.top) + wanted.top - now.top + "px";
        host.style.width = wanted.width + "px";
        host.style.height = wanted.height + "px";
    };
    const watcher = new ResizeObserver(follow);
    watcher.observe(element);
    watcher.observe(document.documentElement);
    follow();
    return { ...place, remove: () => (watcher.disconnect(), host.remove()) };
}
