/** Runs every check in each browser, with and without a doctype, and prints "effect by browser". */
import { readFileSync } from "node:fs";
import { serve } from "./server.mjs";
import { launch, names } from "./browsers.mjs";
import { appletChecks } from "./applet_checks.mjs";
import { pageChecks } from "./page_checks.mjs";
import { textChecks } from "./text_checks.mjs";
import { Visit } from "./tools.mjs";

const place = process.argv[2];
const only = process.env.CHECK && new RegExp(process.env.CHECK);
const asked = names.filter((name) => !process.argv[3] || process.argv.includes(name));

const pages = new Map();
const server = await serve(pages, readFileSync(`${place}/orvane.js`));
const results = new Map();
const titles = [];
let failed = 0;

for (const name of asked) {
    const browser = await launch(place, name);
    const title = (await browser.version()).replace("/", " ");
    titles.push(title);
    for (const check of [...textChecks, ...pageChecks, ...appletChecks]) {
        if (only && !only.test(`${check.effect}: ${check.name}`)) continue;
        for (const doctype of [true, false]) {
            const tab = await browser.newPage();
            await tab.setViewport({ width: 800, height: 600 });
            let fault = null;
            const errors = [];
            tab.on("pageerror", (error) => errors.push(error.message));
            try {
                await check.run(
                    new Visit(tab, (html, options) => open(tab, html, options), doctype),
                );
                if (errors.length) throw new Error(`script error: ${errors[0]}`);
            } catch (error) {
                fault = error;
            }
            await tab.close();
            if (fault) {
                failed++;
                console.error(
                    `FAILED ${title}, ${doctype ? "with" : "without"} doctype, ` +
                        `${check.effect}: ${check.name}\n${fault.stack}`,
                );
            }
            const row = results.get(check.effect) ?? new Map();
            row.set(title, (row.get(title) ?? true) && !fault);
            results.set(check.effect, row);
        }
    }
    await browser.close();
}
server.close();

/** Loads a page in a tab; `slow` is the length of the pieces that it arrives in. */
async function open(tab, html, { slow = 0, before, files = {} } = {}) {
    const name = `${pages.size}.html`;
    pages.set(name, { html, slow });
    for (const [file, content] of Object.entries(files))
        pages.set(file, { html: content, slow: 0 });
    if (before) await tab.evaluateOnNewDocument(before);
    await tab.goto(server.at + name, { waitUntil: "load", timeout: 30000 });
}

console.log(`| Effect | ${titles.join(" | ")} |\n|---|${titles.map(() => "---|").join("")}`);
for (const [effect, row] of results)
    console.log(
        `| ${effect} | ${titles.map((title) => (row.get(title) ? "runs" : "fails")).join(" | ")} |`,
    );
console.log(failed ? `${failed} failed` : "all passed");
process.exit(failed ? 1 : 0);
