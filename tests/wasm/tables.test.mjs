// The reference tables in a browser: the same program as under node, on a page. Each state of each
// picker is compared word by word with what an independent model of the rules wrote.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { existsSync, readdirSync, readFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { startBrowser } from '../web/browser.mjs';
import { startServer } from '../../gallery/web/server.mjs';
import { runOnPage } from './page.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const programs = path.join(here, '../../build/wasm-tests/tests');
const folder = path.join(here, '../reference/tables');
const leftOut = existsSync('/usr/bin/chromium') ? false : 'Chromium is not installed';

test('the reference tables are played in Chromium, to the bit', { skip: leftOut }, async (context) => {
    const tables = readdirSync(folder);
    const lines = tables.reduce((sum, name) => sum + readFileSync(path.join(folder, name), 'utf8').trim().split('\n').length - 1, 0);
    const server = await startServer({ folders: { '/programs/': programs, '/tables/': folder }, pages: { '/': '<!doctype html>' } });
    const chromium = await startBrowser();
    try {
        const page = await chromium.browser.newPage();
        await page.goto(`${server.address}/`);
        const files = Object.fromEntries(tables.map((name) => [name, `/tables/${name}`]));
        const args = ['pickers_test', '--gtest_filter=*ReferenceTablesTest*'];
        const { code, output } = await page.evaluate(runOnPage, { program: '/programs/pickers_test', folder, files, args });
        assert.equal(code, 0, output.slice(-5000));
        assert.match(output, new RegExp(`^\\[ {2}PASSED {2}\\] ${tables.length} tests\\.$`, 'm'));
        context.diagnostic(`${tables.length} tables, ${lines} scenarios`);
    } finally {
        await chromium.stop();
        await server.stop();
    }
});
