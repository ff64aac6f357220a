// Elements as parts of a page, each subject once. The files named after a subject go into detail.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import path from 'node:path';
import { checkAccessibility, untilStill } from './browser.mjs';
import { packageFolder } from './places.mjs';
import { assertQuiet, Stage, untilColumns } from './stage.mjs';

const stage = new Stage();

const shown = {
    'gx-number-picker': '0',
    'gx-bpm-picker': '160 bpm',
    'gx-calories-picker': '0 kcal',
    'gx-distance-picker': '5.0 km',
    'gx-distance-and-duration-picker': '5.0 km, 0:05 h',
    'gx-duration-picker': '0:05 h',
    'gx-heart-rate-picker': 'AVG 120, MAX 160',
    'gx-height-picker': '180 cm', // Of a height of 0.
    'gx-icon-picker': '',
    'gx-pace-picker': '1:40 min/km',
    'gx-speed-picker': '10.0 km/h',
    'gx-temperature-picker': '20 °C',
    'gx-weather-and-temperature-picker': '20 °C',
    'gx-weight-picker': '15.0 kg',
    'gx-wheel': '',
};

test('every element opens and shows its first value', async () => {
    const { page, logs, close } = await stage.open(
        Object.keys(shown)
            .map((name) => `<${name}></${name}>`)
            .join(''),
    );
    const texts = await page.evaluate(
        (names) => Object.fromEntries(names.map((name) => [name, document.querySelector(name).valueText])),
        Object.keys(shown),
    );
    assert.deepEqual(texts, shown);
    assertQuiet(logs);
    await close();
});

test('attributes and properties go together', async () => {
    const cases = [
        ['gx-distance-picker', { value: 5340, unit: 'metric', 'fraction-digits': 2 }, '5.34 km'],
        ['gx-distance-picker', { value: 5340, unit: 'imperial' }, '3.3 mi'],
        ['gx-duration-picker', { value: 1650000, layout: 'minutes-seconds', max: 3600000 - 1 }, '27:30 min'],
        ['gx-weight-picker', { value: 72.5, unit: 'kg' }, '72.5 kg'],
        ['gx-height-picker', { value: 176.5, unit: 'metric' }, '176 cm'],
        ['gx-height-picker', { value: 176.5, unit: 'imperial' }, `5' 9"`],
        ['gx-temperature-picker', { value: 20, unit: 'imperial' }, '66 °F'],
        ['gx-pace-picker', { value: 1000 / 285 }, '4:45 min/km'],
        ['gx-heart-rate-picker', { average: 142, maximum: 171 }, 'AVG 142, MAX 171'],
        ['gx-number-picker', { min: 10, max: 50, step: 5, value: 25 }, '25'],
        ['gx-calories-picker', { value: 420 }, '420 kcal'],
    ];
    const markup = ([name, attributes]) =>
        `<${name} ${Object.entries(attributes)
            .map(([key, value]) => `${key}="${value}"`)
            .join(' ')}></${name}>`;
    const { page, logs, close } = await stage.open(cases.map(markup).join('') + '<div id="made"></div>');
    const made = await page.evaluate((all) => {
        const camel = (name) => name.replace(/-([a-z])/g, (_, letter) => letter.toUpperCase());
        const written = [...document.querySelectorAll('body > *')].filter((node) => node.localName.startsWith('gx-'));
        return all.map(([name, attributes], i) => {
            const element = document.createElement(name);
            for (const [key, value] of Object.entries(attributes)) element[camel(key)] = value;
            document.querySelector('#made').append(element);
            const read = Object.fromEntries(Object.keys(attributes).map((key) => [key, written[i][camel(key)]]));
            return { byAttribute: written[i].valueText, byProperty: element.valueText, read };
        });
    }, cases);
    cases.forEach(([, attributes, text], i) => assert.deepEqual(made[i], { byAttribute: text, byProperty: text, read: attributes }));
    assertQuiet(logs);
    await close();
});

test('properties that were set before the element was defined are taken over', async () => {
    const early =
        '<script>const made = document.createElement("gx-distance-picker"); made.value = 6200; made.unit = "imperial"; document.body.append(made);</script>';
    const { page, logs, close } = await stage.open(`<div></div>${early}`);
    await page.waitForFunction(() => document.querySelector('gx-distance-picker').valueText !== '');
    const read = await page.evaluate(() => {
        const { unit, value, valueText } = document.querySelector('gx-distance-picker');
        return { unit, value, valueText };
    });
    // 3.85 miles; the second digit is not shown.
    assert.deepEqual(read, { unit: 'imperial', value: 6200, valueText: '3.8 mi' });
    assertQuiet(logs);
    await close();
});

test('what is no number or no unit is ignored with one warning that names the element', async () => {
    const { page, logs, close } = await stage.open(
        '<gx-distance-picker value="far" unit="cubits"></gx-distance-picker><gx-number-picker min="9" max="3"></gx-number-picker>',
    );
    assert.equal(await page.evaluate(() => document.querySelector('gx-distance-picker').valueText), '5.0 km');
    assert.deepEqual(
        logs.filter((line) => line.startsWith('warning')),
        [
            // In the order in which the elements are defined.
            'warning: <gx-number-picker>: min="9" and max="3" are crossed.',
            'warning: <gx-distance-picker>: value="far" is no number; it is ignored.',
            'warning: <gx-distance-picker>: unit="cubits" is none of metric, imperial; it is ignored.',
        ],
    );
    await page.evaluate(() => (document.querySelector('gx-distance-picker').value = 'near'));
    assert.equal(logs.at(-1), 'warning: <gx-distance-picker>: value = near is no number; it is ignored.');
    assert.equal(await page.evaluate(() => document.querySelector('gx-distance-picker').value), 5000);
    await close();
});

test('columns are spin buttons with name, value and text, and the tools for accessibility find nothing', async () => {
    const body =
        '<main><h1>Workout</h1><label for="d">Way</label><gx-distance-picker id="d" value="5300"></gx-distance-picker><gx-weight-picker value="72.5"></gx-weight-picker><gx-duration-picker></gx-duration-picker></main>';
    const { page, close } = await stage.open(body, { options: { head: '<title>Workout</title>' } });
    await untilColumns(page, 'gx-duration-picker');
    const columns = await page.evaluate(() =>
        [...document.querySelector('#d').shadowRoot.querySelectorAll('.column')].map((node) =>
            Object.fromEntries(['role', 'aria-label', 'aria-valuetext', 'tabindex'].map((name) => [name, node.getAttribute(name)])),
        ),
    );
    assert.deepEqual(columns, [
        { role: 'spinbutton', 'aria-label': 'Way, kilometres', 'aria-valuetext': '5.3 kilometres', tabindex: '0' },
        { role: 'spinbutton', 'aria-label': 'Way, tenths', 'aria-valuetext': '5.3 kilometres', tabindex: '0' },
    ]);
    assert.deepEqual((await checkAccessibility(page)).violations, []);
    await close();
});

test('it follows the page’s language, direction, font and colours', async () => {
    const body = '<gx-distance-picker value="5300"></gx-distance-picker><gx-distance-picker lang="de" value="5300"></gx-distance-picker>';
    const { page, close } = await stage.open(body, { options: { lang: 'pl' } });
    const texts = () => page.evaluate(() => [...document.querySelectorAll('gx-distance-picker')].map((node) => node.valueText));
    assert.deepEqual(await texts(), ['5,3 km', '5,3 km']);
    await page.evaluate(() => (document.documentElement.lang = 'en'));
    await page.waitForFunction(() => document.querySelector('gx-distance-picker').valueText === '5.3 km');
    assert.deepEqual(await texts(), ['5.3 km', '5,3 km']);
    const rowHeight = () =>
        page.evaluate(() => parseFloat(document.querySelector('gx-distance-picker').shadowRoot.querySelector('.indicator').style.height));
    assert.equal(await rowHeight(), 40);
    await page.evaluate(() => (document.documentElement.style.fontSize = '32px'));
    await page.waitForFunction(
        () => parseFloat(document.querySelector('gx-distance-picker').shadowRoot.querySelector('.indicator').style.height) === 80,
    );
    assert.deepEqual(await texts(), ['5.3 km', '5,3 km']);
    const color = await page.evaluate(() => {
        document.body.style.color = 'rgb(10, 120, 30)';
        return getComputedStyle(document.querySelector('gx-distance-picker').shadowRoot.querySelector('.row')).color;
    });
    assert.equal(color, 'rgb(10, 120, 30)');
    await close();
});

test('a strict content security policy is kept', async () => {
    const policy = "default-src 'none'; script-src 'self' 'wasm-unsafe-eval'; style-src 'self'; connect-src 'self'; img-src 'self'";
    for (const script of ['/package/gxuipickers.js', '/package/asset.js']) {
        const { page, logs, close } = await stage.open('<gx-distance-picker value="5300"></gx-distance-picker>', {
            options: { script },
            headers: { 'content-security-policy': policy },
        });
        assert.equal(await page.evaluate(() => document.querySelector('gx-distance-picker').valueText), '5.3 km', script);
        assertQuiet(logs);
        await close();
    }
});

test('without the module the element’s content stays in view', async () => {
    const body = '<gx-distance-picker><input type="number" value="5"></gx-distance-picker>';
    const { page, logs, close } = await stage.open(body, { wait: false, headers: { 'content-security-policy': "script-src 'self'" } });
    await page.waitForFunction(() => customElements.get('gx-distance-picker'));
    await page.waitForTimeout(300);
    assert.ok(await page.isVisible('input'));
    assert.ok(
        logs.some((line) => line.includes('GXUIPickers: the module cannot be loaded')),
        logs.join('\n'),
    );
    await close();
});

test('importing it where there is no DOM does nothing', () => {
    for (const file of ['gxuipickers.js', 'asset.js']) {
        const program = `const all = await import(${JSON.stringify(path.join(packageFolder, file))}); console.log(Object.keys(all.elements).length)`;
        assert.equal(execFileSync(process.execPath, ['--input-type=module', '-e', program], { encoding: 'utf8' }).trim(), '15', file);
    }
});

test('a thousand elements that come and go leave nothing behind', async () => {
    const { page, logs, close } = await stage.open('<gx-distance-picker></gx-distance-picker>');
    const script = stage.server.address + '/package/gxuipickers.js';
    const result = await page.evaluate(async (address) => {
        const { loadedModule } = await import(address);
        const module = loadedModule();
        const makeSome = async (count) => {
            for (let i = 0; i < count; i += 20) {
                const made = Array.from({ length: 20 }, () => document.createElement('gx-duration-picker'));
                document.body.append(...made);
                await new Promise((resolve) => requestAnimationFrame(resolve));
                for (const element of made) element.remove();
            }
        };
        await makeSome(200);
        const before = module.memorySize;
        await makeSome(800);
        return { before, after: module.memorySize, count: module.calls.elementCount() };
    }, script);
    assert.equal(result.count, 1);
    assert.equal(result.after, result.before);
    assertQuiet(logs);
    await close();
});

test('a wheel of the page’s own columns counts its rows without making them', async () => {
    const { page, close } = await stage.open('<gx-wheel></gx-wheel>');
    const wheel = await page.evaluate(() => {
        const element = document.querySelector('gx-wheel');
        globalThis.asked = 0;
        element.columns = [
            { rows: ['red', 'green', 'blue'], label: 'Colour' },
            { rows: 1e9, label: 'Number', title: (row) => ((globalThis.asked += 1), `#${row}`) },
        ];
        element.rows = [2, 123456789];
        return [element.rows, element.valueText, globalThis.asked < 100];
    });
    assert.deepEqual(wheel, [[2, 123456789], 'blue #123456789', true]);
    await close();
});

test('the first picture is there at once, and the columns after its frame', async () => {
    const { page, close } = await stage.open('<gx-bpm-picker></gx-bpm-picker>');
    const seen = await page.evaluate(async () => {
        const element = document.createElement('gx-distance-picker');
        const count = () => ['.row', '.column'].map((name) => element.shadowRoot.querySelectorAll(name).length > 1);
        const frame = () => new Promise((resolve) => requestAnimationFrame(() => resolve(count())));
        document.body.append(element);
        return [count(), await frame(), await frame()];
    });
    assert.deepEqual(seen, [
        [true, false],
        [true, false],
        [true, true],
    ]);
    await close();
});

test('in steady motion no element is made or removed, and only what moves is written', async () => {
    const { page, close } = await stage.open('<gx-bpm-picker max="100000" step="1"></gx-bpm-picker>');
    await untilColumns(page, 'gx-bpm-picker');
    const changes = await page.evaluate(async () => {
        const surface = document.querySelector('gx-bpm-picker').shadowRoot.querySelector('.surface');
        const column = document.querySelector('gx-bpm-picker').shadowRoot.querySelector('.column');
        const notch = () =>
            column.dispatchEvent(
                new WheelEvent('wheel', {
                    deltaY: 9,
                    deltaMode: 1,
                    bubbles: true,
                    cancelable: true,
                    clientX: column.getBoundingClientRect().x + 5,
                    clientY: 100,
                }),
            );
        const frames = async (count) => {
            for (let i = 0; i < count; i += 1) await new Promise((resolve) => requestAnimationFrame(resolve));
        };
        notch();
        await frames(10);
        let made = 0;
        const written = { row: 0, indicator: 0 };
        const watch = new MutationObserver((list) => {
            made += list.filter((entry) => entry.target === surface && entry.type === 'childList').length;
            for (const { type, target } of list) if (type === 'attributes') written[target.part.value] += 1;
        });
        watch.observe(surface, { childList: true, subtree: true, attributes: true });
        for (let i = 0; i < 5; i += 1) notch();
        await frames(20);
        watch.disconnect();
        return { made, written };
    });
    assert.equal(changes.made, 0);
    assert.ok(changes.written.row > 20, `${changes.written.row} writes to rows`);
    assert.equal(changes.written.indicator, 0);
    await untilStill(page, 'gx-bpm-picker');
    // Six events of three notches.
    assert.equal(await page.evaluate(() => document.querySelector('gx-bpm-picker').value), 178);
    await close();
});

test('each new text of a value is told once, whatever it comes from', async () => {
    const { page, logs, close } = await stage.open('<gx-distance-picker value="5300"></gx-distance-picker>');
    await untilColumns(page, 'gx-distance-picker');
    const texts = await page.evaluate(async () => {
        const picker = document.querySelector('gx-distance-picker');
        const seen = [];
        const next = (work) =>
            new Promise((resolve) => {
                picker.addEventListener('gx-text', () => resolve(seen.push(picker.valueText)), { once: true });
                work();
            });
        await next(() => (picker.value = 6400));
        await next(() => (picker.unit = 'imperial'));
        await next(() => (picker.lang = 'de'));
        let more = 0;
        picker.addEventListener('gx-text', () => (more += 1));
        picker.max = 90_000;
        await new Promise((resolve) => setTimeout(resolve, 200));
        return [...seen, more];
    });
    assert.deepEqual(texts, ['6.4 km', '3.9 mi', '3,9 mi', 0]);
    assertQuiet(logs);
    await close();
});
