/** What holds for pages as such: the author's own scripts, hidden pages, policies, frames. */
import assert from "./assert.mjs";
import { effect, page, text } from "./pages.mjs";
import { check, tabs, wait } from "./tools.mjs";

const brighten = effect("Image Effects", "image_effects_brighten_gradual");
const ticker = effect("Status Bar Scroller", "status_bar_ticker");

const scroller = effect("Vertical Scrolling Text", "vertical_scroller_bare");
const cube = effect("Image Effects", "image_effects_cube");
const bare = effect("Slideshow", "slideshow_bare");
const trail = { name: "Mouse Cursor Trail", head: text("cursor_trail.html") };
const starts = 'onLoad="scrollit_r2l(99)"';

export const ruleChecks = [
    check(null, "the author's own scripts see the browser as it is", async (v) => {
        const see =
            "[typeof document.all, navigator.appName, 'pixelTop' in document.head.style," +
            "String(document.onmousemove), window.onload === null, String(window.setTimeout)," +
            "'filters' in document.head, Object.getOwnPropertyNames(window).length]";
        const author = (id) =>
            `<script>window.${id} = ${see}; var mine = 1, calls = 0;
            function moveSpan() { calls++; } function loadImages() { calls++; }</script>`;
        const lost = (html) => html.replace(/<!-- [*]+ End.*?-->/g, "");
        for (const change of [(html) => html, lost]) {
            const seen = [];
            for (const script of ["", "<SCRIPT SRC='orvane.js'></SCRIPT>"]) {
                await v.show([ticker], {
                    script,
                    change,
                    authorHead: author("one"),
                    authorBody: author("two"),
                    slow: 97,
                });
                await wait(300);
                seen.push(await v.value(() => [window.one, window.two, window.mine, window.calls]));
            }
            assert.equal(seen[0], seen[1]);
            assert.match(await v.words(".shown"), /Welcome/);
        }
    }),
    check(null, "the author's names stop no effect", async (v) => {
        const own =
            "let orvane = 1; const needed = /^(Array|Boolean|Date|Error|Function|JSON|Map|Math|Number|" +
            "Object|RegExp|Set|String|Symbol|Weak.*|.*Error|.*Array.*|DataView|Promise|Reflect|Proxy)$/;" +
            "for (const name of [...Object.getOwnPropertyNames(window), 'addEventListener'])" +
            "  if (/^[A-Z][a-z]|^(add|set|clear|match|open|close|perf|nav|get|req|con)/.test(name)" +
            "      && !needed.test(name)) try { window[name] = 1; } catch {}";
        await v.show([ticker, scroller, cube], {
            attributes: starts,
            authorHead: `<script>${own}</script>`,
        });
        await wait(500);
        assert.match(await v.words(".shown"), /Welcome/);
        assert.equal(await v.button(), "Pause the scrolling text");
        assert.ok(await v.own("canvas", () => true));
    }),
    check(null, "what is put in late runs, what the author wants left alone stays", async (v) => {
        const image = "<img src=a.gif onmouseover='1' alt=a";
        const body =
            `<div data-orvane-off>${cube.body}${image} id=one></div><div data-orvane=x>${image} id=two>` +
            "</div><script data-orvane-run=x>/* Created by Orvane software */ " +
            "function showBox() {} var own = document.currentScript.text;</script>";
        await v.show([{ ...cube, body }]);
        await wait(200);
        assert.equal(await v.own("canvas", () => true), null);
        const left = await v.value(() => [one.tabIndex, two.tabIndex, own.includes("with")]);
        assert.equal(left, [-1, -1, false]);
        await v.value((html) => void (document.body.innerHTML = html), cube.body);
        await wait(300);
        assert.ok(await v.own("canvas", () => true));
    }),
    check(null, "a tag in the wrong place does what it can and says what not", async (v) => {
        const before = "window.said = []; console.warn = (words) => said.push(words);";
        const src = "src=orvane.js></script>";
        for (const tags of [
            { script: `<script defer ${src}` },
            { script: `<script async ${src}` },
            { script: "", authorBody: `<script ${src}` },
        ]) {
            await v.show([trail, ticker, cube], { ...tags, before, attributes: starts });
            await wait(500);
            assert.match(await v.words(".shown"), /Welcome/);
            assert.ok(await v.own("canvas", () => true));
            const lines = await v.value(() => said);
            if (tags.script.includes("async") && !lines.length) continue; // it may come in time
            assert.match(lines.join("|"), /^[^|]*Mouse Cursor Trail[^|]*$/);
        }
    }),
    check(null, "pause buttons stand on their pictures, or beside small ones", async (v) => {
        const page = "<table><td style='padding:30px'>";
        for (const [around, attributes = ""] of [
            ["<div style='zoom:2'>"],
            ["<div style='transform:rotate(90deg) scale(0.5);width:200px'>"],
            [`<div id=box style='overflow:scroll;height:200px'><p style='height:150px'>${page}`],
            [`<style>img { display: block }</style>${page}`],
            [page, "width=40 height=40 "],
        ]) {
            const change = (html) =>
                html.replace(/<BODY[^>]*>/, `$&${around}`).replace("<img ", `<img ${attributes}`);
            await v.show([bare], { change, attributes: 'onload="loadImages()"' });
            await wait(200);
            await v.value(() => window.box?.scrollTo(0, 60));
            const button = await v.own("button", (button) => {
                const { x, y, right, width } = button.getBoundingClientRect();
                return { x, y, right, width, own: button.offsetWidth };
            });
            const image = await v.value(() => {
                const { x, y, right, bottom } = oImg.getBoundingClientRect();
                return { x, y, right, bottom };
            });
            assert.equal(button.own, 24);
            const [seen, wanted] = attributes
                ? [button.x, image.right]
                : [button.right, image.right];
            const turned = around.includes("rotate");
            const off = turned
                ? [button.right - image.right, button.y - image.bottom + button.width]
                : [seen - wanted, button.y - image.y];
            assert.ok(Math.max(...off.map(Math.abs)) < 1.5, `${around} ${attributes}: ${off}`);
        }
    }),
    check(null, "a long page is not looked through element by element", async (v) => {
        const before = `window.records = 0; const Real = MutationObserver;
            window.MutationObserver = class extends Real {
                constructor(run) { super((all, self) => { records += all.length; run(all, self); }); }
            };`;
        const authorBody = `<div>${"<b>x</b>".repeat(100)}</div>`.repeat(200);
        await v.show([ticker], { before, authorBody });
        assert.ok((await v.value(() => records)) < 2000, "records");
    }),
    check(null, "a policy that knows the scripts lets them run as without it", async (v) => {
        const head = text("all_in_one_button_close_head.html");
        const code = />([^]*)<\/script>/i.exec(head)[1].replace(/\r\n/g, "\n");
        const sum = await crypto.subtle.digest("SHA-256", new TextEncoder().encode(code));
        const hash = btoa(String.fromCharCode(...new Uint8Array(sum)));
        for (const policy of [
            `script-src * 'sha256-${hash}'`,
            "require-trusted-types-for 'script'",
        ]) {
            const meta = `<meta http-equiv=Content-Security-Policy content="${policy}">`;
            const script = meta + "<script src=orvane.js></script>";
            await v.show([{ name: "All-in-One Button", head }], { script });
            assert.equal(await v.value(() => typeof closeWindow), "function", policy);
        }
    }),
    check(null, "a hidden page does nothing until it is seen again", async (v) => {
        await v.show([ticker, scroller, cube], { before: tabs });
        const state = async () => [
            await v.words(".shown"),
            await v.value(() => spnOne.style.top),
            await v.value(() => window.drawn),
        ];
        await wait(400);
        await v.value(() => leave(true));
        const [left, later] = [await state(), await wait(500).then(state)];
        assert.equal(later, left);
        await v.value(() => leave(false));
        await wait(500);
        (await state()).forEach((now, i) => assert.notEqual(now, left[i]));
    }),
    check(null, "a strict policy lets effects run as far as it lets them", async (v) => {
        const policy = "script-src 'self' 'unsafe-inline'; style-src 'self'";
        const meta = `<meta http-equiv=Content-Security-Policy content="${policy}">`;
        const script = meta + "<script src=orvane.js></script>";
        await v.show([ticker], { script, attributes: starts });
        await wait(500);
        const strip = await v.own(".strip", (strip) => getComputedStyle(strip).position);
        assert.equal(strip, "fixed");
        assert.match(await v.words(".shown"), /^ {50,96}Welcome/);
    }),
    check(null, "pages in frames run their effects", async (v) => {
        const see = `setTimeout(() => parent.postMessage([document.images[0].style.opacity,
            [...document.querySelectorAll("*")].map((e) => e.shadowRoot?.textContent).join("")],
            "*"), 300)`;
        const framed = page({
            effects: [brighten, ticker],
            doctype: v.doctype,
            authorBody: `<script>onload = () => ${see}</script>`,
        });
        const frames =
            "<HTML><HEAD></HEAD><FRAMESET COLS='50%,50%'><FRAME><FRAME SRC='framed.html'></FRAMESET>";
        await v.show([], {
            change: () => frames,
            before: "addEventListener('message', ({ data }) => (window.told = data))",
            files: { "framed.html": framed },
        });
        await wait(600);
        const [opacity, words] = await v.value(() => window.told);
        assert.equal(opacity, "0.3");
        assert.match(words, /Welcome/);
    }),
];
