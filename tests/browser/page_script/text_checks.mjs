/** Texts that move, tell the time or point things out. */
import assert from "./assert.mjs";
import { effect } from "./pages.mjs";
import { calm, check, wait } from "./tools.mjs";

const starts = 'onLoad="scrollit_r2l(99)"';
const ticker = effect("Status Bar Scroller", "status_bar_ticker");
const scroller = effect("Vertical Scrolling Text", "vertical_scroller_bare");
const clock = effect("DigitalClock", "digital_clock_both_day_of_week");
const tooltip = effect("Tooltip", "tooltip_text");

/** A point on the words that have the tooltip. */
const pointOnWords = (v) =>
    v.value(() => {
        const { x, y } = document.querySelector("[onmousemove]").getBoundingClientRect();
        return [x + 4, y + 4];
    });

export const textChecks = [
    check("Status Bar Text Ticker", "moves in a strip that lets clicks through", async (v) => {
        await v.show([ticker], {
            attributes: starts,
            authorBody: "<a href='#x' id=low style='position:fixed;left:200px;bottom:2px'>low</a>",
        });
        await wait(350);
        const first = await v.words(".shown");
        await wait(400);
        const later = await v.words(".shown");
        assert.match(first, /^ {80,}Welcome to my page!$/);
        assert.ok(later.length < first.length);
        assert.equal(await v.words(".words"), "Welcome to my page!");
        const at = await v.value(() => {
            const box = low.getBoundingClientRect();
            return document.elementFromPoint(box.x + 3, box.y + 3).id;
        });
        assert.equal(at, "low");
    }),
    check("Status Bar Text Ticker", "stands still and whole when motion is unwanted", async (v) => {
        const long = "Welcome to my page! ".repeat(20).trim();
        const head = ticker.head.replace("Welcome to my page!", long);
        await v.show([{ ...ticker, head }], { attributes: starts, before: calm });
        await wait(500);
        assert.equal(await v.words(".shown"), long);
        const whole = await v.own(".strip", (strip) => {
            const [button, , shown] = strip.children;
            const { width, height } = button.getBoundingClientRect();
            const { right, bottom } = shown.getBoundingClientRect();
            return [width >= 24, height >= 24, right <= innerWidth, bottom <= innerHeight];
        });
        assert.equal(whole, [true, true, true, true]);
        await v.tab.keyboard.press("Tab");
        await v.tab.keyboard.press("Enter");
        await wait(600);
        assert.equal(await v.button(), "Pause the moving text");
    }),
    check("Vertical Scrolling Text", "has its size and moves up", async (v) => {
        await v.show([scroller], { attributes: 'onLoad="moveSpan()"' });
        const top = () => v.value(() => parseInt(spnOne.style.top));
        await v.value(() => {
            const real = Object.getOwnPropertyDescriptor(HTMLElement.prototype, "offsetHeight");
            window.asked = 0;
            Object.defineProperty(HTMLElement.prototype, "offsetHeight", {
                get() {
                    window.asked++;
                    return real.get.call(this);
                },
            });
        });
        const box = await v.value(() => [divContainer.offsetWidth, divContainer.offsetHeight]);
        const sizes = /width:(\d+); height:(\d+)/.exec(scroller.body);
        assert.equal(box, [Number(sizes[1]), Number(sizes[2])]);
        const first = await top();
        await wait(600);
        assert.ok((await top()) < first, "moves");
        if (v.script) assert.ok((await v.value(() => asked)) < 10, "layouts");
    }),
    check("Vertical Scrolling Text", "can be stopped", async (v) => {
        await v.show([scroller], { attributes: 'onLoad="moveSpan()"' });
        const top = () => v.value(() => spnOne.style.top);
        assert.equal(await v.button(), "Pause the scrolling text");
        await v.own("button", (button) => button.click());
        const still = await top();
        await wait(400);
        assert.equal(await top(), still, "the button stops it");
    }),
    check("Vertical Scrolling Text", "shows its message when motion is unwanted", async (v) => {
        await v.show([scroller], { attributes: 'onLoad="moveSpan()"', before: calm });
        const place = () =>
            v.value(
                () => divContainer.getBoundingClientRect().y - spnOne.getBoundingClientRect().y,
            );
        await wait(300);
        const first = await place();
        assert.ok(Math.abs(first) < 5, `${first}`);
        await wait(300);
        assert.equal(await place(), first);
        assert.equal(await v.button(), "Play the scrolling text");
    }),
    check(
        "Vertical Scrolling Text",
        "goes at its speed after mouse and focus have left",
        async (v) => {
            const link = '<a href="#x" id=link>more</a>';
            const body = scroller.body
                .replace("<nobr>", `<nobr>${link}`)
                .replace("top:150", "top:60");
            await v.show([{ ...scroller, body }], { attributes: 'onLoad="moveSpan()"' });
            await v.value(() => {
                window.steps = 0;
                const step = window.moveSpan;
                window.moveSpan = () => (window.steps++, step());
                link.focus();
                spnOne.dispatchEvent(new MouseEvent("mouseover"));
                spnOne.dispatchEvent(new MouseEvent("mouseout"));
                link.blur();
            });
            await wait(500);
            const speed = Number(/speed = (\d+)/.exec(scroller.head)[1]);
            const steps = await v.value(() => window.steps);
            assert.ok(steps > 2 && steps <= 500 / speed + 8, `${steps} steps of ${speed} ms`);
        },
    ),
    check("Digital Clock", "shows the time", async (v) => {
        await v.show([clock]);
        await wait(300);
        assert.match(await v.value(() => spnClock.textContent), /^\w+day, \d+\/\d+\/\d{4}/);
    }),
    check("Digital Clock", "has its padding and lets other effects start", async (v) => {
        await v.show([ticker, clock], { attributes: starts });
        await wait(300);
        assert.equal(await v.value(() => getComputedStyle(spnClock).paddingTop), "5px");
        assert.match(await v.words(".shown"), /Welcome/);
    }),
    check("Tooltips", "come up at the mouse", async (v) => {
        await v.show([tooltip]);
        await v.tab.mouse.move(...(await pointOnWords(v)));
        await wait(100);
        assert.equal(await v.value(() => box1.style.visibility), "visible");
    }),
    check("Tooltips", "are in place on scrolled pages", async (v) => {
        await v.show([tooltip], { authorBody: "<div style='height:2000px'></div>" });
        await v.value(() => {
            const words = document.querySelector("[onmousemove]");
            words.style.cssText = "position:absolute;top:900px;left:50px";
            scrollTo(0, 700);
        });
        const spot = await pointOnWords(v);
        await v.tab.mouse.move(...spot);
        await wait(100);
        const shown = await v.value(() => {
            const { x, bottom, width } = box1.getBoundingClientRect();
            return [getComputedStyle(box1).visibility, x, bottom, width > 100];
        });
        assert.equal(shown[0], "visible");
        assert.ok(
            Math.abs(shown[1] - spot[0] - 10) < 2 && Math.abs(shown[2] - spot[1]) < 2,
            `${shown} at ${spot}`,
        );
        assert.ok(shown[3], "its width");
        await v.tab.mouse.move(700, 300);
        await wait(50);
        assert.equal(await v.value(() => box1.style.visibility), "hidden");
        await v.value(() => {
            const words = document.querySelector("[onmousemove]");
            words.style.cssText = "position:fixed;right:0;bottom:0";
        });
        await v.tab.mouse.move(...(await pointOnWords(v)));
        await wait(50);
        const inside = await v.value(() => {
            const { left, top, right, bottom } = box1.getBoundingClientRect();
            return left >= 0 && top >= 0 && right <= innerWidth && bottom <= innerHeight;
        });
        assert.ok(inside, "on the screen");
    }),
    check("Tooltips", "come up by keyboard and touch", async (v) => {
        await v.show([tooltip]);
        await wait(50);
        await v.tab.keyboard.press("Tab");
        assert.equal(await v.value(() => box1.style.visibility), "visible");
        if (!(await v.value(() => "TouchEvent" in window))) return;
        await v.show([tooltip]);
        await v.tab.touchscreen.tap(...(await pointOnWords(v)));
        await wait(400);
        assert.equal(await v.value(() => box1.style.visibility), "visible", "by touch");
    }),
    check(null, "texts have the sizes and places of pages without a doctype", async (v) => {
        const boxes = [];
        for (const doctype of [true, false]) {
            await v.show([scroller, clock, tooltip], { doctype, before: calm });
            await wait(300);
            const boxOf = (name) => {
                const { x, y, width, height } = window[name].getBoundingClientRect();
                // How high a line is that words stand in depends on the page's font there.
                return [name, x, name === "spnOne" ? "" : y, width, height].join(" ");
            };
            boxes.push(
                await v.value(`["divContainer", "spnOne", "spnClock", "box1"].map(${boxOf})`),
            );
        }
        assert.equal(boxes[0], boxes[1]);
    }),
];
