// Tables in Markdown of what was measured.

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

export function tables({ version, loads, rounds, downloads, visits }) {
    const blank = Object.values(visits)[0].blank;
    const parts = [
        `Chromium ${version}, ${rounds} rounds, load of the machine ${loads.map((load) => load.toFixed(1)).join(', ')}. A blank page: first paint after ${spread(
            all(blank, ({ paint }) => paint),
            0,
        )} ms.`,
    ];
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
