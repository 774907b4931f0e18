/** Files beside the page. */

/**
 * The bytes of a file, or null when it cannot be read. By XMLHttpRequest and not by fetch():
 * browsers that let a page on the disk read files at all do so only by the former.
 * @param {string} url
 * @returns {Promise<ArrayBuffer | null>}
 */
export const read = (url) =>
    new Promise((done) => {
        const request = new XMLHttpRequest();
        request.responseType = "arraybuffer";
        // A file on the disk has no status; one that is not there has no bytes either.
        request.onload = () =>
            done(request.status < 300 && request.response?.byteLength ? request.response : null);
        request.onerror = () => done(null);
        request.open("GET", url);
        request.send();
    }).catch(() => null);
