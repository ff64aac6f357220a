// The examples, as strangers use them: the packed package is installed in an empty folder outside
// of the sources, each example is built there, and its page is opened.
import { after, before, test } from 'node:test';
import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { cp, mkdtemp, readdir, rm, writeFile } from 'node:fs/promises';
import os from 'node:os';
import path from 'node:path';
import { promisify } from 'node:util';
import { startBrowser, touches, untilStill } from './browser.mjs';
import { packageFolder, root } from './places.mjs';
import { startServer } from '../../gallery/web/server.mjs';
import { columnPlace, untilColumns } from './stage.mjs';

const examples = path.join(root, 'hosts/web/examples');
const noNetwork = /ENOTFOUND|EAI_AGAIN|ECONNREFUSED|ECONNRESET|ENETUNREACH|EHOSTUNREACH|ETIMEDOUT|ERR_SOCKET_TIMEOUT/;

let folder, server, chromium, leftOut;

/**
 * What the types have to know, and to refuse; each example's compiler checks it with the example.
 */
const checks = {
    'react/check.tsx': `import type {} from 'gxuipickers/react';
        import type { DistancePicker } from 'gxuipickers';
        export const all = [
            <gx-weight-picker value={72.5} unit="st" unitSelectable onChange={(event) => event.currentTarget.unit satisfies 'kg' | 'lb' | 'st'} />,
            <gx-distance-picker fraction-digits={2} name="way" disabled ticks className="wide" ongx-tick={(event) => event.detail} />,
            <gx-heart-rate-picker noNullRow readOnly required average={120} />,
            <gx-wheel columns={[{ rows: 10, title: (row) => String(row) }]} rows={[1]} />,
            // @ts-expect-error A distance has no such unit.
            <gx-distance-picker unit="cubits" />,
            // @ts-expect-error A number is no text.
            <gx-distance-picker value="far" />,
            // @ts-expect-error It cannot be set.
            <gx-distance-picker valueText="5 km" />,
        ];
        export const metres: number = document.querySelector('gx-distance-picker')!.value;
        export const made: DistancePicker = document.createElement('gx-distance-picker');
        made.addEventListener('gx-tick', (event) => event satisfies CustomEvent);
        // @ts-expect-error Without the element there is no such property.
        export const none = document.createElement('gx-bpm-picker').layout;
    `,
    'vue/Check.vue': `<script setup lang="ts">
        import type {} from 'gxuipickers/vue';
        </script>
        <template>
            <gx-weight-picker :value="72.5" unit="st" :unit-selectable="true" @change="(event: Event) => event.type" />
            <!-- @vue-expect-error A distance has no such unit. -->
            <gx-distance-picker unit="cubits" />
            <!-- @vue-expect-error A text is no number. -->
            <gx-distance-picker value="far" />
        </template>
    `,
};

/** Runs npm in a folder; its output is the reason if it fails. */
async function npm(cwd, ...parameters) {
    try {
        return (await promisify(execFile)('npm', parameters, { cwd, encoding: 'utf8' })).stdout;
    } catch (failure) {
        throw new Error(`npm ${parameters.join(' ')}\n${failure.stdout}\n${failure.stderr}`, { cause: failure });
    }
}

before(async () => {
    folder = await mkdtemp(path.join(os.tmpdir(), 'gx-examples-'));
    await npm(packageFolder, 'pack', '--silent', '--ignore-scripts', '--pack-destination', folder);
    const [tarball] = (await readdir(folder)).filter((name) => name.endsWith('.tgz'));
    await cp(examples, folder, { recursive: true, filter: (source) => !/node_modules|dist$/.test(path.relative(examples, source)) });
    const quietly = ['--prefer-offline', '--ignore-scripts', '--no-audit', '--no-fund', '--fetch-retries=1'];
    try {
        await npm(folder, 'ci', ...quietly);
    } catch (reason) {
        if (!noNetwork.test(reason.message)) throw reason;
        leftOut = 'npm cannot reach what the examples are built with';
        console.log(`LEFT OUT: the examples, since ${leftOut}`);
        return;
    }
    await npm(folder, 'install', '--no-save', ...quietly, `./${tarball}`);
    for (const [name, source] of Object.entries(checks)) await writeFile(path.join(folder, name), source);
    chromium = await startBrowser();
    server = await startServer({
        folders: Object.fromEntries(['html', 'react', 'vue'].map((name) => [`/${name}/`, `${folder}/${name}/dist`])),
    });
});
after(async () => {
    await chromium?.stop();
    await server?.stop();
    await rm(folder, { recursive: true, force: true });
});

/** Builds an example and opens its page; what goes wrong on it is in `logs`. */
async function open(name) {
    await npm(path.join(folder, name), 'run', 'build', '--', '--base=./');
    const context = await chromium.browser.newContext({ viewport: { width: 400, height: 800 }, hasTouch: true });
    const page = await context.newPage();
    const logs = [];
    page.on('console', (message) => ['warning', 'error'].includes(message.type()) && logs.push(message.text()));
    page.on('pageerror', (error) => logs.push(error.message));
    await page.goto(`${server.address}/${name}/`);
    await untilColumns(page, 'gx-distance-picker');
    const output = (expected) => page.waitForFunction((text) => document.querySelector('output').textContent === text, expected);
    return { page, logs: () => logs.filter((line) => !line.includes('404')), output, close: () => context.close() };
}

/** Turns the kilometres two rows further. */
async function turn(page) {
    const place = await columnPlace(page, 'gx-distance-picker');
    await (await touches(page)).drag(place, { x: place.x, y: place.y - 80 });
    await untilStill(page, 'gx-distance-picker');
}

test('plain HTML: a form has the values, and resets them', async (t) => {
    if (leftOut) return t.skip(leftOut);
    const { page, logs, output, close } = await open('html');
    await output('5300 m in 27.5 min');
    await turn(page);
    await output('7300 m in 27.5 min');
    await page.click('button');
    await output('5300 m in 27.5 min');
    assert.deepEqual(logs(), []);
    await close();
});

for (const name of ['react', 'vue'])
    test(`${name}: types fit, its state follows the wheel, and the wheel its state`, async (t) => {
        if (leftOut) return t.skip(leftOut);
        const { page, logs, output, close } = await open(name);
        const shown = () => page.evaluate(() => document.querySelector('gx-distance-picker').valueText);
        await output('5300 m');
        assert.equal(await shown(), '5.30 km');
        await turn(page);
        await output('7300 m');
        assert.equal(await shown(), '7.30 km');
        await page.click('button');
        await output('10000 m');
        assert.equal(await shown(), '10.00 km');
        await page.click('button:last-of-type');
        await page.waitForFunction(() => document.querySelector('gx-distance-picker').valueText === '6.21 mi');
        // A fling goes on although the state is given back to it with each row.
        const place = await columnPlace(page, 'gx-distance-picker');
        await (await touches(page)).drag({ x: place.x, y: place.y + 50 }, { x: place.x, y: place.y - 50 }, { steps: 6, rest: 0 });
        await untilStill(page, 'gx-distance-picker');
        const miles = parseFloat(await shown());
        assert.ok(miles >= 12, `a fling ends at ${miles}`);
        assert.equal(
            await page.evaluate(() => document.querySelector('output').textContent),
            await page.evaluate(() => `${document.querySelector('gx-distance-picker').value} m`),
        );
        assert.deepEqual(logs(), []);
        await close();
    });
