/** What holds for pages as such: the author's own scripts, hidden pages, policies, frames. */
import assert from "./assert.mjs";
import { effect, page } from "./pages.mjs";
import { check, tabs, wait } from "./tools.mjs";

const brighten = effect("Image Effects", "image_effects_brighten_gradual");
const ticker = effect("Status Bar Scroller", "status_bar_ticker");

export const ruleChecks = [
    check(null, "the author's own scripts see the browser as it is", async (v) => {
        const see =
            "[typeof document.all, navigator.appName, 'pixelTop' in document.head.style," +
            "String(document.onmousemove), window.onload === null, String(window.setTimeout)]";
        const author = (id) => `<script>window.${id} = ${see}; var mine = 1;</script>`;
        const seen = [];
        for (const script of ["", "<SCRIPT SRC='orvane.js'></SCRIPT>"]) {
            await v.show([ticker], {
                script,
                authorHead: author("one"),
                authorBody: author("two"),
                slow: 97,
            });
            seen.push(await v.value(() => [window.one, window.two, window.mine]));
        }
        assert.equal(seen[0], seen[1]);
        await wait(300);
        assert.match(await v.words(".shown"), /Welcome/);
    }),
    check(null, "a hidden page does nothing until it is seen again", async (v) => {
        const scroller = effect("Vertical Scrolling Text", "vertical_scroller_bare");
        const cube = effect("Image Effects", "image_effects_cube");
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
        await v.show([ticker], { script, attributes: 'onLoad="scrollit_r2l(99)"' });
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
