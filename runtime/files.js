/** Files beside the page. */

/**
 * The bytes of a file, or null when it cannot be read. Asked for in the older of the two ways,
 * which browsers allow for pages on the disk too where they allow it at all.
 * @param {string} url
 * @returns {Promise<ArrayBuffer | null>}
 */
export function read(url) {
    return new Promise((done) => {
        const request = new XMLHttpRequest();
        request.responseType = "arraybuffer";
        // A file on the disk has no status; one that is not there has no bytes either.
        request.onload = () =>
            done([0, 200].includes(request.status) && request.response ? request.response : null);
        request.onerror = () => done(null);
        try {
            request.open("GET", url);
            request.send();
        } catch {
            done(null);
        }
    });
}
