/**
 * Runs every scenario for every block in each browser, with and without a doctype; with `cost` it
 * measures them in Chromium instead. `CHECK` limits the kinds and scenarios; the bundles and the
 * page script are in the folder that is named first.
 */
import { readFileSync } from "node:fs";
import { launch, names } from "../page_script/browsers.mjs";
import { serve } from "../page_script/server.mjs";
import { kinds, scrollbars } from "./kinds.mjs";
import { cost, pageOf, scenarios, seesScrollbars, setUp } from "./scenarios.mjs";

const place = process.argv[2];
const asked = process.argv.includes("cost")
    ? ["chromium"]
    : names.filter(
          (name) => !names.some((n) => process.argv.includes(n)) || process.argv.includes(name),
      );
const only = new RegExp(process.env.CHECK ?? "");
const axe = readFileSync(`${place}/node_modules/axe-core/axe.min.js`, "utf8");

const pages = new Map();
const server = await serve(pages, readFileSync(`${place}/orvane.js`));
let failed = 0;

/** What keeps a block from passing in a fresh tab, or null. */
async function faultOf(browser, row, scenario, doctype) {
    const tab = await browser.newPage();
    await tab.setViewport({ width: 800, height: 600 });
    const errors = [];
    tab.on("pageerror", (error) => errors.push(error));
    const requests = [];
    tab.on("request", (request) => requests.push(request.url()));
    const code = readFileSync(`${place}/blocks/${row.kind}.js`, "latin1");
    const open = async (options = {}) => {
        await tab.goto("about:blank");
        requests.length = 0;
        const before = `<head><script>${options.before ?? ""}${setUp}</script>`;
        const html = pageOf(row, code, { doctype, ...options }).replace("<head>", () => before);
        pages.set("page.html", { html });
        await tab.goto(`${server.at}page.html`, { waitUntil: "load", timeout: 30000 });
    };
    try {
        await scenario.run({ open, row, tab, axe, requests, doctype });
        if (errors.length) throw errors[0];
        return null;
    } catch (error) {
        return error;
    } finally {
        await tab.close();
    }
}

/** The scrollbars as a row with one scenario; it has no block. */
const bars = { kind: "scroller", block: "" };
const barsSeen = {
    name: "color scrollbars",
    run: ({ open, tab }) => open({ head: scrollbars }).then(() => seesScrollbars(tab)),
};
const all = kinds.flatMap((row) => scenarios.map((scenario) => [row, scenario]));

for (const name of asked) {
    const browser = await launch(place, name);
    const print = ({ kind }) => ({
        run: async (told) => console.log(`${kind}: ${(await cost(told)).toFixed(1)} ms a second`),
    });
    const runs = process.argv.includes("cost")
        ? kinds.map((row) => [row, print(row)])
        : [...all, [bars, barsSeen]];
    for (const [row, scenario] of runs)
        for (const doctype of [true, false]) {
            const form = doctype ? "with" : "without";
            const title = `${name}, ${form} doctype, ${row.kind}: ${scenario.name}`;
            if (!only.test(title)) continue;
            const fault = await faultOf(browser, row, scenario, doctype);
            if (!fault) continue;
            failed++;
            console.error(`FAILED ${title}\n${fault.stack}`);
        }
    await browser.close();
}
server.close();
console.log(failed ? `${failed} failed` : "all passed");
process.exit(failed ? 1 : 0);
