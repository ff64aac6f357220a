// The gallery's page as its users use it, on a phone and on a desktop.
import { after, before, test } from 'node:test';
import assert from 'node:assert/strict';
import path from 'node:path';
import { readFile, writeFile } from 'node:fs/promises';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync } from 'node:fs';
import os from 'node:os';
import { checkAccessibility, startBrowser, touches, untilStill } from './browser.mjs';
import { packageFolder, root } from './places.mjs';
import { startServer } from '../../gallery/web/server.mjs';
import { columnPlace, untilColumns } from './stage.mjs';

const folder = mkdtempSync(path.join(os.tmpdir(), 'gx-gallery-'));
let server, chromium;

before(async () => {
    execFileSync(process.execPath, [path.join(root, 'gallery/web/build.mjs'), packageFolder, path.join(folder, 'page')]);
    server = await startServer({ folders: { '/': path.join(folder, 'page') } });
    chromium = await startBrowser();
});
after(async () => {
    await chromium?.stop();
    await server?.stop();
    rmSync(folder, { recursive: true, force: true });
});

/** Waits until the page's script has run to its end: it marks the link of its page last. */
async function untilReady(page) {
    await page.waitForSelector('nav a[aria-current]', { state: 'attached' });
    await page.waitForFunction(() => [...document.querySelectorAll('.value')].every((node) => node.textContent !== ''));
}

/** Opens the page; what goes wrong on it is in `logs`. */
async function open({ width = 390, height = 844, hash = '', ...context } = {}) {
    const opened = await chromium.browser.newContext({ viewport: { width, height }, hasTouch: true, locale: 'en-GB', ...context });
    const page = await opened.newPage();
    const logs = [];
    page.on('console', (message) => ['warning', 'error'].includes(message.type()) && logs.push(message.text()));
    page.on('pageerror', (error) => logs.push(error.message));
    await page.goto(`${server.address}/${hash}`);
    await untilReady(page);
    return { page, logs, close: () => opened.close() };
}

/** What a file may have, as the desktop's gallery lists it: [name, lowest, highest]. */
async function rangesOfDesktop() {
    const source = await readFile(path.join(root, 'gallery/model/Workout.cpp'), 'utf8');
    const constants = { longest: 300_000, longestTime: 356.4e6 };
    for (const [name, value] of Object.entries(constants))
        assert.equal(Number(new RegExp(`${name} = ([^;]+);`).exec(source)[1].replaceAll("'", '')), value);
    const number = (text) =>
        text
            .replaceAll("'", '')
            .split(' / ')
            .map((part) => constants[part] ?? Number(part))
            .reduce((one, other) => one / other);
    return [...source.matchAll(/\{"(\w+)", &\S+, ([^,]+), ([^}]+)\}/g)].map(([, name, lowest, highest]) => [
        name,
        number(lowest),
        number(highest),
    ]);
}

const values = (page) => page.evaluate(() => [...document.querySelectorAll('.value')].map((node) => node.textContent));
const shown = [
    '5.3 km, 0:27 h',
    '12.5 km/h',
    '420 kcal',
    '1.00 km',
    '0:04:45',
    '4:45 min/km',
    'AVG 142, MAX 171',
    '60 bpm',
    'partly cloudy, 18 °C',
    '20 °C',
    '72.5 kg',
    '176 cm',
];

/** Waits until a row says what its picker has. */
const untilValue = (page, index, text) =>
    page.waitForFunction(([i, expected]) => document.querySelectorAll('.value')[i].textContent === expected, [index, text]);

test('each row opens its picker, one at a time', async () => {
    const { page, logs, close } = await open();
    assert.deepEqual(await values(page), shown);
    for (let i = 0; i < shown.length; i += 1) {
        if (i > 0) await page.locator('summary').nth(i).click();
        const opened = await page.evaluate(() =>
            [...document.querySelectorAll('details')].flatMap((row, index) =>
                row.open && row.lastElementChild.offsetHeight > 100 ? index : [],
            ),
        );
        assert.deepEqual(opened, [i]);
    }
    assert.deepEqual(logs, []);
    await close();
});

test('finger, mouse wheel and keys turn a wheel, and the workout stays', async () => {
    const { page, logs, close } = await open();
    const picker = 'gx-distance-and-duration-picker';
    await untilColumns(page, picker);
    const place = await columnPlace(page, picker);
    await (await touches(page)).drag(place, { x: place.x, y: place.y - 80 });
    await untilStill(page, picker);
    await untilValue(page, 0, '7.3 km, 0:27 h');

    await page.locator('summary').nth(2).click();
    await untilColumns(page, 'gx-calories-picker');
    const calories = await columnPlace(page, 'gx-calories-picker');
    await page.mouse.move(calories.x, calories.y);
    await page.mouse.wheel(0, 120);
    await untilValue(page, 2, '430 kcal');

    await page.locator('summary').nth(7).focus();
    await page.keyboard.press('Enter');
    await page.keyboard.press('Tab');
    await page.keyboard.type('75');
    await untilValue(page, 7, '75 bpm');

    const changed = [...shown];
    Object.assign(changed, { 0: '7.3 km, 0:27 h', 2: '430 kcal', 7: '75 bpm' });
    // What was typed is reported a second later.
    await page.waitForFunction(() => JSON.parse(localStorage.getItem('workout'))?.workout.restingPulse === 75);
    await page.reload();
    await untilReady(page);
    await untilValue(page, 7, '75 bpm');
    assert.deepEqual(await values(page), changed);
    assert.deepEqual(logs, []);
    await close();
});

test('a workout is saved to a file and opened from it', async () => {
    const { page, logs, close } = await open();
    // A screen reader says what changes in an element that has been there before.
    assert.notEqual(await page.evaluate(() => getComputedStyle(document.querySelector('#status')).display), 'none');
    const [download] = await Promise.all([page.waitForEvent('download'), page.click('#save')]);
    const file = path.join(folder, download.suggestedFilename());
    await download.saveAs(file);
    assert.equal(await page.textContent('#status'), 'Saved: workout.json');
    const saved = JSON.parse(await readFile(file, 'utf8'));
    assert.deepEqual([saved.format, saved.version, saved.workout.weather], ['GXUIPickers workout', 1, 'partly-cloudy']);
    assert.equal(Object.keys(saved.workout).length, 15);

    saved.workout.distance = 12_400;
    saved.workout.weather = 'snow';
    await writeFile(file, JSON.stringify(saved));
    await page.setInputFiles('#file', file);
    await untilValue(page, 0, '12.4 km, 0:27 h');
    await untilValue(page, 8, 'snow, 18 °C');
    assert.equal(await page.textContent('#status'), 'Opened: workout.json');

    const before = await values(page);
    const bad = [
        ['{', 'This file is damaged, or no workout.'],
        ['null', 'This file is no workout.'],
        ['{"format":"GXUIPickers workout","version":2}', 'This workout was saved by a newer version of this application.'],
        ['{"format":"GXUIPickers workout","version":1}', 'This file is damaged.'],
        ['{"format":"GXUIPickers workout","version":1.5}', 'This file is damaged.'],
        ['{"format":"GXUIPickers workout","version":1,"workout":[]}', 'This file is damaged.'],
        [' '.repeat(2 ** 20) + JSON.stringify(saved), 'This file is no workout.'],
        [JSON.stringify({ ...saved, workout: { ...saved.workout, height: 'tall' } }), 'The file has no number for: height.'],
        [JSON.stringify({ ...saved, workout: { ...saved.workout, height: 119 } }), 'A number in the file is out of range: height.'],
        [
            JSON.stringify({ ...saved, workout: { ...saved.workout, weather: 'frogs' } }),
            'The file names no weather that this application knows.',
        ],
    ];
    for (const [text, message] of bad) {
        await writeFile(file, text);
        await page.setInputFiles('#file', file);
        await page.waitForFunction((expected) => document.querySelector('#status').textContent === expected, message);
        assert.deepEqual(await values(page), before);
    }
    assert.deepEqual(logs, []);
    await close();
});

test('numbers of a file have the ranges of the desktop', async () => {
    const { page, close } = await open();
    const ranges = await page.evaluate(() =>
        [...document.querySelectorAll('[data-file]')].flatMap((picker) =>
            picker.dataset.file
                .split(' ')
                .map((entry) => entry.split(':').slice(1))
                .filter(([name]) => name !== 'weather')
                .map(([name, lowest, highest]) => [name, Number(lowest), Number(highest)]),
        ),
    );
    const expected = await rangesOfDesktop();
    assert.equal(expected.length, 14);
    assert.deepEqual(ranges, expected);
    await close();
});

test('units, language, look and text size change at once, and stay', async () => {
    const { page, logs, close } = await open({ hash: '#settings' });
    await page.selectOption('[name=unit]', 'imperial');
    await page.selectOption('[name=weight]', 'st');
    await page.selectOption('[name=language]', 'de');
    await page.selectOption('[name=look]', 'dark');
    await page.fill('[name=size]', '150');
    const look = () =>
        page.evaluate(() => [
            document.documentElement.lang,
            document.querySelector('h1').textContent,
            getComputedStyle(document.documentElement).backgroundColor,
            getComputedStyle(document.documentElement).fontSize,
        ]);
    await untilValue(page, 0, '3,2 mi, 0:27 h');
    assert.deepEqual(await look(), ['de', 'Training hinzufügen', 'rgb(14, 16, 19)', '24px']);
    assert.equal(await page.title(), 'Einstellungen – GXUIPickers');
    assert.equal(await page.evaluate(() => document.querySelector('[name=size]').ariaValueText), '150%');
    await page.reload();
    await untilReady(page);
    await untilValue(page, 0, '3,2 mi, 0:27 h');
    assert.deepEqual(await look(), ['de', 'Training hinzufügen', 'rgb(14, 16, 19)', '24px']);
    assert.equal(await page.inputValue('[name=unit]'), 'imperial');

    const loaded = [];
    page.on('request', (request) => loaded.push(request.url()));
    await page.selectOption('[name=unit]', 'metric');
    await page.fill('[name=size]', '120');
    await untilValue(page, 0, '5,3 km, 0:27 h');
    assert.deepEqual(loaded, [], 'a language is loaded only when it changes');
    assert.deepEqual(logs, []);
    await close();
});

test('all fifteen languages fit, also on the narrowest phone', async () => {
    const { page, close } = await open({ width: 320, height: 568, hash: '#settings' });
    const codes = await page.evaluate(() => [...document.querySelector('[name=language]').options].map(({ value }) => value));
    assert.equal(codes.length, 15);
    const wide = [];
    for (const code of codes) {
        await page.selectOption('[name=language]', code);
        await page.waitForFunction((asked) => document.documentElement.lang === asked, code);
        for (const hash of ['#workout', '#pickers', '#settings']) {
            await page.evaluate((to) => (location.hash = to), hash);
            await page.waitForFunction((to) => !document.querySelector(to).hidden, hash);
            if (await page.evaluate(() => document.documentElement.scrollWidth > window.innerWidth)) wide.push(`${code} ${hash}`);
        }
    }
    assert.deepEqual(wide, []);
    assert.equal(await page.evaluate(() => document.documentElement.dir), 'ltr');
    await close();
});

test('nothing is wider than the window, and tools for accessibility find nothing', async () => {
    for (const [width, colorScheme, language] of [
        [320, 'dark', 'en'],
        [390, 'light', 'ar'],
        [1200, 'light', 'en'],
        [1200, 'dark', 'he'],
    ]) {
        const { page, logs, close } = await open({ width, height: 800, colorScheme, locale: language });
        for (const hash of ['#workout', '#pickers', '#settings']) {
            await page.evaluate((to) => (location.hash = to), hash);
            await page.waitForFunction((to) => !document.querySelector(to).hidden, hash);
            await untilColumns(page, hash === '#pickers' ? '#place > *' : 'gx-distance-and-duration-picker');
            assert.equal(await page.evaluate(() => document.documentElement.scrollWidth - window.innerWidth), 0, `${width} ${hash}`);
            assert.deepEqual((await checkAccessibility(page)).violations, [], `${width} ${colorScheme} ${language} ${hash}`);
        }
        assert.deepEqual(logs, []);
        await close();
    }
});

test('a desktop shows the open picker beside the list, and one is always open', async () => {
    const { page, close } = await open({ width: 1200, height: 800 });
    await page.locator('summary').first().click();
    const [list, picker] = await page.evaluate(() =>
        ['summary', 'gx-distance-and-duration-picker'].map((name) => document.querySelector(name).getBoundingClientRect().toJSON()),
    );
    assert.ok(picker.left >= list.right && picker.height >= 380, JSON.stringify([list, picker]));
    await page.locator('summary').last().click();
    assert.equal(await page.evaluate(() => document.querySelectorAll('details[open]').length), 1);
    assert.ok(await page.isVisible('gx-height-picker'));
    await close();
});

test('all pickers are there with all of their options', async () => {
    const { page, logs, close } = await open({ width: 1200, height: 900, hash: '#pickers' });
    const names = await page.evaluate(() => [...document.querySelector('#element').options].map(({ value }) => value));
    assert.equal(names.length, 15);
    for (const name of names) {
        await page.selectOption('#element', name);
        await untilColumns(page, '#place > *');
        assert.equal(await page.evaluate(() => document.querySelector('#place').firstElementChild.localName), name);
    }
    await page.selectOption('#element', 'gx-distance-picker');
    const option = (name) => page.locator('#attributes label', { hasText: new RegExp(`^${name}`) }).locator('input, select');
    await option('unit').selectOption('imperial');
    await option('fraction-digits').fill('2');
    await option('ticks').check();
    assert.equal(await page.textContent('#markup'), '<gx-distance-picker unit="imperial" fraction-digits="2" ticks></gx-distance-picker>');
    assert.equal(await page.evaluate(() => document.querySelector('#place > *').valueText), '3.10 mi');
    const place = await columnPlace(page, '#place > *');
    await page.mouse.move(place.x, place.y);
    await page.mouse.wheel(0, 120);
    await page.waitForFunction(() => document.querySelector('#log').textContent.includes('change'));
    assert.match(await page.textContent('#log li'), /^change: value = 6\d{3}/);

    await page.selectOption('#element', 'gx-wheel');
    await page.evaluate(() => (location.hash = '#settings'));
    await page.selectOption('[name=language]', 'de');
    await page.waitForFunction(() => document.documentElement.lang === 'de');
    await page.evaluate(() => (location.hash = '#pickers'));
    await untilColumns(page, '#place > *');
    assert.equal(await page.evaluate(() => document.querySelector('#place > *').columns[0].rows[2]), 'März');
    assert.deepEqual(logs, []);
    await close();
});
