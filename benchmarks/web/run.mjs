// Measures our elements beside other wheel pickers, in Chromium:
//
//   node benchmarks/web/run.mjs [--quick] [--rounds N] [--minutes N] [--only NAME,NAME]
//                                   [--json FILE] [--before FOLDER]
//
// Needs `scripts/web build` and `npm ci` in this folder before. Prints tables in Markdown. All
// pickers are visited in turns, several rounds in one run; the numbers are medians, with the
// smallest and the largest beside them.
//
// - --quick makes one round, for trying; --minutes begins no round that would end later.
// - --json keeps all that was measured; `node benchmarks/web/report.mjs FILE` makes tables of it.
// - --before is another build of our package, to compare two in one run.
import { writeFileSync } from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { parseArgs } from 'node:util';
import { startServer } from '../../gallery/web/server.mjs';
import { startBrowser } from '../../tests/web/browser.mjs';
import { buildPages, pages } from './build.mjs';
import { fling, footprint, longestTasks, openPage, start } from './measure.mjs';
import { processOfBrowser } from './processes.mjs';
import { tables } from './report.mjs';

const { values: asked } = parseArgs({
    options: {
        quick: { type: 'boolean' },
        rounds: { type: 'string' },
        minutes: { type: 'string' },
        only: { type: 'string' },
        json: { type: 'string' },
        before: { type: 'string' },
    },
});
const rounds = Number(asked.rounds ?? (asked.quick ? 1 : 4));
const patience = Number(asked.minutes ?? Infinity) * 60;
/** How often a page starts in a round: one start is shorter than a fling by far. */
const starts = asked.quick ? 1 : 2;

const packages = { elements: path.join(pages, '../package'), ...(asked.before ? { before: path.resolve(asked.before) } : {}) };
const everyone = ['blank', ...Object.keys(packages), 'better-scroll', 'ionic', 'vant', 'react-wheel-picker', 'react-mobile-picker'];
const names = asked.only
    ? everyone.filter((name) => name === 'blank' || name === 'before' || asked.only.split(',').includes(name))
    : everyone;
const sizes = [
    { title: '3 × 100 rows', columns: 3, rows: 100, names },
    { title: '1 × 100 rows', columns: 1, rows: 100, names: names.filter((name) => name in packages) },
    { title: '1 × 10 000 rows', columns: 1, rows: 10_000, names: names.filter((name) => name !== 'blank') },
    { title: '1 × 10⁹ rows', columns: 1, rows: 1e9, names: names.filter((name) => name in packages) },
];

const downloads = await buildPages(names, packages);
const empty = '<!doctype html><html lang="en"><head><meta charset="utf-8"><link rel="icon" href="data:,"></head><body></body></html>';
const server = await startServer({ folders: { '/': pages }, pages: { '/empty.html': empty } });
const { browser, stop } = await startBrowser();
const pid = await processOfBrowser(browser);

/** What was measured: by size, by name, a list of visits. */
const visits = Object.fromEntries(sizes.map(({ title, names: those }) => [title, Object.fromEntries(those.map((name) => [name, []]))]));
const loads = [os.loadavg()[0]];

/** What once took longer than the driver waits is not visited again. */
const isTooSlow = (title, name) => visits[title][name].some((visit) => visit.paint === undefined);
/** Thousands of rows take the others seconds: two rounds, one start in each. */
const isLeftOut = ({ title, columns, rows }, name, round, time) =>
    isTooSlow(title, name) || (columns * rows >= 10_000 && !(name in packages) && (time > 0 || round > 1));
/** What went wrong, in visits that have been made once more. */
const failures = [];
let done = 0;
const version = browser.version();
const measured = () => ({ version, loads, rounds: done, downloads, failures, visits });
const save = () => asked.json && writeFileSync(asked.json, JSON.stringify(measured(), null, 1));

async function visitOnce({ columns, rows }, name, round, isWhole) {
    const opened = await openPage({ browser, pid, address: server.address });
    try {
        const result = { round, ...(await start(opened, name, columns, rows)) };
        if (result.paint === undefined || !isWhole) return result;
        result.footprint = await footprint(opened);
        if (name === 'blank') return result;
        result.fling = await fling(opened);
        // Tracing every task costs time: a visit of its own.
        if (round === 0 && columns * rows <= 10_000) result.longest = await longestTasks(opened, name, columns, rows);
        if (opened.errors.length > 0) throw new Error(opened.errors.join('; '));
        return result;
    } finally {
        await opened.context.close();
    }
}

async function visit(size, name, round, isWhole) {
    const list = visits[size.title][name];
    try {
        list.push(await visitOnce(size, name, round, isWhole));
    } catch (error) {
        // One visit that fails must not cost the others.
        failures.push(`${size.title}, ${name}: ${error.message}`);
        process.stderr.write(`once more, since it failed: ${failures.at(-1)}\n`);
        list.push(await visitOnce(size, name, round, isWhole));
    }
}

// The first page of a browser costs more than all others.
await (await openPage({ browser, pid, address: server.address })).context.close();
const began = Date.now();
for (let round = 0; round < rounds; round += 1) {
    for (const size of sizes) {
        for (let time = 0; time < starts; time += 1) {
            for (const name of size.names) {
                if (isLeftOut(size, name, round, time)) continue;
                await visit(size, name, round, time === 0);
            }
        }
    }
    loads.push(os.loadavg()[0]);
    done = round + 1;
    save();
    const seconds = (Date.now() - began) / 1000;
    process.stderr.write(`round ${done} of ${rounds}: ${Math.round(seconds)} s\n`);
    if (seconds + seconds / done > patience) break;
}
await stop();
await server.stop();
console.log(tables(measured()));
