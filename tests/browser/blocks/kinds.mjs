/**
 * The blocks that are looked at, one row a kind: `block` is written by hand as the contract has it,
 * with § for its script; `words` and `links` are what it says without the script; `sees` throws
 * unless the visitor sees what the effect's description promises.
 */
import assert from "../page_script/assert.mjs";
import { wait } from "../page_script/tools.mjs";

/** What a function makes of an element in the n-th block: see `inside` in scenarios.mjs. */
const x = (css, n) => (tab) =>
    tab.evaluate((css, n) => inside(css, n).getBoundingClientRect().x, css, n);

/** Waits until `take` holds in the tab; says what it was instead. */
async function until(tab, take, ...values) {
    const begin = Date.now();
    for (;;) {
        const seen = await tab.evaluate(take, ...values);
        if (seen === true) return;
        if (Date.now() - begin > 6000) throw new Error(`${seen} of ${take}`);
        await wait(30);
    }
}
/** The text that is seen of items in one place. */
const shown = (n) =>
    [...inside(".stage", n).children].map((e) => getComputedStyle(e).opacity).join();

export const kinds = [
    {
        kind: "scroller",
        block: `<div data-orvane="scroller-1" data-speed="120" data-font="Georgia, serif"
            data-font-size="18" data-text-color="#ffffff" data-back-color="#002244"
            data-faded-edges="yes" data-width="600"><ul><li>Seeds are in</li>
            <li><a href="plums.html">Plums from Monday</a></li></ul>§</div>`,
        words: ["Seeds are in", "Plums from Monday"],
        links: ["plums.html"],
        async sees(tab, n) {
            await wait(200);
            const before = await x(".group", n)(tab);
            await wait(300);
            const moved = before - (await x(".group", n)(tab));
            assert.ok(moved > 15 && moved < 150, `moved by ${moved}`);
            const filled = await tab.evaluate((n) => {
                const [view, last] = [inside(".view", n), inside(".group:last-child", n)];
                return last.getBoundingClientRect().right > view.getBoundingClientRect().right;
            }, n);
            assert.ok(filled, "no gap at the end of the band");
        },
    },
    {
        kind: "message",
        block: `<div data-orvane="message-1" data-seconds="1" data-fade-seconds="0.3"><ul>
            <li>Open on Sundays</li><li><a href="rooms.html">Two rooms are free</a></li></ul>§</div>`,
        words: ["Open on Sundays", "Two rooms are free"],
        links: ["rooms.html"],
        async sees(tab, n) {
            const opacities = (n) =>
                [...inside(".stage", n).children].map((e) => +getComputedStyle(e).opacity);
            assert.equal(await tab.evaluate(opacities, n), [1, 0]);
            await until(
                tab,
                (n) => {
                    const [a, b] = [...inside(".stage", n).children].map(
                        (e) => +getComputedStyle(e).opacity,
                    );
                    return b === 0 && a < 1 && a > 0;
                },
                n,
            );
            await until(
                tab,
                (n) =>
                    [...inside(".stage", n).children]
                        .map((e) => getComputedStyle(e).opacity)
                        .join() === "0,1",
                n,
            );
        },
    },
    {
        kind: "animation",
        block: `<div data-orvane="animation-1" data-milliseconds="600" data-change="10"><ul>
            <li><a href="cat.html"><img src="a.gif" alt="A cat jumps" width="100" height="80"></a></li>
            <li hidden><img src="b.gif" alt="" width="100" height="80" loading="lazy"></li></ul>§</div>`,
        words: [],
        links: ["cat.html"],
        async sees(tab, n) {
            await until(tab, (n) => inside("img", n).style.clipPath.includes("evenodd"), n);
            await until(
                tab,
                (n) =>
                    [...inside(".stage", n).children]
                        .map((e) => getComputedStyle(e).opacity)
                        .join() === "0,1",
                n,
            );
        },
    },
    {
        kind: "flying",
        block: `<p>New: <span data-orvane="flying-1" data-from="all" data-path="spiral"
            data-letter-pause="40" data-flight-seconds="0.8" data-font-size="28"
            data-font-style="bold" data-text-color="#880044">Plums <a href="plums.html">from
            Monday</a>§</span></p>`,
        words: ["Plums from Monday"],
        links: ["plums.html"],
        async sees(tab, n) {
            await until(
                tab,
                (n) => {
                    const letter = inside(".word span", n);
                    return letter && getComputedStyle(letter).transform !== "none";
                },
                n,
            );
            await until(tab, (n) => inside(".letters", n) === null, n);
        },
    },
    {
        kind: "falling",
        block: `<div data-orvane="falling-1" data-number="12" data-speed="150" data-turning="yes"><ul hidden>
            <li><img src="a.gif" alt="" width="100" height="80" loading="lazy"></li>
            <li><img src="b.gif" alt="" width="100" height="80" loading="lazy"></li></ul>§</div>`,
        words: [],
        links: [],
        async sees(tab, n) {
            const tops = (n) =>
                [...inside(".flight", n).children].map((e) => e.getBoundingClientRect().y);
            await wait(300);
            const before = await tab.evaluate(tops, n);
            await wait(200);
            const after = await tab.evaluate(tops, n);
            assert.equal(before.length, 12);
            assert.ok(after.filter((y, i) => y > before[i]).length > 9, "they fall");
        },
    },
];
