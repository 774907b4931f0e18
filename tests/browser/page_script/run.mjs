/**
 * Runs every check in each browser, with and without a doctype. The browsers named as arguments, or
 * all; `CHECK` limits the checks. A run of all of them writes the table "effect by browser".
 */
import { readFileSync, writeFileSync } from "node:fs";
import { serve } from "./server.mjs";
import { launch, names } from "./browsers.mjs";
import { appletChecks } from "./applet_checks.mjs";
import { pageChecks } from "./page_checks.mjs";
import { resultsPage } from "./results.mjs";
import { ruleChecks } from "./rule_checks.mjs";
import { textChecks } from "./text_checks.mjs";
import { Visit } from "./tools.mjs";

const place = process.argv[2];
const asked = names.filter((name) => !process.argv[3] || process.argv.includes(name));
const only = process.env.CHECK && new RegExp(process.env.CHECK);
const checks = [...textChecks, ...pageChecks, ...appletChecks, ...ruleChecks].filter(
    (check) => !only || only.test(`${check.effect}: ${check.name}`),
);

const pages = new Map();
const server = await serve(pages, readFileSync(`${place}/orvane.js`));
/** What was found: {browser, effect, name, script, doctype, passes}. */
const found = [];

for (const name of asked) {
    const browser = await launch(place, name);
    const title = (await browser.version())
        .replace(/^\w/, (c) => c.toUpperCase())
        .replace("/", " ");
    for (const check of checks) {
        for (const script of check.effect ? [true, false] : [true]) {
            for (const doctype of [true, false]) {
                const fault = await faultOf(browser, check, { doctype, script });
                found.push({ browser: title, ...check, script, doctype, passes: !fault });
                if (script && fault)
                    console.error(
                        `FAILED ${title}, ${doctype ? "with" : "without"} doctype, ` +
                            `${check.effect ?? "Pages"}: ${check.name}\n${fault.stack}`,
                    );
            }
        }
    }
    await browser.close();
}
server.close();

/** What keeps a check from passing in a fresh tab, or null. */
async function faultOf(browser, check, options) {
    const tab = await browser.newPage();
    await tab.setViewport({ width: 800, height: 600 });
    const errors = [];
    // Firefox counts a script that a policy stops as an error of the page.
    tab.on("pageerror", (error) => /^Content-Security/.test(error.message) || errors.push(error));
    try {
        await check.run(new Visit(tab, (...page) => open(tab, ...page), options));
        if (options.script && errors.length) throw errors[0];
        return null;
    } catch (error) {
        return error;
    } finally {
        await tab.close();
    }
}

/** Loads a page in a tab; `slow` is the length of the pieces that it arrives in. */
async function open(tab, html, { slow = 0, before, files = {} } = {}) {
    const name = `${pages.size}.html`;
    pages.set(name, { html, slow });
    for (const [file, content] of Object.entries(files))
        pages.set(file, { html: content, slow: 0 });
    if (before) await tab.evaluateOnNewDocument(before);
    await tab.goto(server.at + name, { waitUntil: "load", timeout: 30000 });
}

const results = new URL("RESULTS.md", import.meta.url);
if (!only && asked.length === names.length) writeFileSync(results, resultsPage(found));
else console.log(resultsPage(found));
const failed = found.filter(({ script, passes }) => script && !passes).length;
console.log(failed ? `${failed} failed` : "all passed");
process.exit(failed ? 1 : 0);
