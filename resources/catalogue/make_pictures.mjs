/**
 * Takes the frames of the catalogue's moving pictures: loads the page of each effect from one folder, does what
 * a visitor does there, and writes NAME/light/00.png and so on into another. Started by ./make_pictures.
 */
import { existsSync, mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { createServer } from "node:http";
import { launch } from "../../tests/browser/page_script/browsers.mjs";

const [place, pages, pictures, ...names] = process.argv.slice(2);
const wait = (ms) => new Promise((done) => setTimeout(done, ms));

/** The mouse comes, stays for four frames and goes. */
const point = (x = 144, y = 90) => ({ frames: 8, every: 300, still: 4, async act(tab, frame) {
    if (frame === 2) await tab.mouse.move(x, y);
    if (frame === 6) await tab.mouse.move(1, 1);
}});
/** The mouse comes, presses and goes. */
const press = (x, y) => ({ frames: 8, every: 300, still: 2, async act(tab, frame) {
    if (frame === 1) await tab.mouse.move(x, y);
    if (frame === 4) await tab.mouse.down();
    if (frame === 6) await tab.mouse.move(1, 2 * y - 1);
}});
/** A word is typed into the field at a place. */
const type = (x, y) => async (tab, frame) => {
    if (frame === 1) await tab.mouse.click(x, y);
    if (frame > 1) await tab.keyboard.type("plums"[frame - 2] ?? "");
};
/** Each frame takes the next choice of the first list. */
const choose = async (tab, frame) => {
    if (frame > 0) await tab.keyboard.press(frame === 1 ? "Tab" : "ArrowDown");
};
/** Runs in the page: each load is a day after the one before. */
const oneDayLater = () => {
    const today = Date;
    const days = (sessionStorage.days = Number(sessionStorage.days ?? 0) + 1);
    window.Date = class extends today {
        constructor(...given) {
            super(...(given.length ? given : [today.now() + days * 24 * 60 * 60 * 1000]));
        }
    };
};
/**
 * How each effect is visited where it is not twelve frames, one every quarter of a second, half a second
 * after it is loaded: `still` is the frame that stands first, `act` what the visitor does before a frame.
 */
const visits = {
    anti_spam: { frames: 1 },
    day_calendar: { frames: 6, every: 500, async act(tab, frame) {
        if (frame === 0) await tab.evaluateOnNewDocument(oneDayLater);
        else await tab.reload();
    }},
    google_search: { frames: 8, every: 300, still: 7, act: type(115, 95) },
    google_translate: { frames: 6, every: 400, act: choose },
    password: { frames: 8, every: 300, still: 7, act: type(110, 128) },
    popup_alert: { frames: 6, every: 400, async act(tab, frame) {
        if (frame === 4) await tab.mouse.click(240, 123);
    }},
    pop_up_window: { frames: 6, every: 400, still: 3, async act(tab, frame) {
        if (frame === 0) await tab.evaluate(() => document.querySelector("iframe").parentNode.remove());
        if (frame === 3) await tab.reload();
    }},
    sound_fx: { frames: 8, every: 200, async act(tab, frame) {
        if (frame === 1) await tab.mouse.click(144, 117);
    }},
    other_button: { ...press(72, 45), scale: 2 },
    pulldown: { frames: 6, every: 400, scale: 1.5, act: choose },
    anim_button: point(), text_button: point(), tooltip: point(),
    bubbles: { frames: 8, every: 300, still: 4, async act(tab, frame) {
        if (frame === 2 || frame === 6) await tab.mouse.click(144, 101);
    }},
    applets_typer: { still: 11 },
    flying_text: { still: 5 },
    text_transitions: { still: 6 },
    more_image_effects: { still: 6 },
    scrolling_credits: { still: 9 },
    image_fade: { every: 450 },
    vert_scroller: { every: 350, still: 3 },
    status_bar: { first: 9000, scale: 1.5, still: 8 },
    smooth_scroll: { frames: 14, every: 200 },
    earthquake: { first: 0, frames: 14, every: 60 },
    shake_text: { first: 0, frames: 14, every: 60 },
    fade: { first: 0, still: 3 },
    sliding_im_window: { first: 0, every: 120, still: 11 },
    applets_dyna_but: press(144, 90),
    page_transitions: { from: "news.html", first: 0, every: 150, still: 5, async act(tab, frame) {
        if (frame === 1) await tab.evaluate(() => void setTimeout(() => (location.href = "page_transitions.html")));
    }},
    random_image: { frames: 8, every: 500, async act(tab, frame) {
        if (frame % 2 === 0 && frame > 0) await tab.reload();
    }},
    personalized: { frames: 10, every: 300, still: 9, async act(tab, frame) {
        if (frame === 1) await tab.keyboard.press("Tab");
        if (frame > 1 && frame < 5) await tab.keyboard.type("Ann"[frame - 2]);
        if (frame === 6) await tab.keyboard.press("Enter");
    }},
    cursor_trail: { frames: 12, every: 150, async act(tab, frame) {
        for (let step = 0; step < 3; step++) {
            const turn = (frame + step / 3) / 12 * 2 * Math.PI;
            await tab.mouse.move(144 + 100 * Math.cos(turn), 90 + 55 * Math.sin(2 * turn));
            await wait(20);
        }
    }},
    img_rollover: { frames: 9, every: 350, async act(tab, frame) {
        await tab.mouse.move(50, 40 + 48 * Math.floor(frame / 3));
    }},
    color_scrollbars: { frames: 8, every: 200, async act(tab, frame) {
        await tab.evaluate((top) => scrollTo(0, top), 200 - Math.abs(frame - 4) * 50);
    }},
};

const kinds = { html: "text/html", svg: "image/svg+xml", gif: "image/gif", js: "text/javascript", wav: "audio/wav" };
const server = createServer((request, answer) => {
    const file = pages + decodeURIComponent(request.url.split("?")[0]);
    if (!existsSync(file)) return answer.writeHead(404).end();
    answer.writeHead(200, { "Content-Type": kinds[file.split(".").at(-1)] ?? "application/octet-stream" });
    answer.end(readFileSync(file));
}).listen(0, "127.0.0.1");
await new Promise((done) => server.once("listening", done));
const site = `http://127.0.0.1:${server.address().port}`;

const browser = await launch(place, "chromium", { ignoreDefaultArgs: ["--hide-scrollbars"] });
for (const name of names)
    for (const scheme of ["light", "dark"]) {
        const { frames = 12, every = 250, first = 500, scale = 1, still = 0, from, act } = visits[name] ?? {};
        const folder = `${pictures}/${name}/${scheme}`;
        mkdirSync(folder, { recursive: true });
        const tab = await browser.newPage();
        await tab.setViewport({ width: 288 / scale, height: 180 / scale, deviceScaleFactor: scale });
        await tab.emulateMediaFeatures([{ name: "prefers-color-scheme", value: scheme }]);
        tab.on("pageerror", (error) => console.log(`${name}: ${error.message}`));
        tab.on("response", (answer) => answer.ok() || answer.url().endsWith("favicon.ico") || console.log(`${name}: no ${answer.url()}`));
        await tab.goto(`${site}/${from ?? `${name}.html`}`, { waitUntil: "load" });
        const begin = Date.now() + first;
        const times = [];
        for (let frame = 0; frame < frames; frame++) {
            await wait(begin + frame * every - Date.now());
            await act?.(tab, frame);
            times.push(Date.now());
            const place = (frame - still + frames) % frames;
            const path = `${folder}/${String(place).padStart(2, "0")}.png`;
            // Between two pages there is nothing to be seen.
            for (let tries = 0; tries < 100; tries++)
                if (await tab.screenshot({ path, captureBeyondViewport: false }).catch(() => wait(20))) break;
        }
        // On a busy machine a frame comes late, and stands in the picture for as long as it took.
        const delays = times.map((time, i) => Math.round(((times[i + 1] ?? time + every) - time) / 10));
        writeFileSync(`${folder}/delays`, [...delays.slice(still), ...delays.slice(0, still), ""].join("\n"));
        await tab.close();
    }
await browser.close();
server.close();
