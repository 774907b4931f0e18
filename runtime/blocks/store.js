/** What a block remembers from one visit to the next. */

/**
 * A value of a block's own in the visitor's browser; where that is refused, it lasts as long as the
 * page.
 * @param {HTMLElement} root
 */
export function store(root) {
    const { orvane } = root.dataset;
    const among = [...document.querySelectorAll(`[data-orvane="${orvane}"]`)].indexOf(root);
    const key = `orvane ${orvane} ${location.pathname} ${among}`;
    let kept = "";
    return {
        get() {
            try {
                kept = localStorage.getItem(key) ?? kept;
            } catch {}
            return kept;
        },
        /** @param {string} value */
        set(value) {
            kept = value;
            try {
                localStorage.setItem(key, value);
            } catch {}
        },
    };
}
