// What is a box or a window of the browser's own elsewhere lies within the page here, where pages are shown as samples.
(() => {
    const add = (box) => document.body?.append(box) ?? addEventListener("load", () => document.body.append(box));
    const make = (name, css, ...content) => {
        const element = document.createElement(name);
        element.style.cssText = css;
        element.append(...content);
        return element;
    };
    const paper = "position:fixed;z-index:9;color:#222;text-align:left;border-radius:8px;box-shadow:0 4px 16px #0009;";
    const font = "font:22px/1.25 'DejaVu Sans',sans-serif;";
    const show = (words, ...field) => {
        const button = make("button", `${font}background:#205080;color:#fff;border:0;padding:4px 18px;border-radius:6px`, "OK");
        const line = make("div", "display:flex;gap:8px;justify-content:flex-end;margin-top:12px", ...field, button);
        const box = make("div", `${paper}${font}inset:24px 14px auto;background:#f4f4f4;padding:14px`, words, line);
        button.onclick = () => box.remove();
        add(box);
    };
    window.alert = (words) => show(words);
    window.confirm = (words) => show(words);
    window.prompt = (words) => {
        show(words, make("input", `${font}flex:1;min-width:0`));
        throw new Error("The box waits for the visitor.");
    };
    window.open = (address, _name, features) => {
        const { left, top, width, height } = Object.fromEntries(String(features).split(",").map((one) => one.split("=")));
        const page = make("iframe", "border:0;width:100%;height:100%");
        page.src = address;
        add(make("div", `${paper}left:${left}px;top:${top}px;width:${width}px;height:${height}px;background:#fff;overflow:hidden`, page));
        return { focus() {}, closed: false };
    };
    // Samples lead nowhere, save to the sample of a page.
    addEventListener("click", (event) => {
        const link = event.composedPath()[0].closest?.("a[href]");
        if (link && !link.href.endsWith("/news.html")) event.preventDefault();
    });
    addEventListener("submit", (event) => event.preventDefault());
})();
