/**
 * The blocks that are looked at, one row a kind: `block` is written by hand as the contract has it,
 * with § for its script; `words` and `links` are what it says, with the script (else `heard`),
 * without, and in print (else `printed`); the `first` words alone are seen when nothing moves.
 * `sees` throws unless the visitor sees what the effect's description promises, a second time as
 * well unless it happens `once`. `anywhere`: it goes on where its root is not seen; `focuses`: it
 * takes the keyboard's focus; `outside`: it changes the page itself; `keeps`: it needs the
 * browser's storage.
 */
import assert from "../page_script/assert.mjs";
import { wait } from "../page_script/tools.mjs";

/** How many milliseconds a busy machine may need. */
const patience = 30000;

/** Waits until what `take` gives of the n-th block is `wanted`; says what it was instead. */
async function until(tab, wanted, take, ...values) {
    for (const begin = Date.now(); ; await wait(30)) {
        const seen = await tab.evaluate(take, ...values);
        if (String(seen) === String(wanted)) return;
        if (Date.now() - begin > patience) throw new Error(`${seen} for ${wanted} of ${take}`);
    }
}

/** Whether an element in the n-th block is transformed otherwise a little later. */
const transforms = async (css, n) => {
    const now = () => inside(css, n) && getComputedStyle(inside(css, n)).transform;
    const before = now();
    await new Promise((done) => setTimeout(done, 60));
    return now() !== before;
};
const moves = async (tab, css, n) => {
    for (let i = 0; i < 2; i++) await until(tab, true, transforms, css, n);
};

/** The opacities of the items of a stage, to one digit. */
const stage = (n) =>
    [...inside(".stage", n).children].map((e) => Math.round(getComputedStyle(e).opacity * 10) / 10);
/** Whether the first item of a stage is clipped, as transitions do it. */
const clipped = (n) => inside(".stage", n).firstElementChild.style.clipPath.includes("evenodd");

/** The band of the n-th block moves to the left, without a gap at its end. */
async function band(tab, n) {
    const step = async (n) => {
        const at = () => inside(".group", n).getBoundingClientRect().x;
        const before = at();
        await new Promise((done) => setTimeout(done, 100));
        return at() < before && at() > before - 100;
    };
    for (let i = 0; i < 3; i++) await until(tab, true, step, n);
    const gap = (n) => {
        const [view, last] = [".view", ".group:last-child"].map((css) => inside(css, n));
        return view.getBoundingClientRect().right - last.getBoundingClientRect().right;
    };
    assert.ok((await tab.evaluate(gap, n)) < 0, "it ends");
}

const two = `<ul><li><a href="cat.html"><img src="a.gif" alt="A cat jumps" width="100" height="80"></a></li>
    <li><img src="b.gif" alt="It sits" width="100" height="80"></li></ul>`;

export const kinds = [
    {
        kind: "scroller",
        block: `<div data-orvane="scroller-1" data-speed="60" data-font="Georgia, serif"
            data-font-size="18" data-text-color="#ffffff" data-back-color="#002244"
            data-faded-edges="yes" data-width="190"><ul><li>Seeds are in</li>
            <li><a href="plums.html">Plums from Monday</a></li></ul>§</div>`,
        words: ["Seeds are in", "Plums from Monday"],
        links: ["plums.html"],
        sees: band,
    },
    {
        kind: "message",
        first: 1,
        block: `<div data-orvane="message-1" data-seconds="1" data-fade-seconds="0.3"><ul>
            <li>Open on Sundays</li><li><a href="rooms.html">Two rooms are free</a></li></ul>§</div>`,
        words: ["Open on Sundays", "Two rooms are free"],
        links: ["rooms.html"],
        async sees(tab, n) {
            await until(tab, "1,0", stage, n);
            await until(tab, "0,1", stage, n);
        },
    },
    {
        kind: "animation",
        block: `<div data-orvane="animation-1" data-milliseconds="600" data-change="10"><ul>
            <li><a href="cat.html"><img src="a.gif" alt="A cat jumps" width="100" height="80"></a></li>
            <li hidden><img src="b.gif" alt="" width="100" height="80" loading="lazy"></li></ul>§</div>`,
        words: ["A cat jumps"],
        printed: [],
        links: ["cat.html"],
        async sees(tab, n) {
            await until(tab, true, clipped, n);
            await until(tab, "0,1", stage, n);
        },
    },
    {
        kind: "flying",
        block: `<p>New: <span data-orvane="flying-1" data-from="all" data-path="spiral"
            data-letter-pause="40" data-flight-seconds="2" data-again-after="2" data-font-size="28"
            data-font-style="bold" data-text-color="#880044">Plums <a href="plums.html">from
            Monday</a>§</span></p>`,
        words: ["Plums from Monday"],
        links: ["plums.html"],
        async sees(tab, n) {
            await moves(tab, ".word span", n);
            await until(tab, true, (n) => wide() < 9 && !inside(".letters", n), n);
            assert.ok((await tab.evaluate(() => wide())) < 4, "a scroll bar appears");
        },
    },
    {
        kind: "falling",
        anywhere: true,
        block: `<div data-orvane="falling-1" data-number="12" data-speed="100" data-turning="yes"><ul hidden>
            <li><img src="a.gif" alt="" width="100" height="80" loading="lazy"></li>
            <li><img src="b.gif" alt="" width="100" height="80" loading="lazy"></li></ul>§</div>`,
        async sees(tab, n) {
            const fall = async (n) => {
                const tops = () =>
                    [...inside(".flight", n).children].map((e) => e.getBoundingClientRect().y);
                const before = tops();
                await new Promise((done) => setTimeout(done, 100));
                // Some begin again above.
                return tops().filter((y, i) => y > before[i]).length > 6 && before.length;
            };
            await until(tab, 12, fall, n);
        },
    },
    {
        kind: "navigator",
        block: `<div data-orvane="navigator-1" data-speed="60" data-back-color="#f4f0e0"
            data-font-style="bold"><ul><li data-color="#a00000"><a href="a.html">Home</a></li>
            <li data-color="#005000"><a href="b.html">Our rooms</a></li></ul>§</div>`,
        words: ["Home", "Our rooms"],
        links: ["a.html", "b.html"],
        async sees(tab, n) {
            await band(tab, n);
            const colors = (n) =>
                [1, 2].map((i) => getComputedStyle(inside(`.group li:nth-child(${i}) a`, n)).color);
            await until(tab, "rgb(160, 0, 0),rgb(0, 80, 0)", colors, n);
        },
    },
    {
        kind: "texts",
        first: 1,
        block: `<div data-orvane="texts-1" data-seconds="1" data-transition="10" data-font-size="24">
            <ul><li>Open on Sundays</li><li><a href="rooms.html">Two rooms are free</a></li></ul>§</div>`,
        words: ["Open on Sundays", "Two rooms are free"],
        links: ["rooms.html"],
        async sees(tab, n) {
            await until(tab, true, clipped, n);
            await until(tab, "0,1", stage, n);
        },
    },
    {
        kind: "images",
        first: 1,
        block: `<div data-orvane="images-1" data-seconds="1" data-transition="2">${two}§</div>`,
        words: ["A cat jumps", "It sits"],
        links: ["cat.html"],
        async sees(tab, n) {
            await until(tab, true, clipped, n);
            await until(tab, "0,1", stage, n);
        },
    },
    {
        kind: "grow",
        block: `<p>New: <span data-orvane="grow-1" data-from="20" data-to="200" data-times="0"
            data-text-color="#880044">Plums§</span></p>`,
        words: ["Plums"],
        async sees(tab, n) {
            await moves(tab, ".text", n);
        },
    },
    {
        kind: "flash",
        block: `<p>New: <span data-orvane="flash-1" data-times-per-second="3" data-seconds="0">Plums§</span></p>`,
        words: ["Plums"],
        async sees(tab, n) {
            const color = (n) => getComputedStyle(inside(".text", n)).backgroundColor;
            await until(tab, "rgb(192, 0, 0)", color, n);
            await until(tab, "rgba(0, 0, 0, 0)", color, n);
        },
    },
    {
        kind: "shake",
        block: `<p>New: <span data-orvane="shake-1" data-burst-seconds="2" data-pixels="8"
            data-pause-seconds="0" data-times="0">Plums§</span></p>`,
        words: ["Plums"],
        async sees(tab, n) {
            await moves(tab, ".text", n);
        },
    },
    {
        kind: "textbutton",
        focuses: true,
        block: `<p>See <span data-orvane="textbutton-1" data-hover-text="Now!"><a href="plums.html">Our
            plums</a>§</span></p>`,
        words: ["Our plums"],
        links: ["plums.html"],
        async sees(tab, n) {
            await tab.evaluate((n) => inside("a", n).focus(), n);
            await until(
                tab,
                "0,1",
                (n) => ["two", "over"].map((c) => getComputedStyle(inside("." + c, n)).opacity),
                n,
            );
        },
    },
    {
        kind: "swirl",
        block: `<p><span data-orvane="swirl-1" data-font-size="40" data-font-style="bold"
            data-seconds="4">Plums from Monday§</span></p>`,
        words: ["Plums from Monday"],
        async sees(tab, n) {
            const position = (n) => getComputedStyle(inside(".text", n)).backgroundPositionX;
            const before = await tab.evaluate(position, n);
            const rests = (n, before) =>
                getComputedStyle(inside(".text", n)).backgroundPositionX === before;
            await until(tab, false, rests, n, before);
        },
    },
    {
        kind: "quote",
        block: `<div data-orvane="quote-1" data-rule="seconds" data-seconds="2"><ul>
            <li><blockquote>Well begun is half done.</blockquote><cite>A saying</cite></li>
            <li hidden><blockquote>Look before you leap.</blockquote></li></ul>§</div>`,
        words: ["Well begun is half done."],
        printed: [],
        async sees(tab, n) {
            const text = (n) => inside(".shown blockquote", n).textContent;
            const other = { W: "Look before you leap.", L: "Well begun is half done." };
            await until(tab, other[(await tab.evaluate(text, n))[0]], text, n);
        },
    },
    {
        kind: "bubble",
        first: 1,
        focuses: true,
        block: `<div data-orvane="bubble-1" data-place-x="60" data-place-y="70"><figure><img
            src="photo.gif" alt="Our dog" width="200" height="150"><figcaption><p>Is it lunch
            yet?</p></figcaption></figure>§</div>`,
        words: ["Our dog", "Is it lunch yet?"],
        heard: { words: ["Our dog"], links: [] },
        async sees(tab, n) {
            const shown = (n) => getComputedStyle(inside(".bubble", n)).visibility;
            await until(tab, "hidden", shown, n);
            await tab.evaluate((n) => inside("button", n).click(), n);
            await until(tab, "visible", shown, n);
            await tab.keyboard.press("Escape");
            await until(tab, "hidden", shown, n);
        },
    },
    {
        kind: "credits",
        block: `<div data-orvane="credits-1" data-speed="40" data-wait-seconds="0" data-at-end="again" data-height="120"
            data-tilted="yes"><p>Written by Ann</p><p><a href="bob.html">Music by Bob</a></p>§</div>`,
        words: ["Written by Ann", "Music by Bob"],
        links: ["bob.html"],
        async sees(tab, n) {
            await moves(tab, ".text", n);
        },
    },
    {
        kind: "greeting",
        block: `<div data-orvane="greeting-1" data-visits="yes">Hello!§</div>`,
        words: ["Hello!"],
        async sees(tab, n) {
            await tab.evaluate((n) => {
                inside("input", n).value = "<b>Jim</b>";
                inside("form", n).requestSubmit();
            }, n);
            await until(tab, "Hello, <b>Jim</b>!", (n) => inside("p", n).textContent, n);
            await tab.evaluate((n) => inside(".link", n).click(), n);
            await until(tab, true, (n) => Boolean(inside("form", n)), n);
        },
    },
    {
        kind: "banner",
        first: 1,
        block: `<div data-orvane="banner-1" data-seconds="2" data-duration="0.4">${two}§</div>`,
        words: ["A cat jumps", "It sits"],
        links: ["cat.html"],
        async sees(tab, n) {
            const press = (title) => tab.evaluate((n, title) => inside(title, n).click(), n, title);
            await press("[title^=Pause]");
            await wait(600);
            const before = String(await tab.evaluate(stage, n));
            await press("[title=Next]");
            await until(tab, before === "1,0" ? "0,1" : "1,0", stage, n);
            await press("[title^=Play]");
            await until(tab, before, stage, n);
        },
    },
    {
        kind: "button",
        focuses: true,
        block: `<p><span data-orvane="button-1"><a href="plums.html"><img src="a.gif"
            alt="Our plums" width="100" height="80"></a><img src="b.gif" alt=""
            width="100" height="80" hidden data-state="over" loading="lazy">§</span></p>`,
        words: ["Our plums"],
        links: ["plums.html"],
        async sees(tab, n) {
            const shown = (n) =>
                inside(".shown", n).offsetWidth && inside(".shown", n).getAttribute("src");
            await until(tab, "a.gif", shown, n);
            await wait(100);
            await tab.evaluate((n) => inside("a", n).focus(), n);
            await until(tab, "b.gif", shown, n);
        },
    },
    {
        kind: "rollover",
        first: 2,
        focuses: true,
        block: `<div data-orvane="rollover-1"><ul><li><a href="cat.html">The cat</a> <img src="a.gif"
            alt="It jumps" width="100" height="80"></li><li>The dog <img src="b.gif" alt="It sits"
            width="100" height="80"></li></ul>§</div>`,
        words: ["The cat", "It jumps", "The dog", "It sits"],
        heard: { words: ["The cat", "It jumps", "The dog"], links: ["cat.html"] },
        printed: ["The cat"],
        links: ["cat.html"],
        async sees(tab, n) {
            const shown = (n) => inside(".shown", n).getAttribute("src");
            await until(tab, "a.gif", shown, n);
            await tab.evaluate((n) => inside("li:last-child button", n).focus(), n);
            await until(tab, "b.gif", shown, n);
        },
    },
    {
        kind: "image",
        keeps: true,
        block: `<div data-orvane="image-1" data-width="200"><ul><li><a href="cat.html"><img
            src="a.gif" alt="A cat jumps" width="100" height="80"></a></li><li hidden><a
            href="dog.html"><img src="b.gif" alt="It sits" width="100" height="80"
            loading="lazy"></a></li></ul>§</div>`,
        words: ["A cat jumps"],
        links: ["cat.html"],
        async sees(tab, n) {
            // Each once before one comes again, from visit to visit.
            const shown = (n) => inside("img", n).getAttribute("src");
            const before = await tab.evaluate(shown, n);
            const code = await tab.evaluate((n) => {
                const root = document.querySelectorAll("[data-orvane]")[n];
                root.replaceWith(root.cloneNode(true));
                return document.querySelector("[data-orvane-run=image-1]").text;
            }, n);
            await tab.evaluate(`(() => {${code}})()`);
            assert.notEqual(await tab.evaluate(shown, n), before);
        },
    },
    {
        kind: "film",
        first: 1,
        block: `<div data-orvane="film-1" data-speed="120" data-height="80" data-film-look="yes">${two}§</div>`,
        words: ["A cat jumps", "It sits"],
        links: ["cat.html"],
        sees: band,
    },
    {
        kind: "background",
        anywhere: true,
        outside: true,
        block: `<span data-orvane="background-1" data-last-color="#80f0a0" data-seconds="10">§</span>`,
        once: true,
        async sees(tab) {
            const color = () => getComputedStyle(document.body).backgroundColor;
            const red = Number((await tab.evaluate(color)).match(/\d+/));
            assert.ok(red > 128, `it begins at ${red}`);
            await tab.evaluate(() => document.body.getAnimations().forEach((e) => e.finish()));
            await until(tab, "rgb(128, 240, 160)", color);
        },
    },
    {
        kind: "quake",
        anywhere: true,
        outside: true,
        block: `<span data-orvane="quake-1" data-pixels="2" data-seconds="3"
            data-again-after="5">§</span>`,
        async sees(tab) {
            const shakes = async () => {
                const before = document.body.getBoundingClientRect().x;
                await new Promise((done) => setTimeout(done, 100));
                return document.body.getBoundingClientRect().x !== before;
            };
            await until(tab, true, shakes);
        },
    },
    {
        kind: "sound",
        block: `<div data-orvane="sound-1" data-controls="no"><audio src="bell.wav" controls
            preload="none"></audio>§</div>`,
        async sees(tab, n) {
            await until(
                tab,
                "Play the sound",
                (n) => inside("button:not([hidden])", n)?.textContent,
                n,
            );
            await tab.evaluate((n) => inside("input", n).focus(), n);
            await tab.keyboard.press("Home");
            await until(tab, 0, (n) => inside("audio", n).volume, n);
        },
    },
    {
        kind: "calendar",
        block: `<div data-orvane="calendar-1" data-language="de" data-time-zone="UTC"><time
            hidden></time>§</div>`,
        ticks: true,
        async sees(tab, n) {
            const today = new Date().toLocaleString("de", { timeZone: "UTC", month: "long" });
            await until(tab, today, (n) => inside(".month", n).textContent, n);
        },
    },
    {
        kind: "window",
        anywhere: true,
        block: `<div data-orvane="window-1" data-title="News" data-wait-seconds="0"><p><a
            href="plums.html">Plums are in</a></p>§</div>`,
        words: ["Plums are in"],
        links: ["plums.html"],
        async sees(tab, n) {
            const bottom = (n) =>
                Math.round(innerHeight - inside("aside", n).getBoundingClientRect().bottom);
            await until(tab, 12, bottom, n);
            await tab.evaluate((n) => inside("[title=Close]", n).click(), n);
            await until(tab, true, (n) => inside("aside", n).hidden, n);
        },
    },
];

const cell = "all: initial; display: block; float: left; width: 200px; height: 150px"
    .split(";")
    .join("!important;");
/** All kinds on one page; what happens once comes first, what takes the focus one after the other. */
export const together = {
    kind: "together",
    parts: kinds,
    block: kinds.map(({ block }) => `<section style="${cell}">${block}</section>`).join(""),
    outside: true,
    async sees(tab, n, again = false) {
        const left = kinds.filter(({ once }) => !(once && again)).sort((a, b) => !a.once - !b.once);
        const see = (row) => row.sees(tab, n * kinds.length + kinds.indexOf(row));
        const seen = await Promise.allSettled(left.filter(({ focuses }) => !focuses).map(see));
        for (const { reason } of seen) if (reason) throw reason;
        for (const row of left.filter(({ focuses }) => focuses)) await see(row);
    },
};

/** The style of Color Scrollbars for the page alone. */
export const scrollbars = `<style data-orvane="scrollbars-1">
html{scrollbar-color:#336699 #dde6ee;scrollbar-width:auto}
body{scrollbar-color:auto}
@supports not (scrollbar-color:auto){
html::-webkit-scrollbar{width:16px;height:16px}
html::-webkit-scrollbar-thumb{background:#336699}
html::-webkit-scrollbar-track,html::-webkit-scrollbar-corner{background:#dde6ee}
}
</style>`;

/** Page Transitions, with § for its script. */
export const transitions = `<style data-orvane="transitions-1" data-arrival="12" data-leaving="13" data-seconds="2">
@media (prefers-reduced-motion:no-preference){@view-transition{navigation:auto}}
::view-transition-old(root),::view-transition-new(root){animation:none;mix-blend-mode:normal}
</style>
§`;
