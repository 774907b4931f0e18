/**
 * Runs every scenario for every block in each browser, with and without a doctype; with `cost` it
 * measures them in Chromium instead, at settings that hardly ever rest, with `cost fresh` at those
 * of a fresh window. `CHECK` limits the kinds and scenarios; the bundles and the page script are in
 * the folder that is named first.
 */
import { readFileSync } from "node:fs";
import { launch, names, newTab } from "../page_script/browsers.mjs";
import { serve } from "../page_script/server.mjs";
import { classics } from "./classics.mjs";
import { kinds, scrollbars, together, transitions } from "./kinds.mjs";
import { beside, cost, pageOf, scenarios, seesScrollbars, seesTransition } from "./scenarios.mjs";

const place = process.argv[2];
const costs = process.argv.includes("cost");
const asked = names.filter((name) => process.argv.includes(name));
const browsers = costs ? ["chromium"] : asked.length ? asked : names;
const only = new RegExp(process.env.CHECK ?? "");
const axe = readFileSync(`${place}/node_modules/axe-core/axe.min.js`, "utf8");
const code = (kind) => readFileSync(`${place}/blocks/${kind}.js`, "latin1").trim();

const pages = new Map();
const server = await serve(pages, readFileSync(`${place}/orvane.js`));
let opened = 0;

/** What keeps a block from passing in a fresh tab, or null. */
async function faultOf(browser, row, scenario, doctype) {
    const { tab, isChromium } = await newTab(browser);
    const height = row.parts ? 2400 : 600;
    await tab.setViewport({ width: 800, height, hasTouch: isChromium });
    const errors = [];
    // Firefox counts a policy's refusals as errors of the page.
    tab.on("pageerror", (error) => /^Content-Security/.test(error.message) || errors.push(error));
    let requests = [];
    tab.on("request", (request) => requests.push(request.url()));
    const open = async (options = {}) => {
        await tab.goto("about:blank");
        requests = [];
        const name = `${opened++}.html`;
        pages.set(name, { html: await pageOf(row, code, { doctype, ...options }) });
        await tab.goto(server.at + name, { waitUntil: "load", timeout: 30000 });
    };
    try {
        await scenario.run({ open, row, tab, axe, isChromium, doctype, requests: () => requests });
        if (errors.length) throw errors[0];
        return null;
    } catch (error) {
        return error;
    } finally {
        await tab.close();
    }
}

/** What stands in the HEAD alone has a row without a block, and one scenario. */
const bare = { kind: "transitions", block: "" };
const barsSeen = {
    name: "color scrollbars",
    run: ({ open, tab }) => open({ head: scrollbars }).then(() => seesScrollbars(tab)),
};
const nextSeen = {
    name: "page transitions",
    run: async ({ open, tab, isChromium }) => {
        await open({ head: transitions.replace("§", () => `<script>${code("transitions")}</script>`) });
        await seesTransition(tab, isChromium);
    },
};
const measured = (row) =>
    process.argv.includes("fresh")
        ? { ...row, block: row.block.replace(/(data-orvane="[^"]*")[^>]*/g, "$1") }
        : row;
const print = ({ kind }) => ({
    name: kind,
    run: async (told) => console.log(`${kind}: ${(await cost(told)).toFixed(1)} ms a second`),
});
const runs = costs
    ? kinds.map((row) => [measured(row), print(row)])
    : [
          ...kinds.flatMap((row) => scenarios.map((scenario) => [row, scenario])),
          ...scenarios.filter(({ alone }) => !alone).map((one) => [together, one]),
          ...classics().map((classic) => [together, beside(classic)]),
          [bare, barsSeen],
          [bare, nextSeen],
      ];

let failed = 0;
for (const name of browsers) {
    const left = runs
        .flatMap((run) => [true, false].map((doctype) => [...run, doctype]))
        .map(([row, scenario, doctype]) => {
            const form = doctype ? "with" : "without";
            const title = `${name}, ${form} doctype, ${row.kind}: ${scenario.name}`;
            return { row, scenario, doctype, title };
        })
        .filter(({ title }) => only.test(title));
    // Blocks wait more than they work, so several browsers look at them at a time.
    const work = async () => {
        const browser = await launch(place, name);
        for (let next; (next = left.shift());) {
            const fault = await faultOf(browser, next.row, next.scenario, next.doctype);
            if (!fault) continue;
            failed++;
            console.error(`FAILED ${next.title}\n${fault.stack}`);
        }
        await browser.close();
    };
    await Promise.all(Array.from({ length: costs ? 1 : 3 }, work));
}
server.close();
console.log(failed ? `${failed} failed` : "all passed");
process.exit(failed ? 1 : 0);
