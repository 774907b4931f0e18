/**
 * What the page script costs a page: milliseconds to compile and run it in a new tab on a page
 * without effects, at full and a quarter of the speed, and of script a frame for each effect, that
 * of the busiest half second. Both are processor time; the time for one picture is the clock's.
 */
import { readFileSync } from "node:fs";
import { gzipSync } from "node:zlib";
import { serve } from "../browser/page_script/server.mjs";
import { launch } from "../browser/page_script/browsers.mjs";
import { effect, page, text } from "../browser/page_script/pages.mjs";
import { stoppedClock, tabs, wait } from "../browser/page_script/tools.mjs";

const place = process.argv[2];
const pages = new Map();
const script = readFileSync(`${place}/orvane.js`);
const server = await serve(pages, script);
const browser = await launch(place, "chromium");
const tab = await browser.newPage();
let before;
const big = (html) => html.replace(/WIDTH="\d+" HEIGHT="\d+"/, 'WIDTH="300" HEIGHT="300"');

const session = await tab.createCDPSession();
await session.send("Performance.enable", { timeDomain: "threadTicks" });

/** Milliseconds of script of a tab so far, in time of its processor. */
async function spent(tab = session) {
    const { metrics } = await tab.send("Performance.getMetrics");
    return 1000 * metrics.find(({ name }) => name === "ScriptDuration").value;
}

async function show(options) {
    if (before) await tab.removeScriptToEvaluateOnNewDocument(before.identifier);
    before = await tab.evaluateOnNewDocument(options.before ?? "");
    pages.set("cost.html", { html: page(options), slow: 0 });
    await tab.goto(server.at + "cost.html", { waitUntil: "load" });
    await wait(300);
}

/** The script time a frame of the busiest of several half seconds, while `act` goes on. */
async function aFrame(act = () => wait(50)) {
    const times = [];
    for (let round = 0; round < 5; round++) {
        const [from, began] = [await spent(), performance.now()];
        for (let i = 0; performance.now() - began < 500; i++) await act(i);
        times.push(((await spent()) - from) / ((performance.now() - began) * 0.06));
    }
    return Math.max(...times).toFixed(2);
}

/** Milliseconds of script of a new tab, with nothing cached, for a page without effects. */
async function start(rate) {
    const context = await browser.createBrowserContext();
    const fresh = await context.newPage();
    await fresh.emulateCPUThrottling(rate);
    const session = await fresh.createCDPSession();
    await session.send("Performance.enable", { timeDomain: "threadTicks" });
    pages.set("start.html", { html: page({}), slow: 0 });
    await fresh.goto(server.at + "start.html", { waitUntil: "load" });
    const time = await spent(session);
    await context.close();
    return time;
}

console.log(await browser.version(), `${gzipSync(script, { level: 9 }).length} bytes gzipped`);
for (const rate of [1, 4]) {
    const times = [];
    for (let i = 0; i < 31; i++) times.push(await start(rate));
    const sorted = times.sort((one, other) => one - other).map((time) => time.toFixed(1));
    console.log(
        `start at 1/${rate} speed: median ${sorted[15]} ms, 90th percentile ${sorted[27]} ms`,
    );
}
console.log(
    "| Effect | ms a frame at 60 a second | hidden | ms a picture (lower quartile) |\n|---|---|---|---|",
);

const trail = { name: "Mouse Cursor Trail", head: text("cursor_trail.html") };
const mouse = ["Mouse Cursor Trail", "Image Brighten", "Tooltips", "Dynamic Button"];
const scroll = 'onLoad="scrollit_r2l(99)"';
for (const [name, shown, attributes = ""] of [
    ["Status Bar Text Ticker", effect("Status Bar Scroller", "status_bar_ticker"), scroll],
    ["Vertical Scrolling Text", effect("Vertical Scroller", "vertical_scroller_bare")],
    ["Digital Clock", effect("DigitalClock", "digital_clock_both_day_of_week")],
    ["Mouse Cursor Trail", trail],
    ["Image Brighten", effect("x", "image_effects_brighten_gradual")],
    ["Tooltips", effect("x", "tooltip_text")],
    ["Dynamic Button", effect("x", "dynamic_button_full")],
    ["Slideshow", effect("x", "slideshow_bare")],
    ["More Image Effects", effect("x", "more_image_effects_expand_shrink_full")],
    ["Typewriter Text", effect("x", "typewriter_full")],
    ["Image Cube", effect("x", "image_effects_cube")],
    ["Lake Reflection", effect("x", "image_effects_lake")],
    ["Image Ripple", effect("x", "image_effects_ripple")],
    ["Image Fade", effect("x", "image_fade_two_images")],
]) {
    const options = { effects: [shown], attributes, change: big };
    await show({ ...options, before: tabs });
    // The mouse goes to and fro at the top, where these effects stand.
    const moving = await aFrame(
        mouse.includes(name) ? (i) => tab.mouse.move(10 + ((7 * i) % 300), 20) : undefined,
    );
    await tab.evaluate("leave(true)");
    const hidden = await aFrame();
    await show({
        ...options,
        before: "window.clockOfTests = performance.now.bind(performance);" + stoppedClock,
    });
    // The first pictures of each, since the waves of the ripple are drawn once and kept.
    const pictures = await tab.evaluate(() =>
        Array.from({ length: 25 }, (_, i) => {
            const began = clockOfTests();
            turn(2000 + 50 * i);
            return clockOfTests() - began;
        }),
    );
    const picture = pictures.sort((one, other) => one - other)[6].toFixed(1);
    console.log(
        `| ${name} | ${moving} | ${hidden} | ${shown.body?.includes("APPLET") ? picture : ""} |`,
    );
}
await browser.close();
server.close();
