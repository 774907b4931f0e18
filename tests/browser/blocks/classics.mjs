/** The effects that are no blocks, as the expected texts have them. */
import { readdirSync } from "node:fs";
import { text } from "../page_script/pages.mjs";

/** The file that a draft's line names, or the row of a table that begins with the fields there. */
function textOf(draft, name) {
    const [file, ...rest] = (draft.match(RegExp(`^${name}: (.*)`, "m"))?.[1] ?? "").split(" ");
    if (!rest.length) return file && text(file);
    const key = rest.join(" ").replaceAll("|", "\t") + "\t";
    const row = text(file).split("\n").find((line) => line.startsWith(key));
    return row.slice(key.length).replaceAll("\t", "\r\n");
}

/** One of each: its name, head and body, and what the BODY tag calls. */
export function classics() {
    const found = new Map();
    for (const file of readdirSync(new URL("../../expected/", import.meta.url)).sort()) {
        if (!file.endsWith(".draft")) continue;
        const draft = text(file);
        const name = draft.match(/^Effect: .*$|^EffectPicker: .*$/gm).join(" ");
        const head = textOf(draft, "HEAD");
        const body = textOf(draft, "BODY") + textOf(draft, "BODY line");
        const load = draft.match(/^onLoad: (.*)/m)?.[1] ?? "";
        // A page with a password leads away at once.
        const stays = !/data-orvane=|window.location =/.test(head + body);
        if (stays && !found.has(name)) found.set(name, { name, head, body, load });
    }
    return [...found.values()];
}
