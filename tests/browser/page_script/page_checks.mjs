/** Images, windows, buttons and forms. */
import assert from "./assert.mjs";
import { effect, row, text } from "./pages.mjs";
import { calm, check, recorder, stoppedClock, wait } from "./tools.mjs";

const brighten = effect("Image Effects", "image_effects_brighten_gradual");
const slides = effect("Slideshow", "slideshow_full");
const bare = effect("Slideshow", "slideshow_bare");
const trail = { name: "Mouse Cursor Trail", head: text("cursor_trail.html") };
const button = effect("Dynamic Button", "dynamic_button_full");
const ticker = effect("Status Bar Scroller", "status_bar_ticker");
const loads = 'onLoad="loadImages()"';
const popup = (kind) => ({ name: "Popup Window", body: row("popup_window_lines.tsv", kind) });
const allInOne = (action, file) => ({
    name: "All-in-One Button",
    head: text(`all_in_one_button_${file}_head.html`),
    body:
        row("all_in_one_button_lines.tsv", action, 2) +
        (file === "sound" ? '\r\n<BGSOUND SRC="" ID="soundfile">' : ""),
});
const opacity = (v) => v.value(() => Number(getComputedStyle(document.images[0]).opacity));

/**
 * Where the new picture is seen a little past half of the time, by transition: at the left, right,
 * top and bottom edges and in the centre; "?" where chance has a say.
 */
const uncovered =
    "LRTB C LRTB C LRBC LRTC LTBC RTBC LTBC LRTC LTC LTC ? LR TBC TB LRC RTC RBC LTC LBC ? ? ?".split(
        " ",
    );

function uncoveredPoints(path) {
    const points = { L: [3, 41], R: [97, 41], T: [51, 3], B: [51, 77], C: [51, 41] };
    const pen = document.createElement("canvas").getContext("2d");
    const covers = (point) => pen.isPointInPath(new Path2D(path), ...point, "evenodd");
    return Object.keys(points)
        .filter((name) => !covers(points[name]))
        .join("");
}

export const pageChecks = [
    check("Image Brighten", "brightens under mouse and focus, and dims again", async (v) => {
        await v.show([brighten], { marks: false });
        assert.equal(await opacity(v), 0.3);
        await v.show([brighten]);
        assert.equal(await opacity(v), 0.3);
        await v.tab.mouse.move(30, 30);
        await wait(250);
        const between = await opacity(v);
        assert.ok(between > 0.3 && between < 1, `gradually: ${between}`);
        await wait(900);
        assert.equal(await opacity(v), 1);
        await v.tab.mouse.move(600, 500);
        await wait(100);
        assert.equal(await opacity(v), 0.3);
        await v.tab.keyboard.press("Tab");
        await wait(200);
        assert.ok((await opacity(v)) > 0.3, "by the keyboard");
        await v.value(() => document.activeElement.blur());
        await v.tab.mouse.move(30, 30);
        await v.value(() => document.querySelector("a").focus()); // as a press does
        await wait(100);
        await v.tab.mouse.move(600, 500);
        await wait(300);
        assert.equal(await opacity(v), 0.3, "after a press");
    }),
    check("Slideshow", "uncovers the next picture; its buttons stay", async (v) => {
        await v.show([slides], { attributes: loads });
        await wait(200);
        const at = await v.tab.url();
        await v.tab.click("#btnNext");
        await wait(400);
        assert.match(await v.value(() => oImg.src), /b\.gif$/);
        assert.equal(await v.words("[aria-live]"), "Picture 2 of 3");
        assert.match(await v.own("img", (img) => img.style.clipPath), /^path\(/);
        await wait(1100);
        assert.equal(await v.own("img", () => true), null, "the old picture is gone");
        assert.equal(await v.tab.url(), at);
        await v.tab.click("#btnPlay");
        await wait(50);
        assert.equal(await v.button(), "Pause the slideshow");
    }),
    check("Slideshow", "uncovers as each transition says", async (v) => {
        for (const [kind, wanted] of uncovered.entries()) {
            if (kind % 2 === Number(v.doctype)) continue; // each in one of the two
            const head = slides.head.replace(/transition=\d+/, `transition=${kind}`);
            await v.show([{ ...slides, head }], { attributes: loads, before: stoppedClock });
            await v.value(async () => {
                await mypix[1].decode();
                doTrans(1);
                turn(550);
                const drawn = () => new Promise((done) => requestAnimationFrame(done));
                await drawn().then(drawn);
            });
            const path = await v.own("img", (img) => /"(.*)"/.exec(img.style.clipPath)[1]);
            const seen = await v.value(uncoveredPoints, path);
            if (wanted !== "?") assert.equal(seen, wanted, `transition ${kind}: ${path}`);
        }
    }),
    check("Slideshow", "goes from image to image", async (v) => {
        await v.show([{ ...bare, head: bare.head.replace(/5000/, "100") }], { attributes: loads });
        await wait(700);
        assert.doesNotMatch(await v.value(() => oImg.src), /a\.jpg$/);
    }),
    check("Slideshow", "starts beside an onload of the author's", async (v) => {
        const head = bare.head.replace(/5000/, "100");
        await v.show([{ ...bare, head }, ticker, trail], {
            authorHead: "<script>function MM_loadImages() { window.own = 1; }</script>",
            attributes: `onload="MM_loadImages()" ${loads}`,
        });
        await wait(700);
        assert.equal(await v.value(() => window.own), 1);
        assert.doesNotMatch(await v.value(() => oImg.src), /a\.jpg$/);
        assert.match(await v.words(".shown"), /Welcome/);
        await v.show([{ ...bare, head }], { attributes: loads, before: calm });
        await wait(700);
        assert.match(await v.value(() => oImg.src), /a\.jpg$/);
        assert.equal(await v.button(), "Play the slideshow");
        await v.show([slides], { attributes: loads, before: calm });
        await v.tab.click("#btnNext");
        await wait(200);
        assert.match(await v.value(() => oImg.src), /b\.gif$/);
        assert.equal(await v.own("img", () => true), null, "a cut");
    }),
    check("Mouse Cursor Trail", "follows the mouse on a scrolled page, then rests", async (v) => {
        await v.show([trail], { authorBody: "<div style='height:3000px;width:50px'></div>" });
        await v.value(() => scrollTo(0, 500));
        await v.tab.mouse.move(300, 200);
        await wait(900);
        const place = (n) =>
            v.value((id) => `${window[id].offsetLeft} ${window[id].offsetTop}`, `imgTrail${n}`);
        assert.equal(await place(0), "310 710");
        assert.equal(await place(2), "310 710");
        if (await v.value(() => "TouchEvent" in window)) {
            await v.tab.touchscreen.tap(100, 50);
            await wait(900);
            assert.equal(await place(0), "110 560");
        }
        await v.value(() => (window.DrawMouseTrail = () => (window.drawn = true)));
        await wait(300);
        assert.ok(await v.value(() => !window.drawn));
    }),
    check("Dynamic Button", "changes its picture", async (v) => {
        await v.show([button]);
        await v.tab.mouse.move(20, 15);
        await wait(100);
        assert.match(await v.value(() => document.images[0].src), /over\.gif$/);
        const pressed = await v.value(() => {
            document.images[0].dispatchEvent(new MouseEvent("mousedown", { bubbles: true }));
            document.querySelector("a").focus();
            return document.images[0].src;
        });
        assert.match(pressed, /down\.gif$/);
        await v.show([{ ...button, body: button.body.replace(/<a [^>]*>/, "") }]);
        await wait(50);
        const stop = await v.value(() => document.images[0].tabIndex);
        assert.equal(stop, -1, "a stop of Tab without a name");
    }),
    check("Dynamic Button", "plays its sounds", async (v) => {
        await v.show([button], { before: recorder });
        await v.tab.mouse.move(20, 15);
        await wait(100);
        assert.match((await v.value(() => window.played)).join(), /hover\.wav$/);
    }),
    check("PopUp Window", "opens by a link", async (v) => {
        await v.show([popup("link")], { before: recorder });
        await v.tab.click("a");
        assert.equal((await v.value(() => window.opened)).length, 1);
    }),
    check("PopUp Window", "on load: a blocked one is offered in a box", async (v) => {
        const features = /window\.open[^"]*/.exec(popup("load").body)[0];
        for (const options of [
            { attributes: `onLoad="${features}"` },
            {
                attributes: 'onload="window.own = 1"',
                script: `<script src=orvane.js data-onload="${features}"></script>`,
            },
        ]) {
            await v.show([popup("load")], {
                ...options,
                before: recorder + "window.blocks = true;",
            });
            await wait(100);
            assert.equal((await v.value(() => window.opened)).length, 1);
            assert.match(await v.words("[role=status]"), /news\.html/);
            await v.own(".box > button", (choice) => choice.click());
            assert.equal((await v.value(() => window.opened)).length, 2);
            assert.equal(await v.words("[role=status]"), null);
        }
    }),
    check("PopUp Window", "on exit: offered when the pointer leaves", async (v) => {
        const features = /window\.open[^"]*/.exec(popup("exit").body)[0];
        const authorBody = "<a href=away.html>away</a>";
        const script = `<script src=orvane.js data-onunload="${features}"></script>`;
        for (const options of [{}, { attributes: "onunload='1'", script }]) {
            await v.show([popup("exit")], { ...options, authorBody, before: recorder });
            const opened = await v.value(() => (document.links[0].click(), window.opened.length));
            assert.equal(opened, 1, "by a link that leads away");
            await v.show([popup("exit")], { ...options, before: recorder });
            await wait(50);
            assert.equal(await v.words("[role=status]"), null);
            await v.value(() => {
                const leaves = new MouseEvent("mouseleave", { clientY: -1 });
                document.documentElement.dispatchEvent(leaves);
            });
            await wait(50);
            assert.match(await v.words("[role=status]"), /bye\.html/);
        }
    }),
    check("All-in-One Button", "prints the page", async (v) => {
        const before = "window.print = () => (window.printed = true);";
        await v.show([allInOne("Print the current Web page", "print")], { before });
        await v.tab.click("input[type=button], body a");
        assert.equal(await v.value(() => window.printed), true);
    }),
    check("All-in-One Button", "plays, bookmarks and closes, or says how", async (v) => {
        const press = () => v.tab.click("input[type=button], body a");
        await v.show([allInOne("Play a sound", "sound")], { before: recorder });
        await press();
        assert.match((await v.value(() => window.played)).join(), /ding\.wav$/);
        await v.show([allInOne("Add current Web page to Favorites/Bookmarks", "favorites")]);
        await press();
        await wait(50);
        assert.match(await v.words("[role=status]"), /My page.*Ctrl\+D/);
        await v.show([allInOne("Close the current browser window", "close")], {
            before: "window.close = () => {};",
        });
        await press();
        await wait(500);
        assert.match(await v.words("[role=status]"), /Ctrl\+W/);
    }),
    check("Popup Alert Box", "greets and asks", async (v) => {
        const alerts = ["simple", "prompt"].map((kind) =>
            effect("Popup Alert", "popup_alert_" + kind),
        );
        await v.show(alerts, { before: recorder });
        assert.equal((await v.value(() => window.boxes)).length, 2);
        assert.ok(await v.value(() => document.body.textContent.includes("bob")));
    }),
    check("Password Protection", "asks for the password", async (v) => {
        const gate = { name: "Password", head: text("password_gate_one_head.html") };
        await v.show([gate], { before: recorder + "History.prototype.back = () => {};" });
        assert.match((await v.value(() => window.boxes)).join(), /Please enter password/);
    }),
    check("Pulldown Menu", "leads where its item says", async (v) => {
        await v.show([effect("Pulldown Menu", "pulldown_dropdown")]);
        await v.value(() => (document.querySelector("select").selectedIndex = 1));
        await v.tab.click("input[type=submit]");
        await wait(100);
        assert.match(await v.tab.url(), /#/);
    }),
    check("Anti-Spam Email Link", "puts the address together", async (v) => {
        const body = row("mail_link_lines.tsv", "text");
        await v.show([
            { name: "AntiSpam Email Protection", head: text("mail_link_head.html"), body },
        ]);
        const made = await v.value(() => {
            const page = {};
            new Function("window", `return ${SendEmail}`)(page)("jane", "example", "com", "");
            return page.location;
        });
        assert.equal(made, "mailto:jane@example.com?subject=");
    }),
    ...[
        ["Search Box", "search_box_web"],
        ["Web Page Translator", "translate_box"],
    ].map(([name, file]) =>
        check(name, "sends what the visitor enters", async (v) => {
            await v.show([effect(name, file)]);
            await v.value(() =>
                document.forms[0].addEventListener("submit", (event) => {
                    event.preventDefault();
                    window.sent = event.target.action;
                }),
            );
            await v.tab.click("input[type=submit]");
            assert.match(await v.value(() => window.sent), /^https:/);
        }),
    ),
];
