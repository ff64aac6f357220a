// The main ways once more in Firefox.
import { after, before, test } from 'node:test';
import assert from 'node:assert/strict';
import { pageOf } from './browser.mjs';
import { everyElement, table } from './every.mjs';
import { Firefox, hasFirefox } from './marionette.mjs';
import { packageFolder } from './places.mjs';
import { startServer } from '../../gallery/web/server.mjs';

const settings = hasFirefox ? {} : { skip: 'Firefox is not installed' };
const key = { tab: '\uE004', left: '\uE012', up: '\uE013', right: '\uE014', down: '\uE015', home: '\uE011', pageDown: '\uE00F' };
const distance = '<gx-distance-picker value="5000"></gx-distance-picker>';
const head = `<script>
    window.errors = [];
    addEventListener('error', (event) => errors.push(event.message));
    window.elements = new Promise((resolve) => addEventListener('load', () => resolve(import('/package/gxuipickers.js'))));
    addEventListener('unhandledrejection', (event) => errors.push(String(event.reason)));
</script>`;
const pages = {};
let server;
let firefox;

if (hasFirefox) {
    before(async () => {
        server = await startServer({ folders: { '/package/': packageFolder }, pages });
        firefox = await Firefox.start();
    });
    after(async () => {
        await firefox?.stop();
        await server?.stop();
    });
}

/** Opens a page and waits until all its elements can be touched. */
async function open(body) {
    const address = `/${Object.keys(pages).length}.html`;
    pages[address] = pageOf(body, { head });
    await firefox.open(server.address + address);
    await firefox.run(async () => {
        const wheel = document.querySelector('gx-wheel');
        if (wheel) {
            wheel.columns = [
                { rows: ['red', 'green'], label: 'Colour' },
                { rows: 100, label: 'Number' },
            ];
            wheel.rows = [1, 17];
        }
        const elements = [...document.querySelectorAll('*')].filter((node) => node.localName.startsWith('gx-'));
        while (!elements.every((node) => node.shadowRoot?.querySelector('.column')))
            await new Promise((resolve) => requestAnimationFrame(resolve));
        window.noted = [];
        for (const type of ['input', 'change']) document.addEventListener(type, (event) => window.noted.push([type, event.target.value]));
    });
}

const place = (column = 0) =>
    firefox.run((index) => {
        const box = document.querySelector('gx-distance-picker').shadowRoot.querySelectorAll('.column')[index].getBoundingClientRect();
        return { x: box.x + box.width / 2, y: box.y + box.height / 2 };
    }, column);

/** The value of the distance once it has told a change. */
const changed = () =>
    firefox.run(async () => {
        const end = performance.now() + 10000;
        const isThere = () => window.noted.some(([type]) => type === 'change');
        while (!isThere() && performance.now() < end) await new Promise((resolve) => requestAnimationFrame(resolve));
        const { noted } = globalThis;
        window.noted = [];
        return { value: document.querySelector('gx-distance-picker').value, noted };
    });

test('every element opens, with its columns for screen readers', settings, async () => {
    await open(`<main>${everyElement()}</main>`);
    const read = await firefox.run(() =>
        Object.fromEntries(
            [...document.querySelectorAll('main > *')].map((node) => [
                node.localName,
                [...node.shadowRoot.querySelectorAll('.column')].map((column) => [
                    `${column.getAttribute('aria-label')}: ${column.getAttribute('aria-valuetext')}`,
                    ['now', 'min', 'max'].map((name) => Number(column.getAttribute(`aria-value${name}`))),
                ]),
            ]),
        ),
    );
    for (const [name, numbers] of Object.entries(table.numbers)) {
        assert.deepEqual(
            read[name].map(([, own]) => own),
            numbers,
            name,
        );
        const texts = table.texts.en[name];
        if (texts) {
            assert.deepEqual(
                read[name].map(([text]) => text),
                texts,
                name,
            );
        }
    }
    assert.deepEqual(await firefox.run(() => window.errors), []);
});

test('a finger turns a column, and two fingers two', settings, async () => {
    await open(distance);
    await firefox.perform(Firefox.drag('touch', await place(), 86));
    const { value, noted } = await changed();
    assert.equal(value, 7000);
    assert.deepEqual(noted.at(-1), ['change', 7000]);
    assert.ok(noted.some(([type, at]) => type === 'input' && at === 6000));
    await firefox.perform(Firefox.drag('touch', await place(0), 46), Firefox.drag('touch', await place(1), 86));
    let last = await changed();
    if (last.value !== 8200) last = await changed(); // Each column tells its own change.
    assert.equal(last.value, 8200);
    assert.deepEqual(await firefox.run(() => window.errors), []);
});

test('a flick glides by animations, and lands where the same one by frames does', settings, async () => {
    await open('<gx-wheel></gx-wheel>');
    const { glided, frames, row, expected } = await firefox.run(async () => {
        const { HandClock, setFrameClock } = await window.elements;
        const wait = (milliseconds) => new Promise((resolve) => setTimeout(resolve, milliseconds));
        /** Made-up touches of the second column; `next` is awaited before each. */
        const flick = async (element, next) => {
            const node = element.shadowRoot.querySelectorAll('.column')[1];
            const box = node.getBoundingClientRect();
            const times = [];
            for (let step = 0; step <= 7; step += 1) {
                await next(step);
                const event = new PointerEvent(step === 0 ? 'pointerdown' : step === 7 ? 'pointerup' : 'pointermove', {
                    pointerId: 7,
                    pointerType: 'touch',
                    clientX: box.x + box.width / 2,
                    clientY: box.y + box.height / 2 - Math.min(step, 6) * 20,
                    bubbles: true,
                    composed: true,
                });
                times.push(event.timeStamp / 1000);
                node.dispatchEvent(event);
            }
            return times;
        };
        const isGliding = (element) => element.shadowRoot.querySelector('.surface').getAnimations({ subtree: true }).length > 0;

        const element = document.querySelector('gx-wheel');
        let hasChanged = false;
        element.addEventListener('change', () => (hasChanged = true));
        const times = await flick(element, () => wait(14));
        const end = performance.now() + 20000;
        const own = globalThis.requestAnimationFrame;
        const found = { glided: false, frames: 0 };
        while (!isGliding(element) && !hasChanged && performance.now() < end) await wait(5);
        found.glided = isGliding(element);
        globalThis.requestAnimationFrame = (callback) => {
            if (isGliding(element)) found.frames += 1;
            return own(callback);
        };
        while (!hasChanged && performance.now() < end) await wait(20);
        globalThis.requestAnimationFrame = own;
        found.row = element.rows[1];

        // The same events once more, by a clock that goes from frame to frame.
        const { columns } = element;
        element.remove(); // Before the clock changes: it takes back its frame of the page's clock.
        const clock = new HandClock(times[0] - 1);
        setFrameClock(clock);
        const other = document.createElement('gx-wheel');
        other.columns = columns;
        other.rows = [1, 17];
        document.body.append(other);
        for (let i = 0; i < 10; i += 1) clock.step(0.01);
        await flick(other, (step) => clock.stepTo(times[step]));
        clock.runUntilStill();
        found.expected = other.rows[1];
        setFrameClock();
        return found;
    });
    assert.ok(glided);
    assert.ok(frames <= 4, `${frames} frames were asked for`);
    assert.ok(row > 20);
    assert.equal(row, expected);
    assert.deepEqual(await firefox.run(() => window.errors), []);
});

test('the mouse drags, and its wheel turns while the page stands still', settings, async () => {
    await open(`${distance}<div style="height: 3000px"></div>`);
    await firefox.perform(Firefox.drag('mouse', await place(), 86));
    assert.equal((await changed()).value, 7000);
    const { x, y } = await place();
    await firefox.perform({
        type: 'wheel',
        actions: [{ type: 'scroll', x: Math.round(x), y: Math.round(y), deltaX: 0, deltaY: 120, duration: 0 }],
    });
    assert.ok((await changed()).value > 7000);
    assert.equal(await firefox.run(() => scrollY), 0);
});

test('in a page that the browser zooms, a finger is on the rows', settings, async () => {
    await open(distance);
    for (const zoom of [0.5, 2]) {
        await firefox.zoom(zoom);
        await firefox.run(() => (document.querySelector('gx-distance-picker').value = 5000));
        // By its protocol, fingers are at pixels of the page.
        await firefox.perform(Firefox.drag('touch', await place(), 86));
        assert.equal((await changed()).value, 7000, `${zoom}`);
        assert.equal(await firefox.run(() => Math.round(globalThis.devicePixelRatio * 100)), zoom * 100);
    }
    await firefox.zoom(1);
});

test('keys move rows, choose columns and type numbers', settings, async () => {
    await open(distance);
    await firefox.press(key.tab, key.down);
    assert.equal((await changed()).value, 6000);
    await firefox.press(key.right, key.down);
    assert.equal((await changed()).value, 6100);
    await firefox.press(key.left, key.home);
    assert.equal((await changed()).value, 100);
    await firefox.press('1', '2', '.', '7');
    let last = await changed();
    while (last.value !== 12700 && last.noted.length > 0) last = await changed();
    assert.equal(last.value, 12700);
});

test('a form has, resets and disables it, and its label focuses it', settings, async () => {
    await open(`<form><label for="way">Way</label><gx-distance-picker id="way" name="way" value="5300"></gx-distance-picker>
        <fieldset><gx-bpm-picker name="rate" value="100"></gx-bpm-picker></fieldset></form>`);
    const read = await firefox.run(() => {
        const form = document.querySelector('form');
        const data = () => Object.fromEntries(new FormData(form));
        const before = data();
        document.querySelector('#way').value = 8000;
        const set = data();
        form.reset();
        const reset = data();
        document.querySelector('fieldset').disabled = true;
        const disabled = data();
        document.querySelector('label').click();
        return { before, set, reset, disabled, focus: document.activeElement.id };
    });
    assert.deepEqual(read, {
        before: { way: '5300', rate: '100' },
        set: { way: '8000', rate: '100' },
        reset: { way: '5300', rate: '100' },
        disabled: { way: '5300' },
        focus: 'way',
    });
});

test('from right to left the unit stands left of the number', settings, async () => {
    await open(`<div dir="rtl">${distance}</div>`);
    const [label, column] = await firefox.run(() => {
        const shadow = document.querySelector('gx-distance-picker').shadowRoot;
        return ['.surface .label', '.column'].map((selector) => shadow.querySelector(selector).getBoundingClientRect().left);
    });
    assert.ok(label < column);
    await firefox.perform(Firefox.drag('touch', await place(), 86));
    assert.equal((await changed()).value, 7000);
});
