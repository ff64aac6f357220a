// What the module takes and gives back, and what happens when there is no more.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { untilStill } from './browser.mjs';
import { assertQuiet, columnPlace, Stage, untilColumns } from './stage.mjs';

const stage = new Stage();

/** In the page: elements come and go. Returns what is left in the module, in bytes and elements. */
const comeAndGo = async (rounds) => {
    const { loadedModule } = await import('/package/gxuipickers.js');
    const frame = () => new Promise((resolve) => requestAnimationFrame(resolve));
    const names = ['distance', 'weight', 'heart-rate', 'height', 'distance-and-duration', 'pace', 'temperature', 'icon', 'bpm', 'speed'];
    const picture = '<svg aria-label="a" width="8" height="8"></svg>';
    for (let round = 0; round < rounds; round += 1) {
        document.body.innerHTML = names.map((name) => `<gx-${name}-picker>${name === 'icon' ? picture : ''}</gx-${name}-picker>`).join('');
        await frame();
        document.body.innerHTML = '';
    }
    await frame();
    return { bytes: loadedModule().calls.liveBytes(), elements: loadedModule().calls.elementCount() };
};

test('a thousand elements of all kinds give back every byte', async () => {
    const { page, logs, close } = await stage.open('');
    await page.waitForFunction(async () => (await import('/package/gxuipickers.js')).loadedModule() !== undefined);
    const first = await page.evaluate(comeAndGo, 3);
    const then = await page.evaluate(comeAndGo, 100);
    assert.equal(then.elements, 0);
    assert.equal(then.bytes, first.bytes);
    assertQuiet(logs);
    await close();
});

test('a thousand pictures and a wheel of all rows that a number can count leave nothing behind', async () => {
    const { page, logs, close } = await stage.open('');
    await page.waitForFunction(async () => (await import('/package/gxuipickers.js')).loadedModule() !== undefined);
    const work = async () => {
        const { loadedModule } = await import('/package/gxuipickers.js');
        const frame = () => new Promise((resolve) => requestAnimationFrame(resolve));
        document.body.innerHTML = `<gx-icon-picker>${'<svg aria-label="a" width="8" height="8"></svg>'.repeat(1000)}</gx-icon-picker><gx-wheel></gx-wheel>`;
        const wheel = document.querySelector('gx-wheel');
        wheel.columns = Array.from({ length: 50 }, () => ({ rows: 2 ** 53, title: () => 'row' }));
        wheel.rows = Array.from({ length: 50 }, (_, i) => (i % 2 ? 2 ** 53 : 2 ** 53 - 1));
        document.querySelector('gx-icon-picker').value = 999;
        await frame();
        const shown = [document.querySelector('gx-icon-picker').value, ...wheel.rows.slice(0, 2)];
        document.body.innerHTML = '';
        await frame();
        return { shown, bytes: loadedModule().calls.liveBytes() };
    };
    const first = await page.evaluate(work);
    assert.deepEqual(first.shown, [999, 2 ** 53 - 1, 2 ** 53 - 1], 'the last row is the highest that a double counts');
    for (let i = 0; i < 3; i += 1) assert.deepEqual(await page.evaluate(work), first);
    assertQuiet(logs);
    await close();
});

test('without memory one element stops with a message, and all others go on with their values', async () => {
    const body = `<gx-distance-picker value="5000"></gx-distance-picker><gx-weight-picker value="72.5" unit="kg" lang="de"></gx-weight-picker>
        <gx-icon-picker><p>Instead</p></gx-icon-picker>`;
    const { page, logs, close } = await stage.open(body);
    await untilColumns(page, 'gx-distance-picker');
    await page.mouse.move(...Object.values(await columnPlace(page, 'gx-distance-picker')));
    await page.mouse.wheel(0, 120);
    await untilStill(page, 'gx-distance-picker');
    await page.evaluate(async () => {
        const { loadedModule } = await import('/package/gxuipickers.js');
        loadedModule().limitMemory(3 * 1024 * 1024);
        document.querySelector('gx-icon-picker').insertAdjacentHTML('beforeend', '<svg aria-label="a"></svg>'.repeat(40000));
    });
    await page.waitForFunction(() => !document.querySelector('gx-icon-picker').shadowRoot.querySelector('.surface.isReady'));
    const messages = logs.filter((line) => line.startsWith('error'));
    assert.equal(messages.length, 1, logs.join('\n'));
    assert.match(messages[0], /<gx-icon-picker> has stopped/);
    assert.deepEqual(
        logs.filter((line) => line.startsWith('thrown')),
        [],
    );
    const texts = () => page.evaluate(() => ['distance', 'weight'].map((name) => document.querySelector(`gx-${name}-picker`).valueText));
    assert.deepEqual(await texts(), ['6.0 km', '72,5 kg'], 'what the user has chosen, and a language that was loaded');
    await untilColumns(page, 'gx-distance-picker');
    await page.mouse.move(...Object.values(await columnPlace(page, 'gx-distance-picker')));
    await page.mouse.wheel(0, 120);
    await untilStill(page, 'gx-distance-picker');
    assert.equal((await texts())[0], '7.0 km');
    assert.equal(
        await page.evaluate(() => {
            document.body.insertAdjacentHTML('beforeend', '<gx-bpm-picker value="90"></gx-bpm-picker>');
            return document.querySelector('gx-bpm-picker').valueText;
        }),
        '90 bpm',
        'and others can still be made',
    );
    await close();
});

test('an element that has stopped while it looked ahead shows its selection indicator when it is opened again', async () => {
    const { page, logs, close } = await stage.open('<gx-bpm-picker value="90"></gx-bpm-picker>');
    const isIndicatorShown = () =>
        page.evaluate(() => document.querySelector('gx-bpm-picker').shadowRoot.querySelector('.indicator').style.display !== 'none');
    await untilColumns(page, 'gx-bpm-picker');
    assert.ok(await isIndicatorShown());
    await page.evaluate(async () => {
        const { loadedModule } = await import('/package/gxuipickers.js');
        const module = loadedModule();
        const own = module.runAhead;
        module.runAhead = (work) => {
            delete module.runAhead;
            module.draw = () => {
                throw new RangeError('There is no memory left.');
            };
            try {
                own.call(module, work);
            } finally {
                delete module.draw;
            }
        };
    });
    await page.mouse.move(...Object.values(await columnPlace(page, 'gx-bpm-picker')));
    await page.mouse.wheel(0, 600);
    await page.waitForFunction(() => !document.querySelector('gx-bpm-picker').shadowRoot.querySelector('.surface.isReady'));
    assert.equal(logs.filter((line) => line.startsWith('error')).length, 1, logs.join('\n'));
    await page.evaluate(() => document.body.append(document.querySelector('gx-bpm-picker')));
    await untilColumns(page, 'gx-bpm-picker');
    assert.ok(await isIndicatorShown());
    await close();
});
