/** Day Calendar: today, as a leaf of a calendar. */
import { dress, fields, look, make, on, place, start } from "../start.js";

const css =
    "time{display:inline-block;text-align:center;line-height:1.25;overflow:hidden}" +
    "time>*{display:block}.leaf{min-width:7em;background:var(--paper);box-shadow:0 1px 4px #0006}" +
    ".leaf .month{padding:.2em .6em;background:var(--head);color:var(--head-text);font-weight:bold}" +
    ".leaf .day{font-size:3em;line-height:1.15;font-weight:bold}.leaf>:last-child{padding-bottom:.3em}" +
    ".leaf .weekday,.leaf .year{padding:0 .6em}.plain>*{display:inline}";

start("calendar-1", (root) => {
    const { textColor: _, ...font } = look;
    const field = fields(root, {
        look: "leaf",
        language: "",
        month: true,
        weekday: true,
        day: true,
        year: true,
        headColor: "#a02020",
        headTextColor: "#ffffff",
        paperColor: "#ffffff",
        textColor: "#202020",
        ...font,
        corners: [6, 0, 100],
        timeZone: "",
    });
    const page = root.closest("[lang]")?.getAttribute("lang");
    /** A value that the browser takes, else nothing. @param {string} value @param {(value: string) => any} take */
    const known = (value, take) => {
        try {
            take(value);
            return value;
        } catch {}
    };
    const language =
        field.language === "visitor"
            ? undefined
            : known(field.language || page || "", (one) => new Intl.DateTimeFormat(one));
    const timeZone = known(field.timeZone, (one) => new Intl.DateTimeFormat([], { timeZone: one }));
    const leaf = make("time", field.look === "plain" ? "plain" : "leaf");
    dress(leaf, field);
    leaf.style.background = "";
    leaf.style.borderRadius = field.corners + "px";
    leaf.style.setProperty("--head", field.headColor);
    leaf.style.setProperty("--head-text", field.headTextColor);
    leaf.style.setProperty("--paper", field.paperColor);

    /** A part of today's date. @param {Intl.DateTimeFormatOptions} options */
    const format = (options) => new Intl.DateTimeFormat(language, { timeZone, ...options });
    leaf.lang = format({}).resolvedOptions().locale;
    /** @type {[string, Intl.DateTimeFormatOptions][]} */
    const parts = [
        ["month", { month: "long" }],
        ["weekday", { weekday: "long" }],
        ["day", { day: "numeric" }],
        ["year", { year: "numeric" }],
    ];
    const chosen = parts.filter(([name]) => /** @type {any} */ (field)[name]);
    const whole = chosen.reduce((all, [, options]) => ({ ...all, ...options }), {});
    let timer = 0;
    const show = () => {
        clearTimeout(timer);
        const now = new Date();
        if (field.look === "plain") leaf.textContent = format(whole).format(now);
        else
            leaf.replaceChildren(
                ...chosen.map(([name, options]) => {
                    const words = format(options)
                        .formatToParts(now)
                        .find(({ type }) => type === name)?.value;
                    return make("span", name, words ?? "");
                }),
            );
        leaf.dateTime = new Intl.DateTimeFormat("en-CA", { timeZone }).format(now);
        // Wherever it is, a day begins at a quarter of an hour.
        if (!document.hidden) timer = setTimeout(show, 9e5 - (now.getTime() % 9e5) + 50);
    };
    show();
    on(document, "visibilitychange", show);
    place(root, css, leaf);
});
