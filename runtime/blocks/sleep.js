/** Rest while nobody can see. */
import { on } from "./start.js";

/**
 * Tells whether an effect may sleep: its page is hidden, or it is off screen.
 * @param {HTMLElement} root
 * @param {boolean} placed whether the effect is where its root is
 * @param {(sleeps: boolean) => void} tell called soon, and at every change
 */
export function sleep(root, placed, tell) {
    let seen = !placed;
    const report = () => tell(document.hidden || !seen);
    on(document, "visibilitychange", report);
    if (!placed) return report();
    new IntersectionObserver((entries) => {
        seen = !!entries.pop()?.isIntersecting;
        report();
    }).observe(root);
}
