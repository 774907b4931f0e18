/** What happens when the visitor leaves by a link. */
import { on } from "./start.js";

/**
 * Calls `run` when a link of the page is clicked that leads to another page in the same window, and
 * goes there a little later.
 * @param {number} delay in milliseconds
 * @param {() => void} run
 */
export function onLeaving(delay, run) {
    on(document, "click", (event) => {
        const link = event.composedPath()[0].closest?.("a[href]");
        const { ctrlKey, shiftKey, metaKey, altKey, button, defaultPrevented } = event;
        if (!link || ctrlKey || shiftKey || metaKey || altKey || button || defaultPrevented) return;
        if ((link.target && link.target !== "_self") || link.hasAttribute("download")) return;
        const here = location.href.split("#")[0];
        if (!/^(https?|file):/.test(link.protocol) || link.href.split("#")[0] === here) return;
        event.preventDefault();
        run();
        setTimeout(() => (location.href = link.href), delay);
    });
}
