// Each way to turn a wheel, in a browser.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { touches, untilStill } from './browser.mjs';
import { assertQuiet, columnPlace, noteEvents, Stage, untilColumns } from './stage.mjs';

const stage = new Stage();
const distance = '<gx-distance-picker value="5000"></gx-distance-picker>';
const asked = 'gx-distance-picker';
// Rows are 40 high; a finger moves 6 before the wheel follows.
const twoRows = 2 * 40 + 6;

async function opened(body = distance, settings = {}) {
    const opening = await stage.open(body, settings);
    await untilColumns(opening.page, asked);
    return {
        ...opening,
        place: await columnPlace(opening.page, asked),
        value: () => opening.page.evaluate(() => document.querySelector('gx-distance-picker').value),
    };
}

test('a finger turns a column, with input on the way and one change at rest', async () => {
    const { page, logs, place, value, close } = await opened();
    const events = await noteEvents(page, asked);
    const finger = await touches(page);
    await finger.drag(place, { x: place.x, y: place.y - twoRows });
    await untilStill(page, asked);
    assert.equal(await value(), 7000);
    const noted = await events();
    assert.deepEqual(
        noted.filter(([type]) => type === 'change'),
        [['change', 7000]],
    );
    assert.equal(noted.at(-1)[0], 'change');
    assert.ok(
        noted.some(([type, at]) => type === 'input' && at === 6000),
        JSON.stringify(noted),
    );
    assert.deepEqual(
        noted.filter(([type]) => type === 'gx-tick'),
        [],
        'ticks are off',
    );
    assertQuiet(logs);
    await close();
});

test('two fingers turn two columns at once', async () => {
    const { page, place, value, close } = await opened();
    const other = await columnPlace(page, asked, 1);
    const finger = await touches(page);
    const at = (points) => [
        { x: place.x, y: place.y - points, id: 1 },
        { x: other.x, y: other.y - points / 2 - 3, id: 2 },
    ];
    await finger.start([
        { ...place, id: 1 },
        { ...other, id: 2 },
    ]);
    for (let i = 1; i <= 10; i += 1) await finger.move(at((twoRows * i) / 10));
    await page.waitForTimeout(200);
    await finger.move(at(twoRows));
    await finger.end();
    await untilStill(page, asked);
    assert.equal(await value(), 7100);
    await close();
});

test('a tap selects the row below it', async () => {
    const { page, place, value, close } = await opened();
    const finger = await touches(page);
    await finger.start([{ x: place.x, y: place.y + 40 }]);
    await finger.end();
    await untilStill(page, asked);
    assert.equal(await value(), 6000);
    await close();
});

test('the mouse drags, and goes on outside the element', async () => {
    const { page, place, value, close } = await opened();
    await page.mouse.move(place.x, place.y);
    await page.mouse.down();
    await page.mouse.move(place.x + 300, place.y - twoRows, { steps: 8 });
    await page.waitForTimeout(200);
    await page.mouse.move(place.x + 301, place.y - twoRows);
    await page.mouse.up();
    await untilStill(page, asked);
    assert.equal(await value(), 7000);
    await close();
});

test('a notch of the mouse wheel is a row, and the page stands still, also at the end', async () => {
    const { page, place, value, close } = await opened(`${distance}<div style="height:3000px"></div>`);
    await page.mouse.move(place.x, place.y);
    await page.mouse.wheel(0, 120);
    await untilStill(page, asked);
    assert.equal(await value(), 6000);
    await page.evaluate(() => (document.querySelector('gx-distance-picker').value = 0));
    for (let i = 0; i < 3; i += 1) await page.mouse.wheel(0, -120);
    await untilStill(page, asked);
    assert.equal(await value(), 0);
    assert.equal(await page.evaluate(() => scrollY), 0);
    await close();
});

test('a wheel that counts in lines or pages turns rows, and sideways it is the page’s', async () => {
    const { page, place, value, close } = await opened();
    const roll = (deltaMode, deltaX, deltaY) =>
        page.evaluate(
            (how) => {
                const event = new WheelEvent('wheel', { ...how, bubbles: true, cancelable: true, composed: true });
                document.querySelector('gx-distance-picker').shadowRoot.querySelector('.column').dispatchEvent(event);
                return event.defaultPrevented;
            },
            { deltaMode, deltaX, deltaY, clientX: place.x, clientY: place.y },
        );
    const [lines, pages] = [1, 2];
    assert.equal(await roll(lines, 0, 6), true);
    await untilStill(page, asked);
    assert.equal(await value(), 7000);
    assert.equal(await roll(pages, 0, 2), true);
    await untilStill(page, asked);
    assert.equal(await value(), 9000);
    // More sideways than down, in either unit.
    assert.equal(await roll(lines, 4, 3), false);
    assert.equal(await roll(pages, 2, 1), false);
    await untilStill(page, asked);
    assert.equal(await value(), 9000);
    await close();
});

test('beside the columns the page scrolls, by wheel and by finger', async () => {
    const { page, value, close } = await opened(`${distance}<div style="height:3000px"></div>`);
    await page.mouse.move(30, 100);
    await page.mouse.wheel(0, 120);
    await page.waitForFunction(() => scrollY > 0);
    await page.evaluate(() => scrollTo(0, 0));
    const finger = await touches(page);
    await finger.drag({ x: 30, y: 150 }, { x: 30, y: 50 }, { rest: 0 });
    await page.waitForFunction(() => scrollY > 0);
    assert.equal(await value(), 5000);
    await close();
});

test('a drag on a column leaves the page where it is', async () => {
    const { page, place, close } = await opened(`${distance}<div style="height:3000px"></div>`);
    const finger = await touches(page);
    await finger.drag(place, { x: place.x, y: place.y - twoRows });
    await untilStill(page, asked);
    assert.equal(await page.evaluate(() => scrollY), 0);
    await close();
});

test('keys move rows, choose columns and type numbers', async () => {
    const { page, value, close } = await opened();
    await page.keyboard.press('Tab');
    const events = await noteEvents(page, asked);
    await page.keyboard.press('ArrowDown');
    await untilStill(page, asked);
    assert.equal(await value(), 6000);
    await page.keyboard.press('ArrowRight');
    await page.keyboard.press('ArrowDown');
    await untilStill(page, asked);
    assert.equal(await value(), 6100);
    assert.equal(
        await page.evaluate(() => document.querySelector('gx-distance-picker').shadowRoot.activeElement.getAttribute('aria-label')),
        'Distance, tenths',
    );
    await page.keyboard.press('ArrowLeft');
    await page.keyboard.press('PageDown');
    await untilStill(page, asked);
    await page.keyboard.press('Home');
    await untilStill(page, asked);
    assert.equal(await value(), 100);
    await page.keyboard.type('12.7');
    // A typed number is reported when nothing can follow it, or after a second.
    await page.waitForFunction(() => globalThis.events.some(([type, at]) => type === 'change' && at === 12700));
    assert.deepEqual((await events()).at(-1), ['change', 12700]);
    await close();
});

test('Tab reaches each column, and keys move the one with the focus', async () => {
    const { page, value, close } = await opened();
    await page.keyboard.press('Tab');
    await page.keyboard.press('Tab');
    await page.keyboard.press('ArrowDown');
    await untilStill(page, asked);
    assert.equal(await value(), 5100);
    await page.keyboard.press('Shift+Tab');
    await page.keyboard.press('ArrowUp');
    await untilStill(page, asked);
    assert.equal(await value(), 4100);
    await close();
});

test('keys that the wheel does not use are the page’s', async () => {
    const { page, value, close } = await opened(`${distance}<input id="next">`);
    await page.keyboard.press('Tab');
    await page.evaluate(() => addEventListener('keydown', (event) => (globalThis.last = [event.key, event.defaultPrevented])));
    await page.keyboard.press('Control+ArrowDown');
    assert.deepEqual(await page.evaluate(() => globalThis.last), ['ArrowDown', false]);
    await page.keyboard.press('ArrowDown');
    assert.deepEqual(await page.evaluate(() => globalThis.last), ['ArrowDown', true]);
    await page.keyboard.press('Tab');
    await page.keyboard.press('Tab');
    assert.equal(await page.evaluate(() => document.activeElement.id), 'next', 'a column each, and then on');
    await untilStill(page, asked);
    assert.equal(await value(), 6000);
    await close();
});

test('ticks are told where they are asked for', async () => {
    const { page, place, close } = await opened('<gx-distance-picker value="5000" ticks></gx-distance-picker>');
    const events = await noteEvents(page, asked);
    await page.mouse.move(place.x, place.y);
    await page.mouse.wheel(0, 120);
    await page.mouse.wheel(0, 120);
    await untilStill(page, asked);
    assert.equal((await events()).filter(([type]) => type === 'gx-tick').length, 2);
    await close();
});

test('what a program sets is neither input nor change', async () => {
    const { page, value, close } = await opened();
    const events = await noteEvents(page, asked);
    await page.evaluate(() => (document.querySelector('gx-distance-picker').value = 8200));
    await untilStill(page, asked);
    assert.equal(await value(), 8200);
    assert.deepEqual(await events(), []);
    await close();
});

test('a disabled picker and one that is read only take no input', async () => {
    for (const attribute of ['disabled', 'readonly']) {
        const { page, place, value, close } = await opened(`<gx-distance-picker value="5000" ${attribute}></gx-distance-picker>`);
        const finger = await touches(page);
        await finger.drag(place, { x: place.x, y: place.y - twoRows });
        await page.mouse.move(place.x, place.y);
        await page.mouse.wheel(0, 120);
        await untilStill(page, asked);
        assert.equal(await value(), 5000, attribute);
        await close();
    }
});

test('a picker that is removed, hidden or left while it spins arrives and reports first', async () => {
    const ways = {
        removed: () => document.querySelector('gx-distance-picker').remove(),
        hidden: () => (document.querySelector('gx-distance-picker').style.display = 'none'),
        left: () => dispatchEvent(new Event('pagehide')),
    };
    for (const [name, way] of Object.entries(ways)) {
        const { page, place, close } = await opened();
        await page.evaluate(() => {
            globalThis.picker = document.querySelector('gx-distance-picker');
            globalThis.changes = 0;
            globalThis.picker.addEventListener('change', () => (globalThis.changes += 1));
        });
        const finger = await touches(page);
        await finger.drag(place, { x: place.x, y: place.y - 90 }, { steps: 4, rest: 0 });
        await page.evaluate(way);
        await page.waitForFunction(() => globalThis.changes > 0);
        assert.equal(await page.evaluate(() => globalThis.changes), 1, name);
        assert.ok((await page.evaluate(() => globalThis.picker.value)) > 6000, name);
        await close();
    }
});

test('a value that `input` reports may be set again, as frameworks do, without ending the spin', async () => {
    const { page, place, value, close } = await opened();
    await page.evaluate(() => {
        const picker = document.querySelector('gx-distance-picker');
        globalThis.counts = { input: 0, change: 0 };
        for (const type of ['input', 'change'])
            picker.addEventListener(type, () => {
                globalThis.counts[type] += 1;
                picker.value = Number(picker.value);
            });
    });
    const before = await value();
    const finger = await touches(page);
    await finger.drag(place, { x: place.x, y: place.y - twoRows });
    await untilStill(page, asked);
    assert.equal(await value(), before + 2000);
    const { input, change } = await page.evaluate(() => globalThis.counts);
    assert.equal(change, 1);
    assert.ok(input >= 1 && input <= 2, `${input}`);
    await close();
});
