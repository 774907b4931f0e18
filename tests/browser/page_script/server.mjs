/** The expected texts, and the server that visitors of the system's browsers reach. */
import { existsSync, readFileSync } from "node:fs";
import { createServer } from "node:http";
import { image } from "./pages.mjs";

const expected = new URL("../../expected/", import.meta.url);

globalThis.expectedText = (name) => {
    const file = new URL(name, expected);
    return existsSync(file) ? readFileSync(file, "latin1") : undefined;
};

/** Serves `pages` (by path), the pictures and the page script; slow pages come piece by piece. */
export async function serve(pages, script) {
    const server = createServer(async (request, answer) => {
        const name = request.url.slice(1).split("?")[0];
        if (name === "orvane.js") return answer.end(script);
        const found = pages.get(name);
        if (!found && /\.(gif|jpg)$/.test(name) && image(name)) return answer.end(image(name));
        if (!found) return answer.writeHead(404).end();
        if (/\.html$/.test(name))
            answer.setHeader("Content-Type", "text/html; charset=windows-1252");
        if (!found.slow) return answer.end(found.html);
        for (let at = 0; at < found.html.length; at += found.slow) {
            answer.write(found.html.slice(at, at + found.slow));
            await new Promise((done) => setTimeout(done, 15));
        }
        answer.end();
    });
    await new Promise((done) => server.listen(0, done));
    return { at: `http://localhost:${server.address().port}/`, close: () => server.close() };
}
