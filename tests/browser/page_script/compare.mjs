/**
 * Draws the same tags at the same times by the Java classes and by the canvases, and compares the
 * pictures pixel by pixel.
 */
import { execFileSync } from "node:child_process";
import { mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { launch } from "./browsers.mjs";
import { page, text } from "./pages.mjs";
import { serve } from "./server.mjs";
import { stoppedClock, wait } from "./tools.mjs";

const place = process.argv[2];
const folder = mkdtempSync(`${tmpdir()}/applets-`);

const animation = (type) =>
    text("advanced_animator_full.html")
        .replace(/SOUND.0 VALUE="[^"]*"/, 'SOUND.0 VALUE=""')
        .replace('PAUSE.0 VALUE="-1"', 'PAUSE.0 VALUE="1000"')
        .replace("slidein(3)", type);
const transitions =
    "slidein(3) slideout(6) scroll(4) expand(5) shrink(7) squish(2) shutter(0) shutter(1)";

/**
 * The tag, the times, the share of pixels in per cent that may be others, and by how much of 255 all
 * may be. Letters are drawn by each engine in its own way, so cells of 8 by 8 pixels are compared.
 */
const cases = [
    ...transitions.split(" ").map((type) => [type, animation(type), "1000 1310 1605 1830", 1.5]),
    ["expand_shrink", text("more_image_effects_expand_shrink_full.html"), "0 755 1600 2755"],
    ["typewriter", text("typewriter_full.html"), "50 1515 4000", 6, 40, 8],
    ["cube", text("image_effects_cube.html"), "0 300 1234 5000", 0.5],
    ["lake", text("image_effects_lake.html"), "0 250 730", 0.5],
    ["ripple", text("image_effects_ripple.html"), "0 300 600", 0.5],
    ["fade", text("image_fade_two_images.html"), "0 2600 2700 2773", 0, 2],
].map(([name, tag, times, share = 0, by = 0, cell = 1]) => {
    return { name, tag, times: times.split(" "), share, by, cell };
});

for (const { name, tag } of cases) writeFileSync(`${folder}/${name}.html`, tag, "latin1");
const classes = ["build/checked/applets/classes", "build/checked/tests/applets/classes"].join(":");
const drawn = cases.map(({ name, times }) => [name, ...times].join(" "));
execFileSync("xvfb-run", ["-a", "java", "-cp", classes, "Cases", folder, ...drawn], {
    stdio: "inherit",
});

const files = new Map();
for (const name of readdirSync(folder))
    if (/(gif|jpg|png)$/.test(name)) files.set(name, { html: readFileSync(`${folder}/${name}`) });
const server = await serve(files, readFileSync(`${place}/orvane.js`));
const browser = await launch(place, "chromium");

/** The share in per cent of a canvas's cells that differ from a picture's by more than `by`. */
async function difference(canvas, url, by, cell) {
    const image = new Image();
    image.src = url;
    await image.decode();
    const [w, h] = [canvas.width / cell, canvas.height / cell];
    const [one, two] = [canvas, image].map((from) => {
        const small = Object.assign(document.createElement("canvas"), { width: w, height: h });
        const pen = small.getContext("2d");
        pen.imageSmoothingQuality = "high";
        pen.drawImage(from, 0, 0, w, h);
        return pen.getImageData(0, 0, w, h).data;
    });
    const off = one.map((part, i) => Math.abs(part - two[i]) > by);
    const cells = off.filter((_, i) => i % 4 === 0 && (off[i] || off[i + 1] || off[i + 2]));
    return (100 * cells.length) / (one.length / 4);
}

let failed = 0;
for (const { name, tag, times, share, by, cell } of cases) {
    files.set("page.html", { html: page({ effects: [{ name: "x", body: tag }] }) });
    const tab = await browser.newPage();
    await tab.evaluateOnNewDocument(stoppedClock);
    await tab.goto(server.at + "page.html");
    await wait(200);
    for (const t of times) {
        const code = `turn(${t}); (${difference})([...document.querySelectorAll("*")].map((e) =>
            e.shadowRoot?.querySelector("canvas")).find(Boolean), "${name}-${t}.png", ${by}, ${cell})`;
        const differs = await tab.evaluate(code);
        failed += differs > share;
        console.log(`${name} at ${t}: ${differs.toFixed(2)} % differ, ${share} % may`);
    }
    await tab.close();
}
await browser.close();
server.close();
rmSync(folder, { recursive: true });
console.log(failed ? `${failed} pictures differ` : "all pictures agree");
process.exit(failed ? 1 : 0);
