/**
 * Opens every page of the tour from its folder in the system's browsers, and lists the files that they miss
 * and the errors of scripts: `node tests/tour/in_browsers.mjs [chromium] [firefox]`, after orvane_tour and
 * tests/browser/other_browsers, which installs what is needed.
 */
import { existsSync, readdirSync } from "node:fs";
import { launch } from "../browser/page_script/browsers.mjs";

const tours = "build/tour";
const wait = (ms) => new Promise((done) => setTimeout(done, ms));
let pages = 0;

for (const name of process.argv.length > 2 ? process.argv.slice(2) : ["chromium"]) {
    const browser = await launch("build/other_browsers", name);
    for (const folder of readdirSync(tours).flatMap((tour) => [`${tour}/new`, `${tour}/existing`])) {
        const page = `${tours}/${folder}/page.html`;
        if (!existsSync(page)) continue;
        const tab = await browser.newPage();
        const tell = (what) => console.log(`${name}: ${folder}: ${what}`);
        tab.on("pageerror", (error) => tell(error.message));
        tab.on("dialog", (box) => box.accept("Jane"));
        tab.on("requestfailed", (request) => {
            if (request.url().startsWith("file:"))
                tell(`${request.url().replace(/.*\//, "")}: ${request.failure()?.errorText}`);
        });
        await tab.goto(`file://${process.cwd()}/${page}`, { waitUntil: "load", timeout: 30000 });
        await wait(300);
        await tab.close();
        pages++;
    }
    await browser.close();
}
console.log(`${pages} pages opened`);
