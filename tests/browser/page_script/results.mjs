/** What the checks have found, as the table "effect by browser". */

/** What a browser makes of an effect, by its checks: with the page script and without it. */
function verdict(checks) {
    const names = (script) =>
        [...new Set(checks.map(({ name }) => name))]
            .map((name) => [
                name,
                checks.filter((check) => check.script === script && check.name === name),
            ])
            .filter(([, both]) => both.some(({ passes }) => passes))
            .map(([name, both]) => {
                const [only] = both.every(({ passes }) => passes)
                    ? []
                    : both.filter((c) => c.passes);
                return (
                    name + (only ? ` (${only.doctype ? "with" : "without"} a doctype alone)` : "")
                );
            });
    const [some, bare] = [names(true), names(false)].map((list) => list.join("; "));
    if (checks.some(({ script, passes }) => script && !passes)) return `partly: ${some}`;
    if (checks.every(({ passes }) => passes)) return "works";
    return "works with the page script" + (bare ? `; without it: ${bare}` : "");
}

/** The lines of the table: the effect, then what each browser makes of it. */
function lines(found, browsers) {
    const effects = new Set(found.map(({ effect }) => effect).filter(Boolean));
    const of = (effect, browser) =>
        found.filter((check) => check.effect === effect && check.browser === browser);
    return [...effects].map((effect) => [
        effect,
        ...browsers.map((browser) => verdict(of(effect, browser))),
    ]);
}

/** The table in Markdown, and the same for the help book. */
export function resultsPage(found) {
    const browsers = [...new Set(found.map(({ browser }) => browser))];
    const cells = [["Effect", ...browsers], ...lines(found, browsers)];
    const [head, ...rows] = cells.map((line) => `| ${line.join(" | ")} |`);
    const html = cells.map((line, i) => {
        const tag = i ? "td" : "th";
        return `<tr>${line.map((cell) => `<${tag}>${cell}</${tag}>`).join("")}</tr>`;
    });
    return `# Effect by browser

Written by \`tests/browser/other_browsers\`: each effect's checks, on pages with and without a doctype.

${[head, head.replace(/[^|]+/g, "---"), ...rows].join("\n")}

The same for the help book:

\`\`\`html
<table border="1" cellspacing="0" cellpadding="3">
${html.join("\n")}
</table>
\`\`\`
`;
}
