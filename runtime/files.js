/** Files beside the page. */

/**
 * The bytes of a file, or null when it cannot be read. By XMLHttpRequest and not by fetch():
 * browsers that let a page on the disk read files at all do so only by the former.
 * @param {string} url
 * @returns {Promise<ArrayBuffer | null>}
 */
export function read(url) {
    return new Promise((done) => {
        const request = new XMLHttpRequest();
        request.responseType = "arraybuffer";
        // A file on the disk has no status; one that is not there has no bytes either.
        request.onload = () =>
            done([0, 200].includes(request.status) && request.response?.byteLength ? request.response : null);
        request.onerror = () => done(null);
        try {
            request.open("GET", url);
            request.send();
        } catch {
            done(null);
        }
    });
}
