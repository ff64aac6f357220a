// How elements follow the page's sizes, fonts, colours and directions, also while they spin.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { touches, untilStill } from './browser.mjs';
import { assertQuiet, columnPlace, Stage, untilColumns } from './stage.mjs';

const stage = new Stage();
const icons = '<svg aria-label="one" width="24" height="24"></svg><svg aria-label="two" width="24" height="24"></svg>';
const all = `<gx-number-picker></gx-number-picker><gx-bpm-picker></gx-bpm-picker><gx-calories-picker></gx-calories-picker>
    <gx-distance-picker></gx-distance-picker><gx-distance-and-duration-picker></gx-distance-and-duration-picker>
    <gx-duration-picker layout="hours-minutes-seconds"></gx-duration-picker><gx-heart-rate-picker></gx-heart-rate-picker>
    <gx-height-picker value="176" unit="imperial"></gx-height-picker><gx-icon-picker>${icons}</gx-icon-picker>
    <gx-pace-picker></gx-pace-picker><gx-speed-picker></gx-speed-picker><gx-temperature-picker></gx-temperature-picker>
    <gx-weather-and-temperature-picker>${icons}</gx-weather-and-temperature-picker>
    <gx-weight-picker unit-selectable></gx-weight-picker>`;

/** Drags the first column of an element up by so many of its rows, and lets it come to rest. */
async function dragRows(page, selector, rows, rowHeight) {
    await page.evaluate((asked) => document.querySelector(asked).scrollIntoView({ block: 'center' }), selector);
    const place = await columnPlace(page, selector);
    const finger = await touches(page);
    await finger.drag(place, { x: place.x, y: place.y - rows * rowHeight - 6 });
    await untilStill(page, selector);
}

const indicator = (page, selector) =>
    page.evaluate((asked) => {
        const box = document.querySelector(asked).shadowRoot.querySelector('.indicator').getBoundingClientRect();
        return { width: Math.round(box.width), height: Math.round(box.height) };
    }, selector);

/**
 * What is cut off at the sides, or lies on its neighbour in the selected row by more than the gap
 * around digits.
 */
const misplaced = (page, scale) =>
    page.evaluate((factor) => {
        const wrong = [];
        for (const element of document.querySelectorAll('*')) {
            if (!element.shadowRoot) continue;
            const outer = element.getBoundingClientRect();
            const middle = element.shadowRoot.querySelector('.indicator').getBoundingClientRect();
            const shown = [...element.shadowRoot.querySelectorAll('.text')].filter(
                (node) => node.style.visibility !== 'hidden' && node.textContent,
            );
            const boxes = shown.map((node) => ({ text: node.textContent, box: node.getBoundingClientRect() }));
            for (const { text, box } of boxes) {
                if (box.left < outer.left - 1 || box.right > outer.right + 1) wrong.push(`${element.localName}: ${text} is cut off`);
            }
            const inside = (box) => (box.top + box.bottom) / 2 > middle.top && (box.top + box.bottom) / 2 < middle.bottom;
            const row = boxes.filter(({ box }) => inside(box)).sort((one, other) => one.box.left - other.box.left);
            for (let i = 1; i < row.length; i += 1) {
                const overlap = row[i - 1].box.right - row[i].box.left;
                if (overlap > 1.5 * factor) wrong.push(`${element.localName}: ${row[i - 1].text} lies on ${row[i].text} by ${overlap}`);
            }
        }
        return wrong;
    }, scale);

test('at 50 to 300 % of the root’s size nothing is cut off, and fingers reach the rows that they touch', async () => {
    for (const [percent, scale] of [
        [50, 0.8], // Smaller rows are too low for a finger.
        [100, 1],
        [200, 2],
        [300, 3],
    ]) {
        const options = { head: `<style>:root { font-size: ${percent}%; font-family: Inter, sans-serif } body { margin: 0 }</style>` };
        const { page, logs, close } = await stage.open(all, { options, context: { viewport: { width: 390, height: 800 } } });
        await untilColumns(page, 'gx-weight-picker');
        assert.deepEqual(await misplaced(page, scale), [], `${percent} %`);
        // The height grows as far as its columns fit.
        const scaleOfHeight = Math.min(scale, 390 / 190);
        assert.equal((await indicator(page, 'gx-distance-picker')).height, Math.round(40 * scale), `${percent} %`);
        assert.equal((await indicator(page, 'gx-height-picker')).height, Math.round(40 * scaleOfHeight), `${percent} %`);
        const before = await page.evaluate(() => document.querySelector('gx-height-picker').value);
        await dragRows(page, 'gx-height-picker', 1, 40 * scaleOfHeight);
        // A foot more.
        assert.ok(
            Math.abs((await page.evaluate(() => document.querySelector('gx-height-picker').value)) - before - 30.48) < 1.3,
            `${percent} %`,
        );
        await dragRows(page, 'gx-distance-picker', 2, 40 * scale);
        assert.equal(await page.evaluate(() => document.querySelector('gx-distance-picker').value), 7000, `${percent} %`);
        assertQuiet(logs);
        await close();
    }
});

test('a page that is zoomed or scaled, on a fine or coarse screen, has its fingers on the rows', async () => {
    for (const [style, deviceScaleFactor, factor] of [
        ['', 0.5, 1],
        ['', 3, 1],
        ['zoom: 0.5', 1, 0.5],
        ['zoom: 3', 1, 3],
        ['transform: scale(1.5); transform-origin: 0 0', 1, 1.5],
    ]) {
        const { page, close } = await stage.open(
            `<div style="${style}; width: 260px"><gx-distance-picker value="5000"></gx-distance-picker></div>`,
            {
                context: { deviceScaleFactor },
            },
        );
        await untilColumns(page, 'gx-distance-picker');
        await dragRows(page, 'gx-distance-picker', 2, 40 * factor);
        assert.equal(await page.evaluate(() => document.querySelector('gx-distance-picker').value), 7000, `${style} ${deviceScaleFactor}`);
        await close();
    }
});

test('browser zoom and pinches, also while a wheel spins, leave fingers on the rows', async () => {
    const { page, logs, close } = await stage.open('<gx-distance-picker value="5000"></gx-distance-picker>');
    const asked = 'gx-distance-picker';
    await untilColumns(page, asked);
    const client = await page.context().newCDPSession(page);
    const value = () => page.evaluate(() => document.querySelector('gx-distance-picker').value);
    // What a browser does for its zoom: fewer and larger pixels of the page in the same window.
    const zoom = (factor) =>
        client.send('Emulation.setDeviceMetricsOverride', {
            width: Math.round(800 / factor),
            height: Math.round(700 / factor),
            deviceScaleFactor: factor,
            mobile: false,
        });
    for (const factor of [0.5, 1.1, 3]) {
        await page.evaluate(() => (document.querySelector('gx-distance-picker').value = 5000));
        await zoom(factor);
        await untilStill(page, asked);
        await dragRows(page, asked, 2, 40);
        assert.equal(await value(), 7000, `${factor}`);
    }
    await page.keyboard.press('Tab');
    await page.keyboard.press('Home');
    await page.keyboard.press('End');
    await zoom(1.5);
    await untilStill(page, asked);
    const end = await value();
    assert.ok(end > 100_000, `${end}`);

    await zoom(1);
    await page.evaluate(() => (document.querySelector('gx-distance-picker').value = 5000));
    await client.send('Emulation.setPageScaleFactor', { pageScaleFactor: 2 });
    await untilStill(page, asked);
    await dragRows(page, asked, 2, 40);
    assert.equal(await value(), 7000, 'pinched');
    assertQuiet(logs);
    await close();
});

test('on paper stands the value, also of a wheel that was spinning', async () => {
    const { page, logs, close } = await stage.open(
        '<p>Way <gx-distance-picker value="5300"></gx-distance-picker><gx-height-picker lang="de" value="176"></gx-height-picker>' +
            '<gx-distance-and-duration-picker distance="5300" duration="1650000"></gx-distance-and-duration-picker></p>',
    );
    await untilColumns(page, 'gx-distance-and-duration-picker');
    const printed = () =>
        page.evaluate(() =>
            [...document.querySelectorAll('p > *')].map((node) => {
                const columns = node.shadowRoot.querySelector('.columns');
                return [getComputedStyle(columns, '::after').content, node.offsetHeight < 60, columns.getBoundingClientRect().width > 400];
            }),
        );
    await page.emulateMedia({ media: 'print' });
    assert.deepEqual(await printed(), [
        ['"5.3 kilometres"', true, true],
        ['"176 Zentimeter"', true, true],
        ['"5.3 kilometres, 27 minutes"', true, true],
    ]);
    await page.emulateMedia({ media: 'screen' });
    await untilColumns(page, 'gx-distance-picker');
    await page.evaluate(() => {
        globalThis.changes = [];
        const picker = document.querySelector('gx-distance-picker');
        picker.addEventListener('change', () => globalThis.changes.push(picker.value));
        picker.focus();
    });
    await page.keyboard.press('PageDown');
    await page.pdf();
    const [changes, text] = await page.evaluate(() => [
        globalThis.changes,
        document.querySelector('gx-distance-picker').shadowRoot.querySelector('.columns').dataset.value,
    ]);
    assert.deepEqual([changes.length, text], [1, `${changes[0] / 1000} kilometres`]);
    assertQuiet(logs);
    await close();
});

test('from right to left labels stand on the other side, and fingers find their columns', async () => {
    const body = '<div dir="rtl"><gx-distance-picker value="5000" lang="ar"></gx-distance-picker></div>';
    const { page, close } = await stage.open(body);
    await untilColumns(page, 'gx-distance-picker');
    const places = () =>
        page.evaluate(() => {
            const root = document.querySelector('gx-distance-picker').shadowRoot;
            const left = (node) => node.getBoundingClientRect().left;
            return { label: left(root.querySelector('.surface .label')), columns: [...root.querySelectorAll('.column')].map(left) };
        });
    const { label, columns } = await places();
    assert.ok(label < columns[0], 'the unit is left of the number');
    assert.ok(columns[0] < columns[1], 'digits are read from left to right');
    await dragRows(page, 'gx-distance-picker', 2, 40);
    assert.equal(await page.evaluate(() => document.querySelector('gx-distance-picker').value), 7000);
    await page.evaluate(() => (document.querySelector('div').dir = 'ltr'));
    await page.waitForFunction(() => {
        const root = document.querySelector('gx-distance-picker').shadowRoot;
        return (
            root.querySelector('.surface .label').getBoundingClientRect().left > root.querySelector('.column').getBoundingClientRect().left
        );
    });
    await close();
});

test('every look and language can change while a wheel spins, and it lands where it would have', async () => {
    const changes = {
        nothing: async () => undefined,
        dark: (page) => page.emulateMedia({ colorScheme: 'dark' }),
        contrast: (page) => page.emulateMedia({ contrast: 'more' }),
        forced: (page) => page.emulateMedia({ forcedColors: 'active' }),
        language: (page) => page.evaluate(() => (document.documentElement.lang = 'de')),
        colour: (page) => page.evaluate(() => (document.body.style.color = 'red')),
    };
    for (const [name, change] of Object.entries(changes)) {
        const { page, logs, close } = await stage.open('<gx-distance-picker value="5000"></gx-distance-picker>');
        await untilColumns(page, 'gx-distance-picker');
        const place = await columnPlace(page, 'gx-distance-picker');
        await page.mouse.move(place.x, place.y);
        for (let i = 0; i < 4; i += 1) await page.mouse.wheel(0, 120);
        await change(page);
        await untilStill(page, 'gx-distance-picker');
        assert.equal(await page.evaluate(() => document.querySelector('gx-distance-picker').value), 9000, name);
        assertQuiet(logs);
        await close();
    }
});

test('what moves arrives where less motion, another font or size is wanted meanwhile', async () => {
    const changes = {
        motion: (page) => page.emulateMedia({ reducedMotion: 'reduce' }),
        size: (page) => page.evaluate(() => (document.documentElement.style.fontSize = '20px')),
        font: (page) => page.evaluate(() => (document.querySelector('gx-distance-picker').style.fontFamily = 'monospace')),
        width: (page) => page.evaluate(() => (document.querySelector('gx-distance-picker').style.width = '250px')),
    };
    for (const [name, change] of Object.entries(changes)) {
        const { page, logs, close } = await stage.open('<gx-distance-picker value="5000"></gx-distance-picker>');
        await untilColumns(page, 'gx-distance-picker');
        const place = await columnPlace(page, 'gx-distance-picker');
        await page.evaluate(() => {
            globalThis.changes = [];
            document.querySelector('gx-distance-picker').addEventListener('change', (event) => globalThis.changes.push(event.target.value));
        });
        const finger = await touches(page);
        await finger.drag(place, { x: place.x, y: place.y - 90 }, { steps: 4, rest: 0 });
        await change(page);
        await untilStill(page, 'gx-distance-picker');
        await page.waitForFunction(() => globalThis.changes.length > 0);
        const [changesTold, value] = await page.evaluate(() => [globalThis.changes, document.querySelector('gx-distance-picker').value]);
        assert.equal(changesTold.at(-1), value, name);
        assert.ok(value > 6000 && value % 1000 === 0, `${name}: ${value}`);
        assertQuiet(logs);
        await close();
    }
});

test('less motion makes no ways, more contrast and forced colours have their marks', async () => {
    const { page, close } = await stage.open('<gx-height-picker value="176"></gx-height-picker><gx-distance-picker></gx-distance-picker>', {
        options: { head: '<style>:root { color-scheme: light dark }</style>' },
    });
    await untilColumns(page, 'gx-distance-picker');
    const style = (selector, name) =>
        page.evaluate(
            ([asked, property]) => getComputedStyle(document.querySelector('gx-height-picker').shadowRoot.querySelector(asked))[property],
            [selector, name],
        );
    assert.equal(await style('.row', 'color'), 'rgb(0, 0, 0)');
    await page.emulateMedia({ colorScheme: 'dark' });
    assert.equal(await style('.row', 'color'), 'rgb(255, 255, 255)', 'the height’s rows follow the look');
    await page.emulateMedia({ colorScheme: 'light', forcedColors: 'active' });
    assert.equal(await style('.indicator', 'borderTopStyle'), 'solid');
    await page.emulateMedia({ forcedColors: 'none', reducedMotion: 'reduce' });
    await page.evaluate(() => document.querySelector('gx-distance-picker').focus());
    await page.keyboard.press('ArrowDown');
    const frames = await page.evaluate(async () => {
        const surface = document.querySelector('gx-distance-picker').shadowRoot.querySelector('.surface');
        const seen = new Set();
        for (let i = 0; i < 30; i += 1) {
            await new Promise((resolve) => requestAnimationFrame(resolve));
            seen.add([...surface.querySelectorAll('.row')].map((node) => node.style.transform).join());
        }
        return seen.size;
    });
    assert.ok(frames <= 2, `${frames} positions`);
    assert.equal(await page.evaluate(() => document.querySelector('gx-distance-picker').value), 6000);
    await close();
});

test('a font that comes late is measured', async () => {
    const { page, close } = await stage.open('<gx-duration-picker style="font-family: Late, monospace"></gx-duration-picker>');
    await untilColumns(page, 'gx-duration-picker');
    const place = () =>
        page.evaluate(() => {
            const node = document.querySelector('gx-duration-picker').shadowRoot.querySelector('.surface .label');
            return node.style.transform;
        });
    const before = await place();
    await page.evaluate(async () => {
        const face = new FontFace('Late', 'local("Inter"), local("DejaVu Sans")');
        document.fonts.add(face);
        await face.load();
    });
    await page.waitForFunction(
        (was) => document.querySelector('gx-duration-picker').shadowRoot.querySelector('.surface .label').style.transform !== was,
        before,
    );
    assert.notEqual(await place(), before);
    await close();
});

test('the page’s style sheets reach parts and colours', async () => {
    const head = `<style>gx-distance-picker { --gx-indicator-color: rgb(1, 2, 3); --gx-indicator-radius: 3px; --gx-row-color: rgb(4, 5, 6) }
        gx-distance-picker::part(label) { color: rgb(7, 8, 9) } gx-distance-picker::part(row) { letter-spacing: 1px }</style>`;
    const { page, close } = await stage.open('<gx-distance-picker></gx-distance-picker>', { options: { head } });
    const read = await page.evaluate(() => {
        const style = (name) => getComputedStyle(document.querySelector('gx-distance-picker').shadowRoot.querySelector(`.surface ${name}`));
        return [
            style('.indicator').backgroundColor,
            style('.indicator').borderRadius,
            style('.row').color,
            style('.label').color,
            style('.row').letterSpacing,
        ];
    });
    assert.deepEqual(read, ['rgb(1, 2, 3)', '3px', 'rgb(4, 5, 6)', 'rgb(7, 8, 9)', '1px']);
    const parts = await page.evaluate(() => [
        ...new Set(
            [...document.querySelector('gx-distance-picker').shadowRoot.querySelectorAll('.surface [part]')].map((node) => node.part.value),
        ),
    ]);
    assert.deepEqual(parts.sort(), ['indicator', 'label', 'row', 'separator']);
    await close();
});
