// What a page downloads, and how much it may be: node sizes.mjs PACKAGE [all|one]
// Sizes are those of `gzip -9`, as a server sends files. Ends with an error beyond a budget.
import { readFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

/** In bytes: with all pickers, and with one alone. */
export const budgets = { all: 100 * 1024, one: 75 * 1024 };

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

if (process.argv[1] === fileURLToPath(import.meta.url)) {
    const [folder, kind = 'all'] = process.argv.slice(2);
    const sizes = JSON.parse(readFileSync(path.join(folder, 'sizes.json'), 'utf8'));
    console.log(table(sizes));
    let isOver = false;
    for (const row of downloads(sizes)) {
        const left = budgets[kind] - row.gzip;
        console.log(`${row.parts.join(' + ')}: ${row.gzip} of ${budgets[kind]} bytes, ${left < 0 ? `${-left} too many` : `${left} left`}`);
        isOver ||= left < 0;
    }
    if (isOver) {
        console.error('The download is larger than its budget: measure what has come in, or what can be left out.');
        process.exit(1);
    }
}
