// Spins that the page's compositor shows: rows are animations, and nothing else is different.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { untilStill } from './browser.mjs';
import { provide } from './spins.mjs';
import { assertQuiet, Stage, untilColumns } from './stage.mjs';

const stage = new Stage();
const asked = 'gx-wheel';
const wheel = '<gx-wheel></gx-wheel>';
const fill = () => (document.querySelector('gx-wheel').columns = [{ rows: 1000 }, { rows: 1000 }]);

/** A page with a wheel of a thousand rows. */
async function filled(settings) {
    const opened = await stage.open(wheel, settings);
    await opened.page.evaluate(fill);
    await untilColumns(opened.page, asked);
    await opened.page.evaluate(provide);
    return opened;
}

/** A page with an element that spins by itself, and whose rows the compositor moves. */
async function gliding() {
    const opened = await filled();
    await opened.page.evaluate(async (name) => {
        const element = (globalThis.element = document.querySelector(name));
        globalThis.noted = [];
        for (const type of ['input', 'change']) element.addEventListener(type, () => globalThis.noted.push([type, element.rows?.[0]]));
        await globalThis.spins.flick(element);
        await globalThis.spins.until(() => globalThis.spins.isGliding(element));
    }, asked);
    return opened;
}

test('no frame is asked for while rows glide, every row is told of, and the end is that of any spin', async () => {
    const { page, logs, close } = await gliding();
    const asks = await page.evaluate(async () => {
        const { spins, element } = globalThis;
        const own = globalThis.requestAnimationFrame;
        const from = element.rows[0];
        let count = 0;
        globalThis.requestAnimationFrame = (callback) => {
            count += 1;
            return own(callback);
        };
        await spins.until(() => element.rows[0] >= from + 3);
        const result = { count, isGliding: spins.isGliding(element) };
        globalThis.requestAnimationFrame = own;
        return result;
    });
    assert.ok(asks.isGliding);
    assert.ok(asks.count <= 2, `${asks.count} frames were asked for`);
    await untilStill(page, asked);
    const end = await page.evaluate(() => ({
        noted: globalThis.noted,
        rows: globalThis.element.rows,
        isGliding: globalThis.spins.isGliding(globalThis.element),
        now: globalThis.element.shadowRoot.querySelector('.column').getAttribute('aria-valuenow'),
        text: globalThis.element.shadowRoot.querySelector('.column').getAttribute('aria-valuetext'),
    }));
    const inputs = end.noted.filter(([type]) => type === 'input').map(([, row]) => row);
    assert.deepEqual(
        inputs,
        [...inputs].sort((one, other) => one - other),
    );
    assert.equal(inputs.at(-1), end.rows[0]);
    assert.deepEqual(end.noted.at(-1), ['change', end.rows[0]]);
    assert.equal(end.noted.filter(([type]) => type === 'change').length, 1);
    assert.equal(end.isGliding, false);
    assert.equal(end.now, String(end.rows[0]));
    assert.equal(end.text, String(end.rows[0]));
    assertQuiet(logs);
    await close();
});

test('rows glide from the frame after the finger has left', async () => {
    const { page, close } = await filled();
    const glides = await page.evaluate(async () => {
        const element = document.querySelector('gx-wheel');
        const { spins } = globalThis;
        await spins.flick(element);
        const found = [spins.isGliding(element)];
        for (let i = 0; i < 2; i += 1) await new Promise((resolve) => requestAnimationFrame(resolve));
        return [...found, spins.isGliding(element)];
    });
    assert.deepEqual(glides, [false, true]);
    await close();
});

test('a usual fling is handed over once, with its slow end', async () => {
    const { page, close } = await filled();
    const result = await page.evaluate(async () => {
        const element = document.querySelector('gx-wheel');
        const { Element } = globalThis;
        const own = Element.prototype.animate;
        let count = 0;
        let isNew = true;
        Element.prototype.animate = function (...how) {
            if (isNew) {
                count += 1;
                setTimeout(() => (isNew = true));
            }
            isNew = false;
            return own.apply(this, how);
        };
        await globalThis.spins.flick(element);
        await new Promise((resolve) => element.addEventListener('change', resolve));
        Element.prototype.animate = own;
        return { count, row: element.rows[0] };
    });
    assert.equal(result.count, 1);
    assert.ok(result.row > 5, `it ends at ${result.row}`);
    await close();
});

test('a glide of as many rows as there may be, none of which passes, ends by a timer of its own', async () => {
    const { page, close } = await stage.open(wheel);
    // 36 rows are in sight: with a few more, a glide has as many as it may have.
    await page.evaluate(() => (document.querySelector('gx-wheel').columns = Array.from({ length: 12 }, () => ({ rows: 1000 }))));
    await untilColumns(page, asked);
    await page.evaluate(provide);
    const result = await page.evaluate(async () => {
        const { spins, Element } = globalThis;
        const element = document.querySelector('gx-wheel');
        const { animate } = Element.prototype;
        const { setTimeout: own } = globalThis;
        const delays = [];
        const glides = [];
        globalThis.setTimeout = (work, delay) => {
            delays.push(String(delay));
            return own(work, delay);
        };
        Element.prototype.animate = function (keyframes, how) {
            const last = glides.at(-1);
            if (last?.duration === how.duration) last.frames = Math.max(last.frames, keyframes.offset.length);
            else glides.push({ duration: how.duration, frames: keyframes.offset.length });
            return animate.call(this, keyframes, how);
        };
        const frame = () => new Promise((resolve) => requestAnimationFrame(resolve));
        // A busy machine makes another flick of it, so several are tried.
        for (let i = 0; i < 10; i += 1) {
            await spins.flick(element, 22 + 2 * (i % 4));
            for (let left = 20; left > 0; left -= 1) await frame();
        }
        Element.prototype.animate = animate;
        globalThis.setTimeout = own;
        return { shortest: Math.min(...glides.map(({ frames }) => frames)), delays };
    });
    // Six frames, and the time for which the last one stays.
    assert.ok(result.shortest <= 7, `the shortest glide has ${result.shortest} frames`);
    assert.ok(!result.delays.includes('NaN'), result.delays.join());
    await close();
});

test('what the compositor shows is where the module has the rows at that time', async () => {
    const { page, close } = await gliding();
    const difference = await page.evaluate(async () => {
        const { spins, element } = globalThis;
        await spins.until(() => spins.isGliding(element));
        // An even moment of the page's own time line: nothing happens between both looks.
        const { now } = performance;
        let told = 0;
        element.addEventListener('input', () => (told = performance.now()));
        const starts = () => spins.animations(element).map((each) => each.startTime);
        let time;
        do {
            if (!spins.isGliding(element)) await spins.flick(element);
            await new Promise((resolve) => requestAnimationFrame(resolve));
            time = document.timeline.currentTime;
            // On a busy machine a row may have passed after the time of this late frame, or the
            // spin has ended by now.
        } while (told >= time || !spins.isGliding(element) || starts().some((start) => start > time));
        const wasGliding = spins.isGliding(element);
        performance.now = () => time;
        const shown = spins.places(element, (node) => getComputedStyle(node));
        // Whatever is set takes the rows back, where they are at this time.
        element.setAttribute('readonly', '');
        performance.now = now;
        const written = spins.places(element, (node) => node.style);
        const isGliding = spins.isGliding(element);
        let most = 0;
        let shades = 0;
        let count = 0;
        for (const [row, { matrix, opacity }] of shown) {
            // A row that is not drawn yet, or no more, has no place, and is unseen.
            const other = written.get(row) ?? { matrix, opacity: 0 };
            shades = Math.max(shades, Math.abs(other.opacity - opacity));
            if (opacity <= 0.02) continue;
            count += 1;
            most = Math.max(most, Math.abs(other.matrix.f - matrix.f) + 40 * Math.abs(other.matrix.d - matrix.d));
        }
        return { most, shades, wasGliding, isGliding, count };
    });
    assert.ok(difference.count >= 7);
    assert.ok(difference.wasGliding && !difference.isGliding);
    assert.ok(difference.most < 0.5, `${difference.most} pixels apart`);
    assert.ok(difference.shades < 0.2, `${difference.shades} of an opacity apart`);
    await close();
});

test('rows of a column that has glided stay where they are while another one glides', async () => {
    const { page, close } = await gliding();
    await untilStill(page, asked);
    const { before, after, isGliding, count } = await page.evaluate(async () => {
        const { spins, element } = globalThis;
        const box = element.shadowRoot.querySelector('.column').getBoundingClientRect();
        const resting = () =>
            [...spins.boxes(element)].filter(({ x }) => x < box.right).map(({ x, y, width, height }) => [x, y, width, height].join());
        const before = resting().sort();
        await spins.flick(element, 120, 1);
        await spins.until(() => element.rows[1] > 3);
        return { before, after: resting().sort(), isGliding: spins.isGliding(element), count: before.length };
    });
    assert.ok(isGliding);
    assert.ok(count >= 5, `${count} rows are in sight`);
    assert.deepEqual(after, before);
    await close();
});

test('a finger that catches the rows has them where they were at its own time, to the bit', async () => {
    const { page, close } = await filled();
    const caught = await page.evaluate(async () => {
        const { spins } = globalThis;
        const element = document.querySelector('gx-wheel');
        const events = await spins.flick(element);
        // Two rows after the finger: on a busy machine the flick is a slow one.
        await spins.until(() => spins.isGliding(element) && element.rows[0] > 5);
        const node = element.shadowRoot.querySelector('.column');
        const box = node.getBoundingClientRect();
        const event = new PointerEvent('pointerdown', {
            pointerId: 8,
            pointerType: 'touch',
            clientX: box.x + box.width / 2,
            clientY: box.y + box.height / 2,
            bubbles: true,
            composed: true,
        });
        // A busy page hands it over late.
        const end = performance.now() + 30;
        while (performance.now() < end);
        const wasGliding = spins.isGliding(element);
        node.dispatchEvent(event);
        return {
            events,
            time: event.timeStamp / 1000,
            wasGliding,
            isGliding: spins.isGliding(element),
            written: spins.written(element),
        };
    });
    assert.ok(caught.wasGliding && !caught.isGliding);
    // The same by frames, on a clock of its own whose last frame is at the time of the touch.
    const expected = await page.evaluate(async ({ events, time }) => {
        const { HandClock, setFrameClock } = await import('/package/gxuipickers.js');
        // Before the clock changes: it takes back its frame of the page's clock.
        document.querySelector('gx-wheel').remove();
        const clock = new HandClock(events[0][2] - 1);
        setFrameClock(clock);
        const other = document.createElement('gx-wheel');
        other.columns = [{ rows: 1000 }, { rows: 1000 }];
        document.body.append(other);
        for (let i = 0; i < 10; i += 1) clock.step(0.01);
        const node = other.shadowRoot.querySelector('.column');
        const box = node.getBoundingClientRect();
        const send = (type, offset) =>
            node.dispatchEvent(
                new PointerEvent(type, {
                    pointerId: 7,
                    pointerType: 'touch',
                    clientX: box.x + box.width / 2,
                    clientY: box.y + box.height / 2 - offset,
                    bubbles: true,
                    composed: true,
                }),
            );
        for (const [type, offset, at] of events) {
            clock.stepTo(at);
            send(type, offset);
        }
        while (clock.now() + 0.011 < time) clock.step(0.011);
        clock.stepTo(time);
        const written = globalThis.spins.written(other);
        setFrameClock();
        return written;
    }, caught);
    assert.ok(expected.length >= 7);
    assert.deepEqual(caught.written, expected);
    await close();
});

test('whatever happens to an element, its rows are its own again at once, and it is told once', async () => {
    const ways = {
        remove: (element) => element.remove(),
        disable: (element) => (element.disabled = true),
        hide: (element) => (element.hidden = true),
        resize: (element) => (element.style.width = '250px'),
        zoom: (element) => (element.style.fontSize = '30px'),
        rows: (element) => (element.rows = [500, 1]),
        columns: (element) => (element.columns = [{ rows: 5 }]),
        leave: () => dispatchEvent(new Event('pagehide')),
        key: (element) =>
            element.shadowRoot
                .querySelector('.column')
                .dispatchEvent(new KeyboardEvent('keydown', { key: 'ArrowDown', bubbles: true, composed: true })),
    };
    const { page, logs, close } = await stage.open('');
    await page.evaluate(provide);
    for (const [name, way] of Object.entries(ways)) {
        const result = await page.evaluate(async (text) => {
            const { spins } = globalThis;
            const element = document.createElement('gx-wheel');
            element.columns = [{ rows: 1000 }, { rows: 1000 }];
            document.body.replaceChildren(element);
            await spins.until(() => element.shadowRoot.querySelector('.column'));
            const changes = [];
            element.addEventListener('change', () => changes.push(element.rows[0]));
            await spins.flick(element);
            await spins.until(() => spins.isGliding(element));
            const from = element.rows[0];
            const animations = spins.animations(element);
            new Function(`return ${text}`)()(element);
            // Sizes are told with the next frame.
            await new Promise((resolve) => requestAnimationFrame(() => setTimeout(resolve, 20)));
            // On a busy machine, a spin that goes on may be handed over again by now.
            const wasTaken = animations.every(({ playState }) => playState === 'idle');
            element.remove();
            return { from, wasTaken, changes, rows: element.rows };
        }, way.toString());
        const context = `${name}: ${JSON.stringify(result)}`;
        assert.ok(result.wasTaken, context);
        if (name === 'rows') assert.deepEqual([result.rows, result.changes], [[500, 1], []], context);
        else if (name === 'columns') assert.deepEqual(result.rows.length, 1, context);
        else assert.deepEqual(result.changes, [result.rows[0]], context);
        if (!['rows', 'columns'].includes(name)) assert.ok(result.rows[0] >= result.from, context);
    }
    assertQuiet(logs);
    await close();
});

test('a listener may read values while rows glide, and one that sets a value ends that', async () => {
    const { page, close } = await gliding();
    const result = await page.evaluate(async () => {
        const { spins, element } = globalThis;
        const from = element.rows[0];
        let read = 0;
        element.addEventListener('input', () => {
            if (element.valueText !== '') read = element.rows[0];
        });
        await spins.until(() => read > from + 1);
        const wasGliding = spins.isGliding(element);
        element.addEventListener('input', () => (element.rows = [3, 0]), { once: true });
        await spins.until(() => element.rows[0] === 3);
        return { wasGliding, isGliding: spins.isGliding(element) };
    });
    assert.deepEqual(result, { wasGliding: true, isGliding: false });
    await close();
});

test('two elements glide apart from each other', async () => {
    const { page, close } = await stage.open(
        '<gx-distance-picker value="5000"></gx-distance-picker><gx-bpm-picker value="60"></gx-bpm-picker>',
    );
    await untilColumns(page, 'gx-bpm-picker');
    await page.evaluate(provide);
    const result = await page.evaluate(async () => {
        const { spins } = globalThis;
        const [one, other] = [document.querySelector('gx-distance-picker'), document.querySelector('gx-bpm-picker')];
        await Promise.all([spins.flick(one), spins.flick(other)]);
        await spins.until(() => spins.isGliding(one) && spins.isGliding(other));
        one.value = 7000;
        const after = [spins.isGliding(one), spins.isGliding(other)];
        await spins.until(() => !spins.isGliding(other));
        return { after, value: one.value };
    });
    assert.deepEqual(result, { after: [false, true], value: 7000 });
    await close();
});

test('titles that the page computes are asked for in their own time alone', async () => {
    const { page, close } = await stage.open(wheel);
    await page.evaluate(() => (document.querySelector('gx-wheel').columns = [{ rows: 1000, title: (row) => `no. ${row}` }]));
    await untilColumns(page, asked);
    await page.evaluate(provide);
    const result = await page.evaluate(async () => {
        const { spins } = globalThis;
        const element = document.querySelector('gx-wheel');
        let hasGlided = false;
        element.addEventListener('input', () => (hasGlided ||= spins.isGliding(element)));
        await spins.flick(element);
        await new Promise((resolve) => element.addEventListener('change', resolve));
        return { hasGlided, row: element.rows[0] };
    });
    assert.equal(result.hasGlided, false);
    assert.ok(result.row > 5);
    await close();
});

test('with reduced motion nothing glides', async () => {
    const { page, close } = await filled({ context: { reducedMotion: 'reduce' } });
    const hasGlided = await page.evaluate(async () => {
        const { spins } = globalThis;
        const element = document.querySelector('gx-wheel');
        let glided = false;
        let hasChanged = false;
        element.addEventListener('change', () => (hasChanged = true));
        await spins.flick(element);
        for (let frames = 0; frames < 20 || !hasChanged; frames += 1) {
            glided ||= spins.isGliding(element);
            await new Promise((resolve) => requestAnimationFrame(resolve));
        }
        return glided;
    });
    assert.equal(hasGlided, false);
    await close();
});
