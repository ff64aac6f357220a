// What a page downloads, and how much it may be:
//   node sizes.mjs PACKAGE                  of all pickers
//   node sizes.mjs PACKAGE ELEMENT          of one alone; also that the package's table says so
//   node sizes.mjs PACKAGE ELEMENT --write  puts it into that table
// Sizes are those of `gzip -9`, as a server sends files. Ends with an error beyond a budget.
import { readFileSync, writeFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

/**
 * In KiB, in either way: with all pickers and the largest language, and with one alone in English.
 */
export const budgets = { all: 100, one: 75 };

/** The downloads of a page whose language is the largest one: its rows, each with its parts. */
export function downloads(sizes) {
    const language = Object.keys(sizes)
        .filter((name) => name.startsWith('languages/'))
        .sort((one, other) => sizes[other].gzip - sizes[one].gzip)[0];
    return [
        { name: 'One file: `gxuipickers.js`', parts: ['gxuipickers.js', language] },
        { name: 'Two files: `asset.js`, `gxuipickers.wasm`', parts: ['asset.js', 'gxuipickers.wasm', language] },
    ].map((row) => ({
        ...row,
        language,
        english: sum(sizes, row.parts.slice(0, -1)),
        gzip: sum(sizes, row.parts),
    }));
}

const sum = (sizes, names) => names.reduce((total, name) => total + sizes[name].gzip, 0);
const kib = (bytes) => `${(bytes / 1024).toFixed(1)} KiB`;

/** As Markdown. */
export function table(sizes) {
    const rows = downloads(sizes);
    return [
        `| Download, gzipped | English | with the largest language, \`${path.basename(rows[0].language, '.js')}\` |`,
        '|---|---|---|',
        ...rows.map((row) => `| ${row.name} | ${kib(row.english)} | ${kib(row.gzip)} |`),
    ].join('\n');
}

/** What was measured last of each element alone, in bytes, in the order of `downloads`. */
const ofOneFile = fileURLToPath(new URL('package/sizes-of-one.json', import.meta.url));
export const readSizesOfOne = () => JSON.parse(readFileSync(ofOneFile, 'utf8'));

/** Compilers differ a little from one patch to the next; beyond that the table is out of date. */
const tolerance = 512;

/** The sizes of each element alone, with the largest language, as Markdown. */
export function tableOfOne(sizesOfOne) {
    const rows = Object.entries(sizesOfOne).map(([name, [oneFile, twoFiles]]) => `| \`${name}\` | ${kib(oneFile)} | ${kib(twoFiles)} |`);
    return ['| One element alone, gzipped | One file | Two files |', '|---|---|---|', ...rows].join('\n');
}

/** Whether the table says what was measured; or makes it say so. */
function compareSizesOfOne(element, measured, isWriting) {
    const known = readSizesOfOne();
    if (isWriting) {
        known[element] = measured;
        const sorted = Object.fromEntries(Object.entries(known).sort(([one], [other]) => (one < other ? -1 : 1)));
        writeFileSync(ofOneFile, JSON.stringify(sorted, null, 4).replace(/\[\s+(\d+),\s+(\d+)\s+\]/g, '[$1, $2]') + '\n');
        return true;
    }
    const isCurrent = known[element]?.every((bytes, i) => Math.abs(bytes - measured[i]) <= tolerance) ?? false;
    if (!isCurrent) console.error(`package/sizes-of-one.json says ${known[element]} of ${element}: run scripts/web sizes.`);
    return isCurrent;
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
    const [folder, element, option] = process.argv.slice(2);
    const budget = (element ? budgets.one : budgets.all) * 1024;
    const sizes = JSON.parse(readFileSync(path.join(folder, 'sizes.json'), 'utf8'));
    console.log(table(sizes));
    let isOver = false;
    for (const row of downloads(sizes)) {
        const [parts, size] = element ? [row.parts.slice(0, -1), row.english] : [row.parts, row.gzip];
        const left = budget - size;
        console.log(`${parts.join(' + ')}: ${size} of ${budget} bytes, ${left < 0 ? `${-left} too many` : `${left} left`}`);
        isOver ||= left < 0;
    }
    if (isOver) console.error('The download is larger than its budget: measure what has come in, or what can be left out.');
    const measured = downloads(sizes).map(({ gzip }) => gzip);
    if ((element && !compareSizesOfOne(element, measured, option === '--write')) || isOver) process.exit(1);
}
