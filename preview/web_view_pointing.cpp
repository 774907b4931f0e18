#include "preview/web_view_pointing.h"

#include "windows/qt_text.h"

#include <QStringList>

namespace orvane {

namespace {

constexpr QLatin1String placeReport("place=");

/// What the author sees lies in one element of its own above all of the page, out of reach of the
/// page's styles. It takes the mouse, so that links, frames and scripts of the page get nothing.
const char* const pointingScript = R"js({
    const attribute = '%1';
    const host = document.createElement('orvane-pointing');
    for (const [name, value] of [['all', 'initial'], ['display', 'block'], ['position', 'fixed'],
                                 ['inset', '0'], ['z-index', '2147483647'],
                                 ['cursor', 'crosshair']])
        host.style.setProperty(name, value, 'important');
    const root = host.attachShadow({mode: 'closed'});
    const addBox = (style) => {
        const box = document.createElement('div');
        box.style.cssText = 'position: fixed; box-sizing: border-box; display: none;' + style;
        root.append(box);
        return box;
    };
    const frame = addBox('border: 2px solid #06c; background: rgb(0 102 204 / 0.12)');
    const edge = addBox('height: 6px; background: #c00');
    const words = addBox('padding: 2px 6px; background: #c00; color: #fff; font: 13px sans-serif;' +
                         'white-space: nowrap');
    const show = (box, isShown) => box.style.display = isShown ? 'block' : 'none';

    const placeOf = (part, y) => {
        const box = part.getBoundingClientRect();
        return {number: part.getAttribute(attribute), box,
                isBehind: y > (box.top + box.bottom) / 2};
    };
    const wayTo = (part, x, y) => {
        const box = part.getBoundingClientRect();
        return Math.hypot(Math.max(box.left - x, x - box.right, 0),
                          Math.max(box.top - y, y - box.bottom, 0));
    };
    // The part at that point of the window or, where none is, the next one to it; above and below
    // all of them the top and the end of the page.
    const placeAt = (x, y) => {
        for (const element of document.elementsFromPoint(x, y)) {
            const part = element.closest(`[${attribute}]`);
            if (part)
                return placeOf(part, y);
        }
        const parts = [...document.querySelectorAll(`[${attribute}]`)];
        const middle = {top: innerHeight / 2, bottom: innerHeight / 2};
        const first = parts[0]?.getBoundingClientRect() ?? middle;
        const last = parts[parts.length - 1]?.getBoundingClientRect() ?? middle;
        if (parts.length && y >= first.top && y <= last.bottom) {
            const next = parts.map((part) => ({part, way: wayTo(part, x, y)}))
                              .reduce((best, other) => other.way < best.way ? other : best);
            return placeOf(next.part, y);
        }
        return {number: '', isBehind: y > last.bottom,
                box: {left: 0, right: innerWidth, top: first.top, bottom: last.bottom}};
    };
    const frameAt = (x, y) => {
        const place = placeAt(x, y);
        show(frame, place.number);
        show(edge, true);
        show(words, true);
        const {box, isBehind} = place;
        const left = Math.max(box.left, 0), right = Math.min(box.right, innerWidth);
        const top = Math.max(box.top, 0), bottom = Math.min(box.bottom, innerHeight);
        const at = Math.min(Math.max((isBehind ? bottom : top) - 3, 0), innerHeight - 6);
        frame.style.left = edge.style.left = left + 'px';
        frame.style.width = edge.style.width = right - left + 'px';
        frame.style.top = top + 'px';
        frame.style.height = bottom - top + 'px';
        edge.style.top = at + 'px';
        words.textContent = place.number ? (isBehind ? 'After this part' : 'Before this part')
                                         : (isBehind ? 'At the end' : 'At the top');
        words.style.left = Math.max(Math.min(left, innerWidth - words.offsetWidth), 0) + 'px';
        const above = at - 22, below = at + 6;
        const isBelow = isBehind ? below + 24 <= innerHeight : above < 0;
        words.style.top = (isBelow ? below : above) + 'px';
    };
    for (const name of ['mousedown', 'mouseup', 'mousemove', 'mouseleave', 'click', 'dblclick',
                        'auxclick', 'contextmenu', 'pointerdown', 'pointerup', 'pointermove'])
        host.addEventListener(name, (event) => {
            event.stopPropagation();
            event.preventDefault();
            if (name === 'mousemove')
                frameAt(event.clientX, event.clientY);
            if (name === 'mouseleave')
                [frame, edge, words].forEach((box) => show(box, false));
            if (name === 'click' && event.isTrusted) {
                const place = placeAt(event.clientX, event.clientY);
                console.debug(`%2${place.number},${Number(place.isBehind)}`);
            }
        });
    document.documentElement.append(host);
})js";

} // namespace

QString PointingScript(const QString& token)
{
    return QString::fromLatin1(pointingScript)
        .arg(QLatin1String(partAttribute.data(), static_cast<int>(partAttribute.size())),
             token + placeReport);
}

QString ScrollingScript(const Text& mark)
{
    QString quoted = ToQt(mark);
    quoted.replace(u'\\', QLatin1String("\\\\")).replace(u'\'', QLatin1String("\\'"));
    return QStringLiteral(R"js({
    const walker = document.createTreeWalker(document.body ?? document, NodeFilter.SHOW_COMMENT);
    while (walker.nextNode() && !walker.currentNode.data.includes('%1'));
    let part = walker.currentNode.nextElementSibling;
    while (part && !part.getClientRects().length && part.nextElementSibling)
        part = part.nextElementSibling;
    if (walker.currentNode.data?.includes('%1'))
        (part ?? walker.currentNode.parentElement).scrollIntoView({block: 'center'});
})js")
        .arg(quoted);
}

std::optional<PointedPlace> PlaceIn(const QString& report)
{
    if (!report.startsWith(placeReport))
        return std::nullopt;
    const QStringList parts = report.mid(placeReport.size()).split(u',');
    PointedPlace place{.IsBehind = parts.value(1) == QLatin1String("1")};
    if (!parts.front().isEmpty())
        place.Part = parts.front().toInt();
    return place;
}

} // namespace orvane
