/**
 * What the page script uses of the browser, taken before any script of the author's can put its own
 * in place of it; what no page could do without, such as `Array`, is not among it. The bundler puts
 * these in wherever a module uses such a name.
 */
export const {
    Audio,
    Blob,
    CSSStyleSheet,
    Image,
    ImageData,
    IntersectionObserver,
    MouseEvent,
    Proxy,
    ResizeObserver,
    TextDecoder,
    Math,
    URL,
    XMLHttpRequest,
    addEventListener,
    clearTimeout,
    close,
    console,
    devicePixelRatio,
    document,
    open,
    requestAnimationFrame,
    setInterval,
    setTimeout,
} = window;

const { performance } = window;

/** Milliseconds since the page began. */
export const now = () => performance.now();
