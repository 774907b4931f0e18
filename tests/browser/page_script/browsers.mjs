/** The system's browsers. */
import { createRequire } from "node:module";
import { pathToFileURL } from "node:url";

const programs = {
    chromium: { browser: "chrome", executablePath: "/usr/bin/chromium", args: ["--no-sandbox"] },
    // What Firefox lets no driver do, its own windows can do to a page.
    firefox: {
        browser: "firefox",
        executablePath: "/usr/bin/firefox-esr",
        args: ["--remote-allow-system-access"],
    },
};
export const names = Object.keys(programs);

/** Starts a browser by what is installed in `place`, with more options if need be. */
export async function launch(place, name, more = {}) {
    const entry = createRequire(`${process.cwd()}/${place}/x.js`).resolve("puppeteer-core");
    const { default: puppeteer } = await import(pathToFileURL(entry).href);
    return puppeteer.launch({ headless: true, ...programs[name], ...more });
}

/** Shows the pages of all tabs as they are printed, or not. */
const setMedium = (type) =>
    `for (const { linkedBrowser: { browsingContext: page } } of gBrowser.tabs) page.mediumOverride = "${type ?? ""}"`;

/** A new tab, which can be touched and shown as it is printed in Firefox, too. */
export async function newTab(browser) {
    // In Firefox a tab that closes may take the next one with it.
    const tab = await browser.newPage().catch(() => browser.newPage());
    const isChromium = (await browser.version()).startsWith("Chrome");
    if (isChromium) return { tab, isChromium };
    const send = async (what, asked) => (await browser.connection.send(what, asked)).result;
    tab.touchscreen.tap = (x, y) =>
        send("input.performActions", {
            context: tab.mainFrame()._id,
            actions: [
                {
                    type: "pointer",
                    id: "finger",
                    parameters: { pointerType: "touch" },
                    actions: [
                        { type: "pointerMove", x, y },
                        { type: "pointerDown", button: 0 },
                        { type: "pointerUp", button: 0 },
                    ],
                },
            ],
        });
    tab.emulateMediaType = async (type) => {
        const { contexts } = await send("browsingContext.getTree", { "moz:scope": "chrome" });
        const target = { context: contexts[0].context };
        await send("script.evaluate", { expression: setMedium(type), target, awaitPromise: false });
    };
    return { tab, isChromium };
}
