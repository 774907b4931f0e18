/** What holds for every block, whatever its kind. */
import assert from "../page_script/assert.mjs";
import { tabs, wait } from "../page_script/tools.mjs";

/**
 * Runs before the page: `inside` finds an element in the n-th block, `wish` tells how much motion
 * the visitor wants, `pending` are the timers that wait, `moving` how many animations run.
 */
const before = `${tabs}
  window.inside = (css, n = 0) => {
    const [root] = [...document.querySelectorAll("[data-orvane]")].slice(n);
    return root.shadowRoot?.querySelector(css) ?? root.querySelector(css);
  };
  window.pending = new Set();
  const { setTimeout: set, clearTimeout: clear } = window;
  window.setTimeout = (run, ...rest) => {
    const id = set(() => { pending.delete(id); run(); }, ...rest);
    return pending.add(id), id;
  };
  window.clearTimeout = (id) => { pending.delete(id); clear(id); };
  const { setInterval: every, clearInterval: stop } = window;
  window.setInterval = (...all) => { const id = every(...all); return pending.add(id), id; };
  window.clearInterval = (id) => { pending.delete(id); stop(id); };
  window.moving = () => [...document.querySelectorAll("[data-orvane]")]
    .flatMap(({ shadowRoot }) => [document, shadowRoot ?? document])
    .flatMap((one) => one.getAnimations())
    .filter((one) => one.playState === "running").length;
  window.motions = [];
  const { matchMedia: media } = window;
  window.matchMedia = (query) => {
    if (!/reduced-motion/.test(query)) return media(query);
    const found = Object.assign(new EventTarget(), { matches: window.reduced === true });
    return motions.push(found), found;
  };
  window.wish = (reduced) => motions.forEach((one) => {
    one.matches = reduced;
    one.dispatchEvent(new Event("change"));
  });`;
const reduced = `window.reduced = true;`;
const quiet = (tab, row = {}) =>
    tab.evaluate(
        (ticks) => `${moving()} animations, ${ticks ? 0 : pending.size} timers`,
        Boolean(row.ticks),
    );

/** A page style that changes everything but what the block's place is, which blocks take over. */
const hostile = `<style>body :not(p), body :not(p)::before { color: red !important;
  background: lime !important; font: 40px/3 monospace !important; display: inline !important;
  position: static !important; margin: 9px !important; padding: 9px !important;
  border: 3px solid !important; transform: rotate(9deg) !important; opacity: .5 !important;
  width: 33px !important; float: left !important; letter-spacing: 5px !important;
  text-transform: uppercase !important; visibility: hidden !important }</style>`;

/** Every computed value inside the first block. */
const values = () => {
    const [root] = document.querySelectorAll("[data-orvane]");
    const changing = /^(transform|perspective-origin|transform-origin)$/;
    return [...root.shadowRoot.querySelectorAll("*")]
        .filter((e) => e.localName !== "style")
        .map((e) => [e.localName + "." + e.className, getComputedStyle(e)])
        .map(([name, style]) => [
            name,
            [...style]
                .filter((p) => !changing.test(p))
                .map((p) => `${p}:${style.getPropertyValue(p)}`),
        ]);
};

/** Each scenario: its name, the page's options, and what must hold. */
export const scenarios = [
    {
        name: "does what it says",
        async run({ open, row, tab, requests }) {
            await open({ script: "none" });
            const names = await tab.evaluate(() => Object.getOwnPropertyNames(window));
            await open();
            await row.sees(tab, 0);
            const now = await tab.evaluate(() => Object.getOwnPropertyNames(window));
            assert.equal(
                now.filter((name) => !names.includes(name)),
                [],
            );
            const files = row.block.match(/[\w-]+\.(gif|jpg|wav)/g) ?? [];
            const own = ["about:blank", "page.html", "favicon.ico", ...files];
            assert.equal(
                requests.filter((url) => !own.some((file) => url.endsWith(file))),
                [],
            );
        },
    },
    {
        name: "two copies, beside the page script",
        async run({ open, row, tab }) {
            await open({ copies: 2, pageScript: true });
            if (row.once) return void (await Promise.all([row.sees(tab, 0), row.sees(tab, 1)]));
            await row.sees(tab, 0);
            await row.sees(tab, 1);
        },
    },
    {
        name: "its script stands in the head and twice at the end, or is lost",
        async run({ open, row, tab }) {
            await open({ script: "head" });
            await row.sees(tab, 0);
            await open({ script: "none" });
            const [words, links] = await tab.evaluate(() => {
                const [root] = document.querySelectorAll("[data-orvane]");
                return [
                    root.innerText,
                    [...root.querySelectorAll("a")].map((a) => a.getAttribute("href")),
                ];
            });
            for (const word of row.words)
                assert.ok(words.replace(/\s+/g, " ").includes(word), `${word} in ${words}`);
            assert.equal(links, row.links);
        },
    },
    {
        name: "hostile page style",
        async run({ open, tab }) {
            await open({ before: reduced });
            await wait(300);
            const own = await tab.evaluate(values);
            await open({ head: hostile, before: reduced });
            await wait(300);
            const kept = await tab.evaluate(values);
            own.forEach(([name, list], i) =>
                assert.equal(
                    kept[i][1].filter((value) => !list.includes(value)),
                    [],
                    `${name} of ${kept[i][0]} is ${kept[i][1].filter((value) => !list.includes(value))}`,
                ),
            );
        },
    },
    {
        name: "as little motion as possible, until the visitor lets it play and stops it",
        async run({ open, row, tab, doctype }) {
            await open({ before: reduced });
            await wait(1000);
            assert.equal(await quiet(tab, row), "0 animations, 0 timers");
            if (row.words.length && !row.elsewhere) {
                const seen = await tab.evaluate(
                    () => document.querySelector("[data-orvane]").getBoundingClientRect().height,
                );
                assert.ok(seen > 10, "nothing is seen");
            }
            const play = await tab.evaluate(() => inside("button")?.title ?? "");
            if (!play.startsWith("Play")) return;
            await tab.evaluate(() => inside("button").click());
            await wait(200);
            assert.notEqual(await quiet(tab, row), "0 animations, 0 timers");
            await tab.evaluate((stops) => (stops ? inside("button").click() : wish(true)), doctype);
            await wait(1000);
            assert.equal(await quiet(tab, row), "0 animations, 0 timers");
        },
    },
    {
        name: "hidden, and seen again",
        async run({ open, row, tab }) {
            await open();
            await wait(150);
            await tab.evaluate(() => leave(true));
            await wait(row.settles ?? 700);
            assert.equal(await quiet(tab, row), "0 animations, 0 timers");
            await tab.evaluate(() => leave(false));
            if (!row.once) await row.sees(tab, 0);
        },
    },
    {
        name: "axe",
        async run({ open, row, tab, axe }) {
            await open({ before: reduced });
            await wait(400);
            await tab.evaluate(axe);
            const found = await tab.evaluate(async () =>
                (await axe.run("[data-orvane]")).violations.map(
                    ({ id, nodes }) => `${id}: ${nodes[0].html} ${nodes[0].failureSummary}`,
                ),
            );
            assert.equal(found, []);
        },
    },
];

/** The page's scrollbars have their colours, and boxes on it have not. */
export async function seesScrollbars(tab) {
    const colors = await tab.evaluate(() =>
        [document.documentElement, document.body].map((e) => getComputedStyle(e).scrollbarColor),
    );
    assert.equal(colors, ["rgb(51, 102, 153) rgb(221, 230, 238)", "auto"]);
}

/** How many milliseconds of a second the main thread is busy with a block. */
export async function cost({ open, tab }) {
    await open();
    await wait(1500);
    const before = (await tab.metrics()).TaskDuration;
    await wait(3000);
    return ((await tab.metrics()).TaskDuration - before) / 0.003;
}

/** The text of a page with a row's block. */
export function pageOf(
    row,
    code,
    { doctype, copies = 1, pageScript = false, head = "", script = "place" },
) {
    const element = `<script data-orvane-run="${row.kind}-1">${code}</script>`;
    const block = row.block.replace("§", () => (script === "place" ? element : ""));
    return `${doctype ? "<!DOCTYPE html>" : ""}<html lang="en"><head><title>Page</title>${
        pageScript ? '<script src="orvane.js"></script>' : ""
    }${head}${script === "head" ? element : ""}</head><body><p>Before it.</p>${`<!-- ***** Begin:Varlo ${row.kind} special effect ***** -->\r\n${block}<!-- ***** End:Varlo ${row.kind} special effect ***** -->`.repeat(
        copies,
    )}<p>Behind it.</p>${script === "head" ? element.repeat(2) : ""}</body></html>`;
}

/** All that a page is opened with. */
export const setUp = before;
