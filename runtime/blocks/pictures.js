/** The pictures of a block. */

/** A box that is as large as its pictures. */
export const framesCss =
    ".box{display:inline-block;position:relative;max-width:100%;vertical-align:top}" +
    "li{display:grid;place-items:center}a,img{display:block}" +
    "img{max-width:100%;height:auto}";

/**
 * Lets the pictures of an item load, in the size that the author asks for.
 * @param {HTMLElement} item
 * @param {{width?: number, height: number, fit?: string}} asked
 */
export function sized(item, { width, height, fit = "" }) {
    for (const picture of item.querySelectorAll("img")) {
        picture.loading = "eager";
        const { style } = picture;
        style.objectFit = fit;
        if (width || height) style.width = width ? width + "px" : "auto";
        if (height) style.height = height + "px";
    }
}

/**
 * Copies of a block's pictures that load now; those after the first wait in the page until then.
 * @param {HTMLElement} root
 */
export function pictures(root) {
    const copies = [...root.querySelectorAll("img")].map((picture) => {
        const copy = /** @type {HTMLImageElement} */ (picture.cloneNode());
        copy.loading = "eager";
        copy.hidden = false;
        return copy;
    });
    if (!copies[0]) throw 0;
    return copies;
}

/**
 * Those of the pictures that there are, once they can be shown without delay.
 * @param {HTMLImageElement[]} copies
 */
export async function decoded(copies) {
    const ready = await Promise.all(
        copies.map((copy) =>
            copy.decode().then(
                () => true,
                () => false,
            ),
        ),
    );
    return copies.filter((_, i) => ready[i]);
}
