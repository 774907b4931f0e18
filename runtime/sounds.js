/**
 * Sounds that pages play. Browsers play none before the visitor's first click or key on the page.
 */

import { read } from "./files.js";

/** Addresses that browsers can play, by the page's own. @type {Map<string, Promise<string>>} */
const known = new Map();

/**
 * The value of one byte of mu-law sound, from -32124 to 32124.
 * @param {number} byte
 */
function loudness(byte) {
    const kept = ~byte & 255;
    const size = ((((kept & 15) << 3) + 132) << ((kept >> 4) & 7)) - 132;
    return kept & 128 ? -size : size;
}

/**
 * A mu-law .au sound (eight bits a sample) as a WAV file, which every browser plays; the bytes of
 * any other sound stay as they are.
 * @param {ArrayBuffer} bytes
 */
function playable(bytes) {
    const from = new DataView(bytes);
    if (bytes.byteLength < 24 || from.getUint32(0) !== 0x2e736e64 || from.getUint32(12) !== 1)
        return new Blob([bytes]);
    const start = from.getUint32(4);
    const rate = from.getUint32(16);
    const channels = from.getUint32(20);
    const length = 2 * (bytes.byteLength - start);
    const to = new DataView(new ArrayBuffer(44 + length));
    const words = [
        0x46464952,
        36 + length,
        0x45564157,
        0x20746d66,
        16,
        1 | (channels << 16),
        rate,
        rate * channels * 2,
        (channels * 2) | (16 << 16),
        0x61746164,
        length,
    ];
    words.forEach((word, i) => to.setUint32(4 * i, word, true));
    for (let i = 0; i < length / 2; i++)
        to.setInt16(44 + 2 * i, loudness(from.getUint8(start + i)), true);
    return new Blob([to.buffer], { type: "audio/wav" });
}

/**
 * An address that plays, for that of an .au sound.
 * @param {string} url @returns {Promise<string>}
 */
async function translated(url) {
    const bytes = await read(url);
    return bytes ? URL.createObjectURL(playable(bytes)) : url;
}

/**
 * Plays a sound once; does nothing when it cannot be played.
 * @param {string} url
 */
export async function play(url) {
    const needsWork = /\.au$/i.test(url);
    if (needsWork && !known.has(url)) known.set(url, translated(url));
    const sound = new Audio(needsWork ? await known.get(url) : url);
    sound.play().catch(() => {});
}

/**
 * Lets a BGSOUND tag play what a handler puts into its `src`.
 * @param {Element} element
 */
export function prepareSound(element) {
    if (element.localName !== "bgsound") return;
    let source = "";
    Object.defineProperty(element, "src", {
        configurable: true,
        get: () => source,
        set(url) {
            source = String(url);
            if (source) play(source);
        },
    });
}
