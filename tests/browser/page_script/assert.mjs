/** What a check holds to be so, said in the same words in every engine. */

/** @param {boolean} holds @param {string} fault */
function must(holds, fault) {
    if (!holds) throw new Error(fault);
}

const said = (value) => (value instanceof RegExp ? String(value) : JSON.stringify(value));

export default {
    ok: (value, fault = `${said(value)} does not hold`) => must(Boolean(value), fault),
    equal: (seen, wanted, fault = `${said(seen)} for ${said(wanted)}`) =>
        must(said(seen) === said(wanted), fault),
    notEqual: (seen, other) => must(said(seen) !== said(other), `${said(seen)} again`),
    match: (seen, wanted) => must(wanted.test(seen), `${said(seen)} for ${said(wanted)}`),
    doesNotMatch: (seen, other) => must(!other.test(seen), `${said(seen)} is ${said(other)}`),
};
