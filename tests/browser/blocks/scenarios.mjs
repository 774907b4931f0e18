/** What holds for every block, whatever its kind. */
import assert from "../page_script/assert.mjs";
import { tabs, wait } from "../page_script/tools.mjs";

/**
 * Runs before the page: `inside` finds an element in the n-th block, `said` tells the words and
 * links of the n-th block as they are heard, or those that are seen; `wide` is how much wider than
 * the window the page ever was when asked, unless it shakes; `wish` tells how much motion
 * the visitor wants, `pending` are the timers and frames that wait, `moving` which animations
 * run, by their blocks.
 */
export const setUp = `${tabs}
  window.block = (n) => document.querySelectorAll("[data-orvane]")[n];
  window.inside = (css, n = 0) =>
    block(n).shadowRoot?.querySelector(css) ?? block(n).querySelector(css);
  window.said = (n = 0, seen = false) => {
    const links = [];
    const words = (node, frame) => {
      const of = (nodes) => [...nodes].map((one) => words(one, frame)).join("");
      if (node instanceof Text) return node.data;
      if (!node.localName || /^(style|script)$/.test(node.localName)) return "";
      const { display, visibility, opacity, overflowX } = getComputedStyle(node);
      if (display === "none" || visibility === "hidden" || node.inert) return "";
      const place = node.getBoundingClientRect();
      if (!seen && node.ariaHidden === "true") return "";
      if (seen && (opacity < 0.1 || node.closest("button"))) return "";
      const cut = frame && (place.right > frame.right + 2 || place.bottom > frame.bottom + 2);
      if (seen && cut && !node.children.length) return "";
      if (overflowX !== "visible") frame = place;
      if (node.href && node.tabIndex >= 0) links.push(node.getAttribute("href"));
      if (node.localName === "slot") return of(node.assignedNodes());
      return (node.alt ?? "") + of((node.shadowRoot ?? node).childNodes) +
        (display === "inline" ? "" : " ");
    };
    return { words: words(block(n)).replace(/\\s+/g, " "), links };
  };
  window.wide = (page = document.documentElement) => wide.most = Math.max(wide.most ?? 0,
    document.body.getAnimations()[0] ? 0 : page.scrollWidth - innerWidth);
  window.pending = new Set();
  for (const [start, end] of [["setTimeout", "clearTimeout"], ["setInterval", "clearInterval"],
      ["requestAnimationFrame", "cancelAnimationFrame"]]) {
    const { [start]: set, [end]: clear } = window;
    window[start] = (run, ...rest) => {
      const id = set((...all) => {
        if (start !== "setInterval") pending.delete(id);
        run.call ? run(...all) : (0, eval)(run);
      }, ...rest);
      return pending.add(id), id;
    };
    window[end] = (id) => { pending.delete(id); clear(id); };
  }
  window.moving = () => [...document.querySelectorAll("[data-orvane]")]
    .flatMap(({ shadowRoot }) => [document, shadowRoot ?? document])
    .flatMap((one) => one.getAnimations())
    .filter((one) => one.playState === "running")
    .map(({ effect }) => effect.target.getRootNode().host?.dataset.orvane);
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

/** Chance has no say; besides that the visitor wants as little motion as possible. */
const sure = `Math.random = () => 0.3;`;
const reduced = `window.reduced = true; ${sure}`;
/** The browser keeps nothing for this page. */
const refused = `Object.defineProperty(window, "localStorage", { get() { throw Error("refused"); } });`;

const asked = (row) => row.parts ?? [row];
const rest = " animations, 0 timers";
/** What still goes on; the clock of a kind that tells the time is not counted. */
const quiet = (tab, row) =>
    tab.evaluate(
        (ticks) => {
            const timers = pending.size - (document.hidden ? 0 : ticks);
            return `${moving().join()} animations, ${Math.max(0, timers)} timers`;
        },
        asked(row).filter(({ ticks }) => ticks).length,
    );

/** Nothing goes on any more, within so many milliseconds. */
async function rests(tab, row, ms = 1000) {
    for (const begin = Date.now(); Date.now() - begin < ms; await wait(50))
        if ((await quiet(tab, row)) === rest) return;
    assert.equal(await quiet(tab, row), rest);
}

/** Every word stands there once, and every link, of each kind of a row. */
async function says(tab, row, { seen = false, built = true } = {}) {
    for (const [n, { kind, words = [], links = [], heard, printed }] of asked(row).entries()) {
        const wanted = (built && !seen && heard) || { words: (seen && printed) || words, links };
        const found = await tab.evaluate((n, seen) => said(n, seen), n, seen);
        for (const word of wanted.words)
            assert.equal(found.words.split(word).length - 1, 1, `${kind}: "${word}" in "${found.words}"`);
        if (!seen) assert.equal(found.links, wanted.links, `${kind}: links ${found.links}`);
    }
}

/** A page style that changes everything but what the block's place is, which blocks take over. */
const hostile = `<style>body :not(p), body :not(p)::before { color: red !important;
  background: lime !important; font: 40px/3 monospace !important; display: inline !important;
  position: static !important; margin: 9px !important; padding: 9px !important;
  border: 3px solid !important; transform: rotate(9deg) !important; opacity: .5 !important;
  width: 33px !important; float: left !important; letter-spacing: 5px !important;
  text-transform: uppercase !important; visibility: hidden !important }</style>`;

/** Every computed value inside the blocks. */
const values = () => {
    const changing = /^(transform|perspective-origin|transform-origin)$/;
    return [...document.querySelectorAll("[data-orvane]")]
        .flatMap(({ shadowRoot }) => [...shadowRoot.querySelectorAll("*")])
        .filter((e) => e.localName !== "style")
        .map((e) => [e.localName + "." + e.className, getComputedStyle(e)])
        .map(([name, style]) => [
            name,
            [...style]
                .filter((p) => !changing.test(p))
                .map((p) => `${p}:${style.getPropertyValue(p)}`),
        ]);
};

/** The page but for its blocks, and all names that scripts could have added or changed. */
const around = () => {
    const copy = document.documentElement.cloneNode(true);
    for (const one of copy.querySelectorAll("[data-orvane],script")) one.remove();
    const shared = [Object, Array, Promise, EventTarget, Node, Element, HTMLElement, Document];
    const places = [window, document, ...shared.map(({ prototype }) => prototype)];
    const names = (one, i) => Object.getOwnPropertyNames(one).map((name) => `${i} ${name}`);
    return [copy.outerHTML, places.flatMap(names)];
};

/** The middle of an element of the first block; null where it has none. */
const middle = (css) => {
    const place = inside(css)?.getBoundingClientRect();
    const half = (begin, length) => Math.round(begin + length / 2);
    return place?.width ? [half(place.x, place.width), half(place.y, place.height)] : null;
};

/** Each scenario: its name, whether its block must be `alone` on the page, and what must hold. */
export const scenarios = [
    {
        name: "does what it says",
        async run({ open, row, tab, requests }) {
            await open({ script: "none" });
            await says(tab, row, { built: false });
            const [page, names] = await tab.evaluate(around);
            await open();
            await row.sees(tab, 0);
            const now = await tab.evaluate(around);
            const added = now[1].filter((name) => !names.includes(name));
            assert.equal(added, []);
            if (!row.outside) assert.equal(now[0], page);
            const files = row.block.match(/[\w-]+\.(gif|jpg|wav)/g) ?? [];
            const own = ["about:blank", "html", "favicon.ico", ...files];
            // The browser draws a player with pictures of its own.
            const isOwn = (url) => url.startsWith("data:") || own.some((file) => url.endsWith(file));
            assert.equal((await requests()).filter((url) => !isOwn(url)), []);
        },
    },
    {
        name: "two copies, beside the page script",
        async run({ open, row, tab }) {
            await open({ copies: 2, pageScript: true });
            await Promise.all(row.once ? [0, 1].map((n) => row.sees(tab, n)) : []);
            if (!row.once) for (const n of [0, 1]) await row.sees(tab, n, n === 1);
        },
    },
    {
        name: "from right to left in a table, its script in the head and twice at the end",
        async run({ open, row, tab }) {
            await open({ script: "head", attributes: 'dir="rtl"', table: !row.parts });
            await row.sees(tab, 0);
            assert.ok((await tab.evaluate(() => wide())) < 4, "the page grows wider");
        },
    },
    {
        name: "under a policy that allows nothing but its script, and without storage",
        async run({ open, row, tab }) {
            await open({ policy: true });
            await row.sees(tab, 0);
            if (row.parts) return;
            await open({ before: sure + refused });
            await (row.keeps ? says(tab, row) : row.sees(tab, 0));
        },
    },
    {
        name: "as little motion as possible, until the visitor lets it play and stops it",
        async run({ open, row, tab, doctype, axe }) {
            await open({ before: reduced });
            await wait(1000);
            assert.equal(await quiet(tab, row), rest);
            await says(tab, row);
            for (const [n, { kind, words, first }] of asked(row).entries()) {
                const { words: seen } = await tab.evaluate((n) => said(n, true), n);
                for (const word of words?.slice(0, first) ?? [])
                    assert.ok(seen.includes(word), `${kind}: ${seen}`);
            }
            const own = await tab.evaluate(values);
            if (axe) {
                await tab.evaluate(axe);
                const found = await tab.evaluate(async () =>
                    (await axe.run("[data-orvane]")).violations.map(
                        ({ id, nodes }) => `${id}: ${nodes[0].html} ${nodes[0].failureSummary}`,
                    ),
                );
                assert.equal(found, []);
            }
            const play = await tab.evaluate(() => inside("button")?.title ?? "");
            if (play.startsWith("Play")) {
                await tab.evaluate(() => inside("button").click());
                await wait(200);
                assert.notEqual(await quiet(tab, row), rest);
                const stop = (stops) => (stops ? inside("button").click() : wish(true));
                await tab.evaluate(stop, doctype);
                await rests(tab, row, 1500);
            }
            await open({ head: hostile, before: reduced });
            await wait(300);
            const kept = await tab.evaluate(values);
            for (const [i, [name, list]] of own.entries()) {
                const other = kept[i][1].filter((value) => !list.includes(value));
                assert.equal(other, [], `${name} of ${kept[i][0]} is ${other}`);
            }
        },
    },
    {
        name: "hidden or far down the page, and seen again",
        async run({ open, row, tab }) {
            await open();
            await wait(150);
            await tab.evaluate(() => leave(true));
            // A change that has begun ends.
            await rests(tab, row, 1500);
            await tab.evaluate(() => leave(false));
            if (!row.once) await row.sees(tab, 0, true);
            if (row.anywhere || row.parts) return;
            await open({ head: "<style>body{padding:2000px 0}</style>" });
            await wait(500);
            assert.equal(await quiet(tab, row), rest, "far down it goes on");
            await tab.evaluate(() => block(0).scrollIntoView({ block: "center" }));
            await row.sees(tab, 0);
        },
    },
    {
        name: "by keyboard, from block to block",
        async run({ open, row, tab }) {
            if (!row.parts) return;
            await open({ before: sure });
            await wait(500);
            const wanted = await tab.evaluate(() =>
                [...document.querySelectorAll("[data-orvane]")].flatMap((_, n) =>
                    [...said(n).links, inside("button", n)?.title].flatMap((one) =>
                        one ? `${n} ${one}` : [],
                    ),
                ),
            );
            const reached = [];
            while (reached.length < 150 && !wanted.every((one) => reached.includes(one))) {
                await tab.keyboard.press("Tab");
                const at = await tab.evaluate(() => {
                    const all = [...document.querySelectorAll("[data-orvane]")];
                    const { activeElement: host } = document;
                    const n = all.indexOf(host.closest("[data-orvane]"));
                    const at = host.shadowRoot?.activeElement ?? host;
                    if (at.closest("[aria-hidden=true]")) return `${n} a copy`;
                    return `${n} ${at.getAttribute("href") ?? at.title}`;
                });
                reached.push(at);
            }
            assert.equal(wanted.filter((one) => !reached.includes(one)), []);
            const order = reached.map((one) => parseInt(one)).filter((n) => n >= 0);
            assert.equal(order, [...order].sort((a, b) => a - b));
            assert.equal(reached.filter((one) => one.endsWith("a copy")), []);
        },
    },
    {
        name: "by keyboard and touch, and in print",
        alone: true,
        async run({ open, row, tab }) {
            await open({ before: `${sure} onclick = (event) => event.preventDefault();` });
            await wait(300);
            await says(tab, row);
            const { links } = await tab.evaluate(() => said());
            const reached = [];
            for (let i = 0; i < 8; i++) {
                await tab.keyboard.press("Tab");
                reached.push(
                    await tab.evaluate(() => {
                        const { activeElement: at } = document.activeElement.shadowRoot ?? document;
                        if (at.closest("[aria-hidden=true]")) return "a copy";
                        return at.getAttribute("href") ?? at.title;
                    }),
                );
            }
            const button = await tab.evaluate(() => inside("button")?.title ?? "");
            for (const one of [...links, button])
                assert.ok(reached.includes(one), `${one} in ${reached}`);
            assert.ok(!reached.includes("a copy"), "the focus comes to what is hidden from readers");
            await tab.evaluate(() => document.activeElement.blur());
            await wait(400);
            const at = button && (await tab.evaluate(middle, "button"));
            if (at) {
                const state = () =>
                    [inside("button")].map((e) => `${e?.title} ${e?.ariaExpanded} ${e?.offsetWidth}`);
                const before = await tab.evaluate(state);
                await tab.touchscreen.tap(...at);
                await wait(600);
                assert.notEqual(await tab.evaluate(state), before);
                if (/^Pause/.test(button)) {
                    await rests(tab, row);
                    await tab.touchscreen.tap(...at);
                    await row.sees(tab, 0);
                }
            }
            if (row.outside) return;
            await tab.emulateMediaType("print");
            await wait(100);
            if (!row.anywhere) await says(tab, row, { seen: true });
            assert.equal(await tab.evaluate(middle, "button[title^=P]"), null, "a button is printed");
        },
    },
];

/** With an effect that is no block on the page, and the page script or not. */
export const beside = (classic) => ({
    name: `beside ${classic.name}`,
    async run({ open, row, tab, doctype }) {
        tab.on("dialog", (box) => box.dismiss());
        await open({ classic, pageScript: doctype });
        await row.sees(tab, 0);
    },
});

/** The page's scrollbars have their colours, and boxes on it have not. */
export async function seesScrollbars(tab) {
    const colors = await tab.evaluate(() =>
        [document.documentElement, document.body].map((e) => getComputedStyle(e).scrollbarColor),
    );
    assert.equal(colors, ["rgb(51, 102, 153) rgb(221, 230, 238)", "auto"]);
}

/** The next page comes by a transition; where a browser has none, a cover opens and goes. */
export async function seesTransition(tab, isChromium) {
    const wanted = isChromium ? "old(root) new(root)" : "before";
    await Promise.all([tab.waitForNavigation(), tab.evaluate(() => void (location.search = "2"))]);
    const moving = () =>
        document.getAnimations().flatMap(({ effect: { pseudoElement: name } }) =>
            /group/.test(name) ? [] : name.replace(/::(view-transition-)?/, ""));
    assert.equal((await tab.evaluate(moving)).join(" "), wanted);
    await wait(4500);
    assert.equal(await tab.evaluate(() => document.adoptedStyleSheets.length), 0);
}

/** How many milliseconds of a second the main thread works for a block. */
export async function cost({ open, tab }) {
    await open();
    const session = await tab.createCDPSession();
    await session.send("Performance.enable", { timeDomain: "threadTicks" });
    const worked = async () =>
        (await session.send("Performance.getMetrics")).metrics.find(
            ({ name }) => name === "TaskDuration",
        ).value;
    await wait(1500);
    const before = await worked();
    // As long as a fresh transition and its pause, so that there is one of them.
    await wait(5000);
    return ((await worked()) - before) / 0.005;
}

/** The text of a page with a row's block; `code` gives the script of a kind. */
export async function pageOf(row, code, options) {
    const { doctype, copies = 1, pageScript = false, policy = false, head = "" } = options;
    const { script = "place", before = "", attributes = "", classic = {}, table } = options;
    const elements = asked(row).map(
        ({ kind }) => `<script data-orvane-run="${kind}-1">${code(kind)}</script>`,
    );
    let kinds = 0;
    const block = row.block.replace(/§/g, () => (script === "place" ? elements[kinds++] : ""));
    const headed = script === "head" ? elements.join("") : "";
    const hashes = await Promise.all(asked(row).map(({ kind }) => hashOf(code(kind))));
    const rule = `script-src ${hashes.join(" ")}; style-src 'self'; require-trusted-types-for 'script'`;
    return [
        doctype ? "<!DOCTYPE html>" : "",
        `<html lang="en" ${attributes}><head><title>Page</title><script>${before}${setUp}</script>`,
        policy ? `<meta http-equiv="Content-Security-Policy" content="${rule}">` : "",
        pageScript ? '<script src="orvane.js"></script>' : "",
        `${head}${headed}${classic.head ?? ""}</head><body onload="${classic.load ?? ""}">`,
        table ? "<p>Before it.</p><table><tr><td>" : "<p>Before it.</p>",
        `<!-- ***** Begin:Varlo ${row.kind} special effect ***** -->\r\n${block}<!-- ***** End:Varlo ${row.kind} special effect ***** -->`.repeat(
            copies,
        ),
        `${table ? "</table>" : ""}<p>Behind it.</p>${classic.body ?? ""}${headed}${headed}</body></html>`,
    ].join("");
}

/** What a policy calls a script. */
async function hashOf(code) {
    const hash = await crypto.subtle.digest("SHA-256", new TextEncoder().encode(code));
    return `'sha256-${btoa(String.fromCharCode(...new Uint8Array(hash)))}'`;
}
