/** The applets' canvases, at chosen times, against numbers worked out from the rules by hand. */
import assert from "./assert.mjs";
import { effect, picture } from "./pages.mjs";
import { calm, check, recorder, stoppedClock, tabs, wait } from "./tools.mjs";

const images = (file) => [effect("Image Effects", file)];
const still = { before: stoppedClock };

/** Colours are those that are wanted, give or take a little. */
function near(seen, wanted, by = 2) {
    const parts = (text) => text.split(/[ ,]/).map(Number);
    const off = parts(seen).map((part, i) => Math.abs(part - parts(wanted)[i]));
    assert.ok(Math.max(...off) <= by, `${seen} for ${wanted}`);
}

/** A tag with these parameters, written as "NAME=value NAME=value". */
const tag = (code, size, values) =>
    `<APPLET CODE="${code}.class" WIDTH="${size}" HEIGHT="${size}">` +
    `WIZARD=Orvane ${values}</APPLET>`.replace(/(\S+)=(\S+)/g, '<PARAM NAME="$1" VALUE="$2">');

export const appletChecks = [
    check("More Image Effects", "grow from a corner, stay, shrink, and end", async (v) => {
        await v.show([effect("Image Effects 2", "more_image_effects_expand_shrink_full")], still);
        await wait(150);
        const points = "105,70 95,30 150,80";
        const [orange, blue] = ["255,128,0", "0,0,255"];
        near(await v.colors(0, points), `${orange} ${orange} ${orange}`);
        near(await v.colors(755, points), `${blue} ${orange} ${orange}`);
        near(await v.colors(1600, points), `${blue} ${blue} ${blue}`);
        near(await v.colors(2755, points), `${blue} ${orange} ${orange}`);
        near(await v.colors(99999, points), `${orange} ${orange} ${orange}`);
        assert.equal(await v.button(), null, "no button once it has ended");
        assert.match(
            await v.own("a", (a) => `${a.offsetWidth} ${a.offsetHeight} ${a}`),
            /^200 150 http:/,
        );
    }),
    check("Advanced Animator", "waits for a click, plays a sound, slides", async (v) => {
        const change = (html) => html.replace(/URL.0 VALUE="[^"]*"/, 'URL.0 VALUE="null"');
        const au = "\x2esnd\0\0\0\x18\0\0\0\x08\0\0\0\x01\0\0\x1f\x40\0\0\0\x01abcdefgh";
        const options = { change, before: stoppedClock + recorder, files: { "ding.au": au } };
        await v.show([effect("Animation", "advanced_animator_full")], options);
        await wait(250);
        near(await v.colors(5000, "160,100 5,5"), "255,0,0 255,128,0");
        assert.match((await v.value(() => window.played)).join(), /^blob:/);
        const label = await v.own("canvas[role=img]", (canvas) =>
            canvas.getAttribute("aria-label"),
        );
        assert.equal(label, "Animation");
        await v.own("canvas", (canvas) => canvas.click());
        near(await v.colors(5000 + 25 * 30 + 5, "214,66 20,100"), "0,0,255 255,128,0");
    }),
    check("Typewriter Text", "types, rests, begins again; unmoved it shows all", async (v) => {
        const typewriter = [effect("Typewriter", "typewriter_full")];
        await v.show(typewriter, still);
        await wait(150);
        const end = 101 * "Welcome tomy home page!Enjoy.".length;
        const [none, half, all] = [
            await v.dark(100),
            await v.dark(101 * 15),
            await v.dark(end + 1999),
        ];
        assert.equal(none, 0);
        assert.ok(half > 100 && all > half, `${half} ${all}`);
        assert.equal(await v.dark(end + 2001), 0);
        await v.show(typewriter, { before: calm });
        await wait(300);
        assert.equal(await v.dark(0), all);
        assert.equal(await v.button(), "Play the moving picture");
        const gone = (html) => html.replace(/TEXT.0 VALUE="[^"]*"/, "TEXTFILE VALUE=none.txt");
        await v.show(typewriter, { change: (html) => gone(html).replace("BACKGROUND", "X") });
        await wait(150);
        assert.ok((await v.dark(0)) > 60, "words that tell of the missing file");
        const label = await v.own("canvas", (canvas) => canvas.getAttribute("aria-label"));
        const onDisk = await v.value(() => location.protocol === "file:");
        assert.match(label, onDisk ? /no page on the disk/ : /could not be loaded/);
        await v.show(typewriter, { before: "window.devicePixelRatio = 2;" });
        await wait(150);
        assert.equal(await v.own("canvas", (c) => [c.width, c.offsetWidth]), [600, 300], "sharp");
    }),
    check("Image Cube", "turns about its axes with the picture on its faces", async (v) => {
        await v.show(images("image_effects_cube"), still);
        await wait(200);
        const points = "150,100 170,100 150,70 5,5";
        const front = "129,129,128 193,129,128 129,33,128 10,20,255";
        near(await v.colors(0, points), front, 3);
        near(await v.colors(900, points), front, 3);
        assert.notEqual(await v.colors(450, points), front);
    }),
    check("Lake Reflection", "mirrors the picture in moving rows", async (v) => {
        await v.show(images("image_effects_lake"), still);
        await wait(200);
        near(await v.colors(0, "10,20 10,104"), "10,40,0 10,192,0");
        near(await v.colors(250, "10,104"), "10,190,0");
        assert.equal(await v.value(() => document.querySelector("applet > img").offsetWidth), 0);
    }),
    check("Image Ripple", "moves the picture's points along the waves", async (v) => {
        await v.show(images("image_effects_ripple"), still);
        await wait(200);
        near(await v.colors(0, "174,50"), "255,50,0");
        near(await v.colors(625, "174,50"), "0,50,0");
    }),
    check("Image Fade", "mixes two pictures, with the link of the one that stands", async (v) => {
        await v.show([effect("Image Fade", "image_fade_two_images")], still);
        await wait(150);
        near(await v.colors(2637, "5,5"), "136,0,119");
        near(await v.colors(2780, "5,5"), "0,0,255");
        assert.match(await v.own("a", (a) => a.href), /^http:/);
    }),
    check("Image Cube", "stands where its tag says, and says what is missing", async (v) => {
        const html = (text) =>
            text
                .replace("<APPLET ", '<APPLET ALIGN="right" HSPACE="7" VSPACE="5" ')
                .replace("face.gif", "gone.gif");
        const authorBody = "<p id=own style='margin:0'>Words</p>";
        await v.show(images("image_effects_cube"), { change: html, authorBody, ...still });
        await wait(200);
        const canvas = await v.own("canvas", (canvas) => {
            const at = canvas.getBoundingClientRect();
            const body = document.body.getBoundingClientRect();
            return [body.right - at.right, at.y - body.y, at.width, at.height];
        });
        assert.equal(canvas, [7, 5, 300, 200]);
        assert.ok((await v.dark(0)) > 25, "words in place of the picture");
        assert.match(await v.own("canvas", (canvas) => canvas.ariaLabel), /gone\.gif/);
    }),
    check("Image Cube", "is stopped and started by the keyboard", async (v) => {
        const drawn = () => v.value(() => window.drawn);
        for (const before of [tabs, calm]) {
            await v.show(images("image_effects_cube"), { before });
            await wait(300);
            const moves = before === tabs;
            const press = async (name) => {
                assert.equal(await v.button(), `${name} the moving picture`);
                await v.tab.keyboard.press("Enter");
                await wait(100);
            };
            await v.tab.keyboard.press("Tab");
            if (moves) await press("Pause");
            const stopped = await drawn();
            await wait(300);
            assert.equal(await drawn(), stopped);
            await press("Play");
            assert.notEqual(await drawn(), stopped);
        }
    }),
    check("Image Cube", "rests off the screen and by the visitor's wish", async (v) => {
        const before = tabs + calm + "motion.matches = false;";
        const authorBody = "<div style='height:3000px'></div>";
        await v.show(images("image_effects_cube"), { before, authorBody });
        await wait(300);
        const draws = async () => {
            await wait(100);
            const first = await v.value(() => drawn);
            await wait(200);
            return (await v.value(() => drawn)) > first;
        };
        for (const [act, wanted] of [
            ["1", true],
            ["wish(true)", false],
            ["wish(false)", true],
            ["scrollTo(0, 2000)", false],
            ["scrollTo(0, 0)", true],
        ]) {
            await v.value(act);
            assert.equal(await draws(), wanted, act);
        }
        const still = (html) => html.replace(/FRAMES VALUE="?\d+"?/i, "FRAMES VALUE=1");
        await v.show(images("image_effects_ripple"), { change: still });
        await wait(200);
        assert.equal(await draws(), false, "one wave");
    }),
    check(null, "canvases flash three times a second at most", async (v) => {
        const short = "TRANSITION.STEP.0=2 TRANSITION.RATE.0=0 PAUSE.0=10 PAUSE.1=10";
        const [black, white] = [
            [0, 0, 0],
            [255, 255, 255],
        ];
        for (const [code, values, colors = [black, white], size = 40] of [
            ["Animate1", "PAUSE.0=10 PAUSE.1=10"],
            [
                "Animate1",
                "PAUSE.0=10 PAUSE.1=10",
                [
                    [128, 0, 0],
                    [0, 0, 128],
                ],
            ],
            ["Animate1", "PAUSE.0=10 PAUSE.1=10", [black, white], 400],
            ["Animate1", `${short} TRANSITION.LIST=x TRANSITION.TYPE.0=slidein(2)`],
            ["Animate1", `${short} TRANSITION.TYPE.1=shutter(1) FGCOLOR.0=128,128,128`],
            ["ImageFade2ech", "PAUSE=0 TRANSITION.STEPS=1 TRANSITION.SPEED=1000"],
        ]) {
            const side = Math.min(size, 160);
            const bytes = (color) => picture(side, side, () => [...color]);
            const url = (color) =>
                "data:image/bmp;base64," +
                btoa(Array.from(bytes(color), (byte) => String.fromCharCode(byte)).join(""));
            const named = colors.map((color, i) => `IMAGE.${i}=${url(color)}`).join(" ");
            const body = tag(code, size, `${values} ${named}`);
            await v.show([{ name: "Animation", body }], still);
            await wait(200);
            const longest = await v.own("canvas", (canvas) => {
                const pen = canvas.getContext("2d");
                const changes = [];
                for (let t = 0, before; t < 3000; t += 5) {
                    turn(t);
                    const [light] = pen.getImageData(canvas.width / 2, canvas.width / 2, 1, 1).data;
                    if (Math.abs(light - (before ?? light)) > 25) changes.push(t);
                    before = light;
                }
                return Math.max(
                    ...changes.map((at) => changes.filter((t) => t >= at && t < at + 1000).length),
                );
            });
            assert.ok(longest > 1 && longest <= 7, `${code} ${values}: ${longest} changes`);
        }
    }),
    check(null, "no size, number or lack in an applet's tag stops the page", async (v) => {
        const numbers = "PAUSE PAUSE.0 TRANSITION.STEP.0 TRANSITION.STEPS TRANSITION.SPEED SPEED";
        const kinds = ["Animate1", "Typewriter9", "TmapCube", "Lake", "ripple", "ImageFade2ech"];
        for (const size of [99999999, 3, 40])
            for (const images of ["IMAGE=gone.gif IMAGE.0=gone.gif IMAGE.1=a.gif", ""])
                for (const number of ["0", "9".repeat(400)]) {
                    const values = `${numbers.replace(/(?= |$)/g, `=${number}`)} ${images} TEXT.0=a`;
                    const body = kinds.map((code) => tag(code, size, values)).join("");
                    await v.show([{ name: "Animation", body }]);
                    await wait(50);
                }
        assert.ok((await v.dark(0)) > 10, "words that tell of the missing images");
    }),
];
