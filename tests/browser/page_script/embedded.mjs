/**
 * The checks in the embedded engine: a page of its own runs them, and whoever shows that page does
 * to another what is asked here, one request after the other.
 */
import { together } from "../blocks/kinds.mjs";
import { pageOf, scenarios } from "../blocks/scenarios.mjs";
import { appletChecks } from "./applet_checks.mjs";
import { image } from "./pages.mjs";
import { pageChecks } from "./page_checks.mjs";
import { ruleChecks } from "./rule_checks.mjs";
import { textChecks } from "./text_checks.mjs";
import { Visit } from "./tools.mjs";

const groups = { texts: textChecks, pages: pageChecks, applets: appletChecks, rules: ruleChecks };

/** What is asked for, the first of it now, and whom to tell the answer. */
const asked = [];
const ask = (what, values = {}) =>
    new Promise((done) => asked.push({ request: { what, ...values }, done }));

/** Evaluates in the page, a function with its values or a text. */
async function evaluate(take, ...values) {
    // A script is asked for as an expression.
    const code = typeof take === "string" ? take.replace(/;\s*$/, "") : `(${take})(...${JSON.stringify(values)})`;
    const { value, fault } = JSON.parse(await ask("value", { code }));
    if (fault) throw new Error(fault);
    return value;
}

const latin1 = (bytes) => Array.from(bytes, (byte) => String.fromCharCode(byte)).join("");

/** The tab of a visitor, with as much of puppeteer's as the checks use. */
class EmbeddedTab {
    constructor() {
        this.before =
            "window.scriptErrors = [];" +
            "window.addEventListener('error', (e) => e.message && scriptErrors.push(e.message));";
        this.evaluate = evaluate;
        this.mouse = { move: (x, y) => ask("mouse", { x, y }) };
        this.keyboard = { press: (key) => ask("key", { key: key.slice(0, 3) }) };
        this.touchscreen = { tap: (x, y) => ask("touch", { x, y }) };
    }

    url() {
        return evaluate("location.href");
    }

    async click(css) {
        const [x, y] = await evaluate((css) => {
            const box = document.querySelector(css).getBoundingClientRect();
            return [box.x + box.width / 2, box.y + box.height / 2];
        }, css);
        await ask("click", { x, y });
    }

    async open(html, { before = "", files = {} } = {}) {
        this.before += before;
        const page = html.replace(/<head>/i, () => `<HEAD><script>${this.before}</script>`);
        const all = { ...files };
        // No name begins amid a word: the long words of data addresses would be gone over again
        // and again.
        for (const [name] of html.matchAll(/(?<![\w-])[\w-]+\.(gif|jpg)/g))
            if (image(name)) all[name] = latin1(image(name));
        await ask("open", { page, files: all });
    }
}

/** A visit whose pictures are those on the screen, since the engine keeps pixels of files secret. */
class EmbeddedVisit extends Visit {
    async pixels(points) {
        const at = await this.own("canvas", (canvas) => {
            const { x, y } = canvas.getBoundingClientRect();
            return { x, y };
        });
        return ask("pixels", { points: points.map(([x, y]) => [at.x + x, at.y + y]) });
    }
}

/** The scenarios of blocks as checks, of all kinds on one page. */
async function blockChecks() {
    const codes = {};
    for (const { kind } of together.parts) codes[kind] = await ask("script", { kind });
    const loaded = () => performance.getEntriesByType("resource").map(({ name }) => name);
    const told = { row: together, requests: () => evaluate(loaded), axe: await ask("axe") };
    const check = ({ name, run }) => ({
        effect: "Blocks",
        name,
        run: ({ tab, doctype }) => {
            const page = (options) => pageOf(together, (kind) => codes[kind], options);
            const open = async (options) => tab.open(await page({ doctype, ...options }));
            return run({ ...told, open, tab, doctype });
        },
    });
    return scenarios.filter(({ alone }) => !alone).map(check);
}

async function run(group, doctype) {
    groups.blocks ??= await blockChecks();
    const faults = [];
    for (const check of groups[group]) {
        const tab = new EmbeddedTab();
        await ask("begin", { height: group === "blocks" ? 2400 : 630 });
        try {
            await check.run(new EmbeddedVisit(tab, (...page) => tab.open(...page), { doctype }));
            const errors = await evaluate("window.scriptErrors ?? []");
            if (errors.length) throw new Error(`script error: ${errors[0]}`);
        } catch (error) {
            faults.push(`${check.effect ?? "Pages"}: ${check.name}: ${error.message}`);
        }
    }
    await ask("end", { faults });
}

Object.assign(globalThis, {
    run,
    request: () => asked[0]?.request,
    answer: (value) => asked.shift().done(value),
});
