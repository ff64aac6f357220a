// Elements that are moved, hidden, copied and taken away, and what they do while nothing happens.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { touches, untilStill } from './browser.mjs';
import { assertQuiet, columnPlace, noteEvents, Stage, untilColumns } from './stage.mjs';

const stage = new Stage();
const asked = 'gx-distance-picker';
const distance = '<gx-distance-picker value="5000"></gx-distance-picker>';

/** Opens a page, and spins the element's first column so that it goes on by itself. */
async function spun(body = distance) {
    const opened = await stage.open(body);
    const { page } = opened;
    await untilColumns(page, asked);
    const place = await columnPlace(page, asked);
    await page.evaluate(() => {
        globalThis.picker = document.querySelector('gx-distance-picker');
        globalThis.changes = [];
        globalThis.picker.addEventListener('change', () => globalThis.changes.push(globalThis.picker.value));
    });
    const finger = await touches(page);
    await finger.drag(place, { x: place.x, y: place.y - 90 }, { steps: 4, rest: 0 });
    return opened;
}

test('one that is moved while it spins arrives, reports once and goes on in its new place', async () => {
    const ways = {
        within: () => document.querySelector('#other').append(globalThis.picker),
        shadow: () => document.querySelector('#other').attachShadow({ mode: 'open' }).append(globalThis.picker),
        frame: () => document.querySelector('iframe').contentDocument.body.append(globalThis.picker),
    };
    for (const [name, way] of Object.entries(ways)) {
        const { page, logs, close } = await spun(
            `${distance}<div id="other"></div><iframe width="600" height="300" srcdoc="<p>frame</p>"></iframe>`,
        );
        await page.evaluate(way);
        await page.waitForFunction(() => globalThis.changes.length > 0);
        const read = () =>
            page.evaluate(() => {
                const { picker, changes } = globalThis;
                const surface = picker.shadowRoot.querySelector('.surface');
                const style = picker.ownerDocument.defaultView.getComputedStyle(surface);
                return {
                    changes,
                    value: picker.value,
                    text: picker.valueText,
                    isReady: surface.classList.contains('isReady'),
                    position: style.position,
                };
            });
        const moved = await read();
        assert.equal(moved.changes.length, 1, name);
        assert.equal(moved.value, moved.changes[0], name);
        assert.ok(moved.value > 6000, `${name}: ${moved.value}`);
        assert.deepEqual([moved.isReady, moved.position], [true, 'absolute'], `${name}: it is shown with its style sheet`);
        // It can be used where it is.
        await page.waitForFunction(() => globalThis.picker.shadowRoot.querySelector('.column'));
        await page.evaluate(() => {
            const column = globalThis.picker.shadowRoot.querySelector('.column');
            column.focus();
            column.dispatchEvent(new KeyboardEvent('keydown', { key: 'ArrowDown', bubbles: true, cancelable: true }));
        });
        await page.waitForFunction(() => globalThis.changes.length > 1);
        assert.equal((await read()).changes[1], moved.value + 1000, name);
        assertQuiet(logs);
        await close();
    }
});

test('one in a shadow tree follows the language inside and around it', async () => {
    const { page, close } = await stage.open('<section lang="de"><div id="host"></div></section>');
    const text = () => page.evaluate(() => document.querySelector('#host').shadowRoot.querySelector('gx-distance-picker').valueText);
    await page.evaluate(() => {
        const shadow = document.querySelector('#host').attachShadow({ mode: 'open' });
        shadow.innerHTML = '<p><gx-distance-picker value="5300"></gx-distance-picker></p>';
    });
    // A language takes effect when its file has come.
    const untilText = (wanted) =>
        page.waitForFunction(
            (expected) => document.querySelector('#host').shadowRoot.querySelector('gx-distance-picker').valueText === expected,
            wanted,
        );
    await untilText('5,3 km');
    await page.evaluate(() => (document.querySelector('section').lang = 'en'));
    assert.equal(await text(), '5.3 km');
    await page.evaluate(() => (document.querySelector('#host').shadowRoot.querySelector('p').lang = 'fr'));
    await untilText('5,3 km');
    await close();
});

test('a copy begins with the attributes, and is one of its own', async () => {
    const { page, logs, close } = await stage.open(`${distance}<div id="other"></div>`);
    const read = await page.evaluate(() => {
        const first = document.querySelector('gx-distance-picker');
        first.value = 8000;
        first.unit = 'imperial';
        const copy = first.cloneNode(true);
        const before = [copy.unit, copy.valueText];
        document.querySelector('#other').append(copy);
        copy.value = 3000;
        return { before, copy: [copy.value, copy.unit], first: [first.value, first.unit] };
    });
    assert.deepEqual(read, { before: ['imperial', ''], copy: [3000, 'imperial'], first: [8000, 'imperial'] });
    assertQuiet(logs);
    await close();
});

test('what is not on the page keeps what is set, and shows it when it is', async () => {
    const { page, logs, close } = await stage.open('<main></main>');
    const read = await page.evaluate(() => {
        const element = document.createElement('gx-distance-picker');
        element.setAttribute('value', '6000');
        const byAttribute = element.value;
        element.value = 7000;
        const byProperty = element.value;
        document.querySelector('main').append(element);
        const shown = element.valueText;
        element.remove();
        element.value = 9000;
        document.querySelector('main').append(element);
        return [byAttribute, byProperty, shown, element.valueText];
    });
    assert.deepEqual(read, [6000, 7000, '7.0 km', '9.0 km']);
    assertQuiet(logs);
    await close();
});

test('a hidden page, and one that is left, let everything arrive', async () => {
    const ways = {
        hidden: () => {
            Object.defineProperty(document, 'visibilityState', { value: 'hidden', configurable: true });
            document.dispatchEvent(new Event('visibilitychange'));
        },
        left: () => dispatchEvent(new Event('pagehide')),
        around: () => (document.querySelector('div').style.display = 'none'),
    };
    for (const [name, way] of Object.entries(ways)) {
        const { page, close } = await spun(`<div>${distance}</div>`);
        await page.evaluate(way);
        await page.waitForFunction(() => globalThis.changes.length > 0);
        assert.equal(await page.evaluate(() => globalThis.changes.length), 1, name);
        await page.evaluate(() => (document.querySelector('div').style.display = ''));
        await untilStill(page, asked);
        assert.equal(await page.evaluate(() => globalThis.changes.length), 1, name);
        await close();
    }
});

test('no frame is asked for while nothing moves', async () => {
    const { page, close } = await stage.open(`${distance}<gx-duration-picker></gx-duration-picker><gx-height-picker></gx-height-picker>`);
    await untilColumns(page, 'gx-height-picker');
    await page.evaluate(() => document.querySelector('gx-distance-picker').focus());
    await page.keyboard.press('ArrowDown');
    await untilStill(page, asked);
    const asks = await page.evaluate(async () => {
        const real = globalThis.requestAnimationFrame;
        let count = 0;
        globalThis.requestAnimationFrame = (callback) => {
            count += 1;
            return real(callback);
        };
        await new Promise((resolve) => setTimeout(resolve, 500));
        const idle = count;
        document.querySelector('gx-distance-picker').value = 9000;
        await new Promise((resolve) => setTimeout(resolve, 200));
        globalThis.requestAnimationFrame = real;
        return { idle, used: count > idle };
    });
    assert.deepEqual(asks, { idle: 0, used: true });
    await close();
});

test('listeners may do anything: remove the element, set its value, disable it', async () => {
    const ways = {
        remove: (event) => event.target.remove(),
        set: (event) => (event.target.value = 2000),
        disable: (event) => (event.target.disabled = true),
        other: (event) => (event.target.unit = 'imperial'),
    };
    /** What each has done to the element. */
    const outcomes = {
        remove: (element) => !element.isConnected,
        set: (element) => element.value === 2000,
        disable: (element) => element.disabled,
        other: (element) => element.unit === 'imperial' && element.valueText.endsWith(' mi'),
    };
    for (const type of ['input', 'change']) {
        for (const [name, way] of Object.entries(ways)) {
            const { page, logs, close } = await stage.open(distance);
            await untilColumns(page, asked);
            const events = await noteEvents(page, asked);
            await page.evaluate(
                ([kind, text]) => {
                    const listener = new Function(`return ${text}`)();
                    globalThis.picker = document.querySelector('gx-distance-picker');
                    globalThis.picker.addEventListener(kind, listener, { once: true });
                    globalThis.picker.focus();
                },
                [type, way.toString()],
            );
            await page.keyboard.press('ArrowDown');
            await page.waitForFunction((kind) => globalThis.events.some(([noted]) => noted === kind), type);
            await page.evaluate(() => new Promise((resolve) => setTimeout(resolve, 100)));
            const noted = await events();
            assert.ok(noted.filter(([kind]) => kind === 'change').length <= 1, `${type} ${name}: ${JSON.stringify(noted)}`);
            const outcome = await page.evaluate((text) => new Function(`return ${text}`)()(globalThis.picker), outcomes[name].toString());
            assert.ok(outcome, `${type} ${name}`);
            assertQuiet(logs);
            await close();
        }
    }
});

test('a device that can vibrate does so for each tick, if ticks are asked for', async () => {
    const { page, close } = await stage.open('<gx-distance-picker value="5000" ticks></gx-distance-picker><gx-bpm-picker></gx-bpm-picker>');
    await untilColumns(page, 'gx-bpm-picker');
    await page.evaluate(() => {
        globalThis.vibrations = [];
        Object.defineProperty(navigator, 'vibrate', { value: (length) => globalThis.vibrations.push(length), configurable: true });
        document.querySelector('gx-bpm-picker').focus();
    });
    await page.keyboard.press('ArrowDown');
    await untilStill(page, 'gx-bpm-picker');
    assert.deepEqual(await page.evaluate(() => globalThis.vibrations), [], 'without the attribute');
    await page.evaluate(() => document.querySelector('gx-distance-picker').focus());
    await page.keyboard.press('ArrowDown');
    await untilStill(page, asked);
    assert.deepEqual(await page.evaluate(() => globalThis.vibrations), [5]);
    await close();
});
