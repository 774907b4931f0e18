/** The pictures of a block. */

/**
 * Copies of a block's pictures that load now; those after the first wait in the page until then.
 * @param {HTMLElement} root
 */
export function pictures(root) {
    const copies = [...root.querySelectorAll("img")].map((picture) => {
        const copy = /** @type {HTMLImageElement} */ (picture.cloneNode());
        copy.loading = "eager";
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
