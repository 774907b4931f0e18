/**
 * What the page script costs a page: milliseconds to start, and of script a frame for each effect.
 */
import { readFileSync } from "node:fs";
import { serve } from "../browser/page_script/server.mjs";
import { launch } from "../browser/page_script/browsers.mjs";
import { effect, page, text } from "../browser/page_script/pages.mjs";
import { wait } from "../browser/page_script/tools.mjs";

const place = process.argv[2];
const pages = new Map();
const server = await serve(pages, readFileSync(`${place}/orvane.js`));
const browser = await launch(place, "chromium");
const tab = await browser.newPage();
const big = (html) => html.replace(/WIDTH="\d+" HEIGHT="\d+"/, 'WIDTH="300" HEIGHT="300"');

/** Script milliseconds of a tab so far, as the browser counts them. */
const script = async () => 1000 * (await tab.metrics()).ScriptDuration;

async function show(options) {
    pages.set("cost.html", { html: page(options), slow: 0 });
    await tab.goto(server.at + "cost.html", { waitUntil: "load" });
}

const starts = [];
for (let i = 0; i < 11; i++) {
    await show({});
    starts.push(await script());
}
console.log(`${await browser.version()}\nstart: ${starts.sort((a, b) => a - b)[5].toFixed(2)} ms`);

const animated = (name, file, attributes = "") => [
    name,
    { effects: [effect(name, file)], attributes },
];
for (const [name, options] of [
    animated("Status Bar Scroller", "status_bar_ticker", 'onLoad="scrollit_r2l(99)"'),
    animated("Vertical Scrolling Text", "vertical_scroller_bare", 'onLoad="moveSpan()"'),
    animated("DigitalClock", "digital_clock_both_day_of_week"),
    [
        "Mouse Cursor Trail",
        { effects: [{ name: "Mouse Cursor Trail", head: text("cursor_trail.html") }] },
    ],
    ...[
        "more_image_effects_expand_shrink_full",
        "typewriter_full",
        "image_effects_cube",
        "image_effects_lake",
        "image_effects_ripple",
        "image_fade_two_images",
    ].map((file) => {
        const [, found] = animated("Animation", file);
        return [file, { ...found, change: big }];
    }),
]) {
    await show(options);
    await wait(500);
    const [before, began] = [await script(), Date.now()];
    for (let at = 0; Date.now() - began < 2000; at++) {
        if (name === "Mouse Cursor Trail") await tab.mouse.move(100 + (at % 300), 100);
        else await wait(50);
    }
    const frames = ((Date.now() - began) / 1000) * 60;
    console.log(`${name}: ${(((await script()) - before) / frames).toFixed(2)} ms a frame`);
}
await browser.close();
server.close();
