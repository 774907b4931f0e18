/** Personalize: a greeting with the visitor's name, who is asked for it once. */
import { dress, fields, look, make, on, place, start } from "../start.js";
import { store } from "../store.js";

const css =
    "form{display:flex;flex-wrap:wrap;gap:.4em;align-items:center}input,button{all:unset;" +
    "font:inherit;padding:.25em .6em;min-width:24px;border:1px solid;border-radius:4px}" +
    "input{background:#fff;color:#000;min-width:10em}button{cursor:pointer}" +
    "input:focus,button:focus-visible{outline:2px solid;outline-offset:1px}" +
    ".link{border:0;padding:.25em;text-decoration:underline}";

start("greeting-1", (root) => {
    const field = fields(root, {
        question: "What is your name?",
        greeting: "Hello, \xabname\xbb!",
        visits: false,
        lastVisit: false,
        dateStyle: "long",
        ask: "line",
        notMe: true,
        forgetAfter: [365, 1, 3650],
        ...look,
    });
    const [now, box, { get, set }] = [Date.now(), make("div", ""), store(root)];
    /** @type {{name?: string, visits?: number, last?: number, now?: number}} */
    let known = {};
    try {
        known = JSON.parse(get());
    } catch {}
    if (!(now - Number(known.now) < field.forgetAfter * 864e5)) known = {};
    /** @param {string} [name] */
    const keep = (name) => set(JSON.stringify((known = { ...known, name })));
    // A page that is loaded again within half an hour is the same visit.
    if (!(now - Number(known.now) < 18e5))
        known = { ...known, visits: (known.visits ?? 0) + 1, last: known.now };
    known.now = now;
    keep(known.name);

    const press = (/** @type {string} */ text, /** @type {() => void} */ run, name = "") => {
        const button = make("button", name, text);
        button.type = "button";
        on(button, "click", run);
        return button;
    };
    const asked = () => {
        const input = make("input", "");
        input.maxLength = 60;
        input.autocomplete = "given-name";
        const form = make("form", "", make("label", "", field.question + " ", input));
        form.append(press("OK", () => form.requestSubmit()));
        on(form, "submit", (event) => {
            event.preventDefault();
            if (input.value.trim()) keep(input.value.trim());
            show();
        });
        return form;
    };
    const show = () => {
        const { name, visits, last } = known;
        const lines = name
            ? [
                  make(
                      "p",
                      "",
                      field.greeting.replace(/\xabname\xbb/g, () => name),
                  ),
              ]
            : [...root.childNodes]
                  .filter((node) => node.nodeName !== "SCRIPT")
                  .map((node) => node.cloneNode(true));
        const said = [];
        if (field.visits) said.push(`Visits: ${visits}`);
        if (field.lastVisit && last)
            said.push(
                new Date(last).toLocaleString(
                    root.closest("[lang]")?.getAttribute("lang") || undefined,
                    { dateStyle: /** @type {any} */ (field.dateStyle) },
                ),
            );
        box.replaceChildren(...lines);
        if (said[0]) box.append(make("p", "", said.join(" \xb7 ")));
        if (name && field.notMe) box.append(press(`Not ${name}?`, () => (keep(), show()), "link"));
        if (!name && field.ask === "line") box.append(asked());
        if (!name && field.ask === "button")
            box.append(press(field.question, () => box.append(asked()), ""));
    };
    dress(box, field);
    show();
    place(root, css, box);
});
