/** What keeps a page calm: motion only where the visitor wants it, and a button that stops it. */

/** No picture changes more often than this, in milliseconds: two changes are one flash. */
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
 * @param {string} what named to those who cannot see it, such as "the moving text"
 * @param {boolean} moving whether it moves now
 * @param {(moving: boolean) => void} changed called at each press with what holds from now on
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
 * A host of our own, which the page's styles do not reach, with `css` and the button's look inside.
 * @param {string} hostStyle
 * @param {string} css
 */
export function ownPlace(hostStyle, css = "") {
    const host = document.createElement("div");
    host.style.cssText = hostStyle;
    const inside = host.attachShadow({ mode: "open" });
    try {
        // A strict policy of the page does not reach sheets that are made like this.
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
 * A host of our own that lies over an element and goes where it goes; what stands on the page
 * keeps its place.
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
