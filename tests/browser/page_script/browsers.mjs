/** The system's browsers. */
import { createRequire } from "node:module";
import { pathToFileURL } from "node:url";

const programs = {
    chromium: { browser: "chrome", executablePath: "/usr/bin/chromium", args: ["--no-sandbox"] },
    firefox: { browser: "firefox", executablePath: "/usr/bin/firefox-esr" },
};
export const names = Object.keys(programs);

/** Starts a browser by what is installed in `place`, with more options if need be. */
export async function launch(place, name, more = {}) {
    const entry = createRequire(`${process.cwd()}/${place}/x.js`).resolve("puppeteer-core");
    const { default: puppeteer } = await import(pathToFileURL(entry).href);
    return puppeteer.launch({ headless: true, ...programs[name], ...more });
}
