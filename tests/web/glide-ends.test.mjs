// What happens to an element while the page's compositor shows its spin.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { openGliding, openWheel, provide } from './spins.mjs';
import { assertQuiet, Stage } from './stage.mjs';

const stage = new Stage();

test('a finger that catches the rows has them where they were at its own time, to the bit', async () => {
    const { page, close } = await openWheel(stage);
    const caught = await page.evaluate(async () => {
        const { spins } = globalThis;
        const element = document.querySelector('gx-wheel');
        const events = await spins.flick(element);
        // Two rows after the finger: on a busy machine the flick is a slow one.
        await spins.until(() => spins.isGliding(element) && element.rows[0] > 5);
        const touch = spins.point(element, 'pointerdown', { pointerId: 8 });
        // A busy page hands it over late.
        const end = performance.now() + 30;
        while (performance.now() < end);
        const wasGliding = spins.isGliding(element);
        touch.dispatch();
        return {
            events,
            time: touch.event.timeStamp / 1000,
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
        for (const [type, offset, at] of events) {
            clock.stepTo(at);
            globalThis.spins.point(other, type, { offset }).dispatch();
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
    const { page, close } = await openGliding(stage);
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
