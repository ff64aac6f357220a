// Spins that the page's compositor shows: rows are animations, and nothing else is different.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { untilStill } from './browser.mjs';
import { openGliding, openWheel, provide } from './spins.mjs';
import { assertQuiet, Stage, untilColumns } from './stage.mjs';

const stage = new Stage();
const asked = 'gx-wheel';

test('no frame is asked for while rows glide, every row is told of, and the end is that of any spin', async () => {
    const { page, logs, close } = await openGliding(stage);
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
    const { page, close } = await openWheel(stage);
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
    const { page, close } = await openWheel(stage);
    const result = await page.evaluate(async () => {
        const { spins, Element } = globalThis;
        const element = document.querySelector('gx-wheel');
        const own = Element.prototype.animate;
        const times = new Set();
        Element.prototype.animate = function (...how) {
            times.add(performance.now());
            return own.apply(this, how);
        };
        let hasChanged = false;
        element.addEventListener('change', () => (hasChanged = true));
        const time = spins.holdTime();
        await spins.flick(element);
        time.play(600, () => hasChanged);
        return { count: times.size, hasChanged, row: element.rows[0] };
    });
    assert.equal(result.count, 1);
    assert.ok(result.hasChanged);
    assert.ok(result.row > 5, `it ends at ${result.row}`);
    await close();
});

test('a glide of as many rows as there may be, none of which passes, ends by a timer of its own', async () => {
    const { page, close } = await openWheel(stage);
    // 36 rows are in sight: with a few more, a glide has as many as it may have.
    await page.evaluate(() => (document.querySelector('gx-wheel').columns = Array.from({ length: 12 }, () => ({ rows: 1000 }))));
    await untilStill(page, asked);
    const result = await page.evaluate(async () => {
        const { spins, Element } = globalThis;
        const element = document.querySelector('gx-wheel');
        const { animate } = Element.prototype;
        const glides = [];
        Element.prototype.animate = function (keyframes, how) {
            const last = glides.at(-1);
            if (last?.duration === how.duration) last.frames = Math.max(last.frames, keyframes.offset.length);
            else glides.push({ duration: how.duration, frames: keyframes.offset.length });
            return animate.call(this, keyframes, how);
        };
        const time = spins.holdTime();
        for (const distance of [22, 24, 26, 28]) {
            await spins.flick(element, distance);
            time.play(20);
        }
        return { frames: glides.map(({ frames }) => frames), delays: time.delays.map(String) };
    });
    // Six frames, and the time for which the last one stays.
    assert.ok(Math.min(...result.frames) <= 7, `the glides have ${result.frames} frames`);
    assert.ok(result.delays.length > 0 && !result.delays.includes('NaN'), result.delays.join());
    await close();
});

test('what the compositor shows is where the module has the rows at that time', async () => {
    const { page, close } = await openWheel(stage);
    const moments = await page.evaluate(async () => {
        const { spins } = globalThis;
        const element = document.querySelector('gx-wheel');
        const time = spins.holdTime();
        const frame = 1000 / 60;
        const compare = async (moment) => {
            await spins.flick(element);
            time.play(1);
            time.play(Math.floor(moment / frame));
            time.pass(moment % frame);
            time.place(element);
            const wasGliding = spins.isGliding(element);
            const shown = spins.places(element, (node) => getComputedStyle(node));
            // Whatever is set takes the rows back, where they are at this time.
            element.readOnly = true;
            const written = spins.places(element, (node) => node.style);
            const isGliding = spins.isGliding(element);
            element.readOnly = false;
            time.play(150); // To its end, or the next flick would add to this one.
            let [most, shades, count] = [0, 0, 0];
            for (const [row, { matrix, opacity }] of shown) {
                // A row that is not drawn yet, or no more, has no place, and is unseen.
                const other = written.get(row) ?? { matrix, opacity: 0 };
                shades = Math.max(shades, Math.abs(other.opacity - opacity));
                if (opacity <= 0.02) continue;
                count += 1;
                most = Math.max(most, Math.abs(other.matrix.f - matrix.f) + 40 * Math.abs(other.matrix.d - matrix.d));
            }
            return { moment, most, shades, wasGliding, isGliding, count };
        };
        const all = [];
        // In milliseconds: while rows are fast, between two frames of the animation, and slow.
        for (const moment of [0, 3, 10, 21, 47, 90, 160, 250, 400, 600]) all.push(await compare(moment));
        return all;
    });
    for (const { moment, most, shades, wasGliding, isGliding, count } of moments) {
        assert.ok(count >= 7, `${count} rows after ${moment} ms`);
        assert.ok(wasGliding && !isGliding, `after ${moment} ms`);
        assert.ok(most < 0.3, `${most} pixels apart after ${moment} ms`);
        assert.ok(shades < 0.1, `${shades} of an opacity apart after ${moment} ms`);
    }
    await close();
});

test('rows of a column that has glided stay where they are while another one glides', async () => {
    const { page, close } = await openGliding(stage);
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
    const { page, close } = await stage.open('<gx-wheel></gx-wheel>');
    await page.evaluate(() => (document.querySelector('gx-wheel').columns = [{ rows: 1000, title: (row) => `no. ${row}` }]));
    await untilColumns(page, asked);
    await page.evaluate(provide);
    const result = await page.evaluate(async () => {
        const { spins } = globalThis;
        const element = document.querySelector('gx-wheel');
        let hasGlided = false;
        let hasChanged = false;
        element.addEventListener('input', () => (hasGlided ||= spins.isGliding(element)));
        element.addEventListener('change', () => (hasChanged = true));
        const time = spins.holdTime();
        await spins.flick(element);
        time.play(600, () => hasChanged);
        return { hasGlided, row: element.rows[0] };
    });
    assert.equal(result.hasGlided, false);
    assert.ok(result.row > 5);
    await close();
});

test('with reduced motion nothing glides', async () => {
    const { page, close } = await openWheel(stage, { context: { reducedMotion: 'reduce' } });
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
