// Tables in Markdown of what was measured:
//
//   node benchmarks/web/report.mjs FILE [--write DOCUMENT]
//
// FILE is what run.mjs has kept by --json. --write replaces what stands in DOCUMENT between the
// lines <!-- measured --> and <!-- /measured -->.
import { readFileSync, writeFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { parseArgs } from 'node:util';

export const median = (numbers) => {
    const sorted = numbers.filter((number) => number !== undefined && Number.isFinite(number)).sort((one, other) => one - other);
    if (sorted.length === 0) return undefined;
    const middle = sorted.length / 2;
    return Number.isInteger(middle) ? (sorted[middle - 1] + sorted[middle]) / 2 : sorted[Math.floor(middle)];
};

const shown = (number, digits) =>
    number === undefined
        ? '–'
        : number.toLocaleString('en', { minimumFractionDigits: digits, maximumFractionDigits: digits, useGrouping: false });
/** A median, and in brackets the smallest and the largest where they tell of a spread. */
function spread(numbers, digits) {
    const all = numbers.filter((number) => number !== undefined && Number.isFinite(number));
    const middle = shown(median(all), digits);
    if (all.length < 3) return middle;
    return `${middle} (${shown(Math.min(...all), digits)}–${shown(Math.max(...all), digits)})`;
}

const called = {
    elements: '**GXUIPickers**',
    before: 'GXUIPickers, --before',
    'better-scroll': 'better-scroll wheel',
    ionic: 'Ionic',
    vant: 'vant',
    'react-wheel-picker': 'react-wheel-picker',
    'react-mobile-picker': 'react-mobile-picker',
};

const table = (head, rows) =>
    [head, head.map((_, i) => (i === 0 ? '---' : '---:')), ...rows].map((cells) => `| ${cells.join(' | ')} |`).join('\n');

/** All numbers of a visit's part, such as the frames of its fling. */
const all = (visits, read) => visits.map(read).filter((number) => number !== undefined);
const aFrame = (visits, which) => all(visits, ({ fling }) => (fling && fling.frames > 0 ? fling[which] / fling.frames : undefined));

/** Ours are 1: medians of what each round has beside ours in it. */
function ofOurs(visits, ours, read) {
    const rounds = new Map(ours.map((visit) => [visit.round, read(visit)]).filter(([, value]) => value > 0));
    const shares = visits.filter(({ round }) => rounds.has(round)).map((visit) => read(visit) / rounds.get(visit.round));
    return shown(median(shares), 2);
}
const rendererAFrame = ({ fling }) => (fling && fling.frames > 0 ? fling.renderer / fling.frames : undefined);

const landed = (visits) => {
    const rows = all(visits, ({ fling }) => fling?.row);
    const kinds = [...new Set(rows)].sort((one, other) => one - other);
    return rows.length === 0 ? '–' : kinds.length === 1 ? `${kinds[0]}, ${rows.length} of ${rows.length}` : kinds.join(', ');
};

function startTable(visits, blank) {
    const base = {
        paint: median(all(blank, ({ paint }) => paint)),
        main: median(all(blank, ({ work }) => work?.main)),
        all: median(all(blank, ({ work }) => work?.renderer)),
    };
    const rows = Object.entries(visits)
        .filter(([name]) => name !== 'blank')
        .map(([name, list]) => {
            if (list.some(({ paint }) => paint === undefined)) return [called[name], 'over 20 000', '', '', ''];
            const over = (read, from) => all(list, read).map((number) => number - from);
            return [
                called[name],
                spread(
                    over(({ paint }) => paint, base.paint),
                    0,
                ),
                spread(
                    over(({ work }) => work.main, base.main),
                    0,
                ),
                spread(
                    over(({ work }) => work.renderer, base.all),
                    0,
                ),
                shown(median(all(list, ({ longest }) => longest?.atStart)), 0),
            ];
        });
    return table(['start', 'first paint, ms', 'main thread, ms', 'renderer, ms', 'longest task, ms'], rows);
}

function flingTable(visits) {
    const rows = Object.entries(visits)
        .filter(([name]) => name !== 'blank')
        .map(([name, list]) => [
            called[name],
            spread(aFrame(list, 'main'), 2),
            spread(aFrame(list, 'renderer'), 2),
            ofOurs(list, visits.elements, rendererAFrame),
            spread(aFrame(list, 'gpu'), 2),
            shown(median(all(list, ({ fling }) => fling?.frames)), 0),
            shown(median(all(list, ({ longest }) => longest?.inFling)), 1),
            landed(list),
        ]);
    return table(
        [
            'fling',
            'main thread, ms a frame',
            'renderer, ms a frame',
            'of ours',
            'GPU process, ms a frame',
            'frames',
            'longest task, ms',
            'rows landed on',
        ],
        rows,
    );
}

function footprintTable(visits, blank, downloads) {
    const memory = median(all(blank, ({ footprint }) => footprint?.memory));
    const heap = median(all(blank, ({ footprint }) => footprint?.heap));
    const rows = Object.entries(visits)
        .filter(([name]) => name !== 'blank')
        .map(([name, list]) => [
            called[name],
            ...(downloads ? [shown((downloads[name] - downloads.blank) / 1024, 1)] : []),
            shown(median(all(list, ({ footprint }) => footprint?.elements)), 0),
            shown(median(all(list, ({ footprint }) => footprint && footprint.heap - heap)), 1),
            shown(median(all(list, ({ footprint }) => footprint && footprint.memory - memory)), 1),
        ]);
    return table(['size', ...(downloads ? ['download, KiB gzipped'] : []), 'elements', 'JavaScript heap, MiB', 'process, MiB'], rows);
}

export function tables({ version, loads, rounds, downloads, failures, visits }) {
    const { blank } = Object.values(visits)[0];
    const paints = spread(
        all(blank, ({ paint }) => paint),
        0,
    );
    const parts = [
        `Chromium ${version}, rounds: ${rounds}. The machine's load before and after each:\n${loads.map((load) => load.toFixed(1)).join(', ')}. A blank page has its first paint after ${paints} ms.`,
    ];
    if (failures.length > 0) parts.push(`Visits that failed and were made once more: ${failures.length}.`);
    Object.entries(visits).forEach(([title, list], index) => {
        parts.push(
            `### ${title}`,
            startTable(list, blank),
            flingTable(list),
            footprintTable(list, blank, index === 0 ? downloads : undefined),
        );
    });
    return parts.join('\n\n');
}

/** The document with these tables in their place. */
export function written(text, measured) {
    const parts = /(<!-- measured -->\n)[^]*(<!-- \/measured -->)/;
    if (!parts.test(text)) throw new Error('the document has no lines <!-- measured --> and <!-- /measured -->');
    return text.replace(parts, (_, begin, end) => `${begin}\n${measured}\n\n${end}`);
}

if (process.argv[1] && path.resolve(process.argv[1]) === fileURLToPath(import.meta.url)) {
    const { values, positionals } = parseArgs({ allowPositionals: true, options: { write: { type: 'string' } } });
    const measured = tables(JSON.parse(readFileSync(positionals[0], 'utf8')));
    if (values.write) writeFileSync(values.write, written(readFileSync(values.write, 'utf8'), measured));
    else console.log(measured);
}
