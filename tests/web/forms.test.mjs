// Elements as fields of a form, and what is a change.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { touches, untilStill } from './browser.mjs';
import { assertQuiet, columnPlace, noteEvents, Stage, untilColumns } from './stage.mjs';

const stage = new Stage();

test('a form has the values, resets them and disables the pickers', async () => {
    const body = `<form><label for="d">Way</label><gx-distance-picker id="d" name="way" value="5300"></gx-distance-picker>
        <gx-heart-rate-picker name="heart" average="142" maximum="171" required></gx-heart-rate-picker>
        <fieldset><gx-bpm-picker name="rate" value="100"></gx-bpm-picker></fieldset></form>`;
    const { page, close } = await stage.open(body);
    const data = () => page.evaluate(() => [...new FormData(document.querySelector('form'))]);
    assert.deepEqual(await data(), [
        ['way', '5300'],
        ['heart-average', '142'],
        ['heart-maximum', '171'],
        ['rate', '100'],
    ]);
    await page.evaluate(() => {
        document.querySelector('gx-distance-picker').value = 8000;
        document.querySelector('gx-heart-rate-picker').average = 0;
    });
    assert.deepEqual((await data()).slice(0, 2), [
        ['way', '8000'],
        ['heart-average', '0'],
    ]);
    assert.equal(await page.evaluate(() => document.querySelector('form').checkValidity()), false, 'no average');
    await page.evaluate(() => document.querySelector('form').reset());
    assert.deepEqual(await data(), [
        ['way', '5300'],
        ['heart-average', '142'],
        ['heart-maximum', '171'],
        ['rate', '100'],
    ]);
    assert.equal(await page.evaluate(() => document.querySelector('form').checkValidity()), true);
    await page.evaluate(() => (document.querySelector('fieldset').disabled = true));
    assert.deepEqual((await data()).length, 3);
    assert.equal(await page.evaluate(() => document.querySelector('gx-bpm-picker').matches(':disabled')), true);
    await untilColumns(page, '#d');
    await page.click('label');
    assert.equal(await page.evaluate(() => document.activeElement.id), 'd');
    await close();
});

test('a drag that ends where it began is no change', async () => {
    const { page, close } = await stage.open('<gx-distance-picker value="5000"></gx-distance-picker>');
    await untilColumns(page, 'gx-distance-picker');
    const place = await columnPlace(page, 'gx-distance-picker');
    const events = await noteEvents(page, 'gx-distance-picker');
    const finger = await touches(page);
    await finger.start([place]);
    // Down by two rows and back: the first six points are those in which a finger is no drag yet.
    for (const y of [-20, -50, -86, -50, -20, -6]) await finger.move([{ x: place.x, y: place.y + y }]);
    await page.waitForTimeout(200);
    await finger.move([{ x: place.x, y: place.y - 6 }]);
    await finger.end();
    await untilStill(page, 'gx-distance-picker');
    const noted = await events();
    assert.ok(
        noted.some(([type, value]) => type === 'input' && value > 5000),
        JSON.stringify(noted),
    );
    assert.deepEqual(
        noted.filter(([type]) => type === 'change'),
        [],
    );
    assert.equal(noted.at(-1)[1], 5000, 'the last input is told on the old value');
    await page.keyboard.press('Tab');
    await page.keyboard.press('ArrowDown');
    await untilStill(page, 'gx-distance-picker');
    await page.keyboard.press('ArrowUp');
    await untilStill(page, 'gx-distance-picker');
    const changes = (await events()).filter(([type]) => type === 'change').map(([, value]) => value);
    assert.deepEqual(changes, [6000, 5000], 'two keys are two changes');
    await close();
});

test('input leaves shadow trees, change does not, and both bubble', async () => {
    const { page, close } = await stage.open('<div id="around"></div>');
    await page.evaluate(() => {
        globalThis.heard = [];
        const shadow = document.querySelector('#around').attachShadow({ mode: 'open' });
        shadow.innerHTML = '<p><gx-bpm-picker></gx-bpm-picker></p>';
        const note = (place) => (event) => globalThis.heard.push(`${event.type} ${place}`);
        for (const type of ['input', 'change']) {
            shadow.querySelector('p').addEventListener(type, note('inside'));
            document.body.addEventListener(type, note('outside'));
        }
        shadow.querySelector('gx-bpm-picker').focus();
    });
    await page.keyboard.press('ArrowDown');
    await page.waitForFunction(() => globalThis.heard.some((text) => text.startsWith('change')));
    assert.deepEqual(await page.evaluate(() => globalThis.heard), ['input inside', 'input outside', 'change inside']);
    await close();
});

test('what the user has chosen is there again after going back', async () => {
    const fields = `<form><gx-distance-picker name="way" value="5000"></gx-distance-picker>
        <gx-weight-picker name="weight" value="70" unit-selectable></gx-weight-picker>
        <gx-heart-rate-picker name="heart" average="120" maximum="160"></gx-heart-rate-picker></form>`;
    const { page, logs, close } = await stage.open(fields);
    await untilColumns(page, 'gx-heart-rate-picker');
    const read = () =>
        page.evaluate(() => {
            const [way, weight, heart] = document.querySelectorAll('form > *');
            return [way.value, weight.value, weight.unit, heart.average, heart.maximum];
        });
    const move = async (selector, column, key) => {
        await page.evaluate(
            ([asked, index]) => document.querySelector(asked).shadowRoot.querySelectorAll('.column')[index].focus(),
            [selector, column],
        );
        await page.keyboard.press(key);
        await untilStill(page, selector);
    };
    await move('gx-distance-picker', 1, 'ArrowDown');
    await move('gx-weight-picker', 2, 'ArrowDown');
    await move('gx-heart-rate-picker', 0, 'ArrowUp');
    const chosen = await read();
    assert.equal(chosen[0], 5100);
    assert.equal(chosen[2], 'lb');
    assert.equal(chosen[3], 119);
    await page.goto(stage.server.address + '/package/sizes.json');
    await page.goBack();
    await page.waitForFunction(() => document.querySelector('gx-heart-rate-picker')?.valueText);
    assert.deepEqual(await read(), chosen);
    const data = await page.evaluate(() => [...new FormData(document.querySelector('form'))].map(([name, value]) => [name, Number(value)]));
    assert.deepEqual(data, [
        ['way', 5100],
        ['weight', chosen[1]],
        ['heart-average', 119],
        ['heart-maximum', 160],
    ]);
    await page.evaluate(() => document.querySelector('form').reset());
    assert.deepEqual(await read(), [5000, 70, 'kg', 120, 160]);
    assertQuiet(logs);
    await close();
});

test('the form’s data follow each option that changes a value', async () => {
    const { page, close } = await stage.open('<form><gx-distance-picker name="way" value="9000"></gx-distance-picker></form>');
    const data = () => page.evaluate(() => Object.fromEntries(new FormData(document.querySelector('form'))));
    await page.evaluate(() => (document.querySelector('gx-distance-picker').max = 5000));
    const value = await page.evaluate(() => document.querySelector('gx-distance-picker').value);
    assert.deepEqual(await data(), { way: String(value) });
    await page.evaluate(() => (document.querySelector('gx-distance-picker').name = 'distance'));
    assert.deepEqual(await data(), { distance: String(value) });
    await page.evaluate(() => document.querySelector('form').append(document.createElement('gx-heart-rate-picker')));
    assert.deepEqual(await data(), { distance: String(value) }, 'one without a name has no entries');
    await page.evaluate(() => (document.querySelector('gx-heart-rate-picker').name = 'heart'));
    assert.deepEqual(await data(), { distance: String(value), 'heart-average': '120', 'heart-maximum': '160' });
    await close();
});

test('a heart rate that is required and missing is invalid, as the browser’s own fields are', async () => {
    const body = '<form><input required><gx-heart-rate-picker name="heart" average="0" required></gx-heart-rate-picker></form>';
    const { page, close } = await stage.open(body);
    await untilColumns(page, 'gx-heart-rate-picker');
    const state = await page.evaluate(() => {
        const [field, element] = document.querySelectorAll('form > *');
        return {
            missing: element.validity.valueMissing,
            isSameMessage: element.validationMessage === field.validationMessage && field.validationMessage !== '',
            matches: element.matches(':invalid'),
            reports: element.reportValidity(),
        };
    });
    assert.deepEqual(state, { missing: true, isSameMessage: true, matches: true, reports: false });
    const marks = () =>
        page.evaluate(() => {
            const [node] = document.querySelector('gx-heart-rate-picker').shadowRoot.querySelectorAll('.column');
            return [node.getAttribute('aria-required'), node.getAttribute('aria-invalid')];
        });
    assert.deepEqual(await marks(), ['true', 'true']);
    await page.evaluate(() => (document.querySelector('gx-heart-rate-picker').average = 130));
    await untilStill(page, 'gx-heart-rate-picker');
    assert.deepEqual(await marks(), ['true', null]);
    assert.equal(await page.evaluate(() => document.querySelector('gx-heart-rate-picker').checkValidity()), true);
    await page.evaluate(() => (document.querySelector('gx-heart-rate-picker').required = false));
    await untilStill(page, 'gx-heart-rate-picker');
    assert.deepEqual(await marks(), [null, null]);
    await close();
});

test('a wheel of the page’s own columns is a field as well', async () => {
    const { page, close } = await stage.open('<form><gx-wheel name="shirt"></gx-wheel></form>');
    const read = () =>
        page.evaluate(() => [document.querySelector('gx-wheel').rows, new FormData(document.querySelector('form')).getAll('shirt')]);
    await page.evaluate(() => {
        const wheel = document.querySelector('gx-wheel');
        wheel.rows = [1, 2]; // Before there are columns.
        wheel.columns = [{ rows: ['S', 'M', 'L'] }, { rows: 9 }];
    });
    assert.deepEqual(await read(), [
        [1, 2],
        ['1', '2'],
    ]);
    await untilColumns(page, 'gx-wheel');
    const events = await noteEvents(page, 'gx-wheel', 'rows');
    await page.evaluate(() => document.querySelector('gx-wheel').focus());
    await page.keyboard.press('ArrowDown');
    await untilStill(page, 'gx-wheel');
    assert.deepEqual(await read(), [
        [2, 2],
        ['2', '2'],
    ]);
    assert.deepEqual((await events()).at(-1), ['change', [2, 2]]);
    // What the user has chosen comes along to another place, and a reset takes it back.
    await page.evaluate(() => document.querySelector('form').append(document.querySelector('gx-wheel')));
    assert.deepEqual(await read(), [
        [2, 2],
        ['2', '2'],
    ]);
    await page.evaluate(() => document.querySelector('form').reset());
    assert.deepEqual(await read(), [
        [1, 2],
        ['1', '2'],
    ]);
    await close();
});

test('the page’s name for it is found as for the browser’s own fields, and read again with the focus', async () => {
    const body = `<label>Way <gx-distance-picker id="a"></gx-distance-picker></label>
        <span id="first">Long</span><span id="second"> way</span>
        <gx-distance-picker id="b" aria-labelledby="first second" aria-label="not this"></gx-distance-picker>
        <gx-distance-picker id="c" aria-label="Path"></gx-distance-picker>`;
    const { page, close } = await stage.open(body);
    await untilColumns(page, '#c');
    const names = () =>
        page.evaluate(() =>
            [...document.querySelectorAll('gx-distance-picker')].map((node) =>
                node.shadowRoot.querySelector('.column').getAttribute('aria-label'),
            ),
        );
    assert.deepEqual(await names(), ['Way, kilometres', 'Long way, kilometres', 'Path, kilometres']);
    await page.evaluate(() => {
        document.querySelector('#first').textContent = 'Short';
        document.querySelector('#b').focus();
    });
    await page.waitForFunction(() => document.querySelector('#b').shadowRoot.querySelector('.column').ariaLabel.startsWith('Short'));
    assert.deepEqual((await names())[1], 'Short way, kilometres');
    await close();
});
