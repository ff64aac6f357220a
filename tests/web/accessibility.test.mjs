// What screen readers read of each element, in all languages, and what a checker of accessibility
// finds.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { checkAccessibility, untilStill } from './browser.mjs';
import { everyElement, markup, table } from './every.mjs';
import { assertQuiet, Stage, untilColumns } from './stage.mjs';

const stage = new Stage();

async function openEvery(more, settings) {
    const opened = await stage.open(`<main><h1>Workout</h1>${everyElement(more)}</main>`, settings);
    await opened.page.evaluate(() => {
        for (const wheel of document.querySelectorAll('gx-wheel')) {
            wheel.columns = [
                { rows: ['red', 'green'], label: 'Colour' },
                { rows: 100, label: 'Number' },
            ];
            wheel.rows = [1, 17];
        }
    });
    await untilColumns(opened.page, 'gx-wheel');
    return opened;
}

/** Of each element, a list for each column. */
const readColumns = (page) =>
    page.evaluate(() =>
        Object.fromEntries(
            [...document.querySelectorAll('main > *')]
                .filter((node) => node.shadowRoot)
                .map((node) => [
                    node.localName,
                    [...node.shadowRoot.querySelectorAll('.column')].map((column) => ({
                        role: column.getAttribute('role'),
                        text: `${column.ariaLabel}: ${column.ariaValueText}`,
                        numbers: [column.ariaValueNow, column.ariaValueMin, column.ariaValueMax].map(Number),
                    })),
                ]),
        ),
    );

test('each column is a spin button with its numbers as they are shown', async () => {
    const { page, logs, close } = await openEvery();
    const columns = await readColumns(page);
    assert.deepEqual(Object.keys(columns), Object.keys(markup));
    for (const [name, list] of Object.entries(columns)) {
        assert.deepEqual(
            list.map(({ role }) => role),
            list.map(() => 'spinbutton'),
            name,
        );
        assert.deepEqual(
            list.map(({ numbers }) => numbers),
            table.numbers[name],
            name,
        );
    }
    assert.deepEqual(
        columns['gx-number-picker'].map(({ text }) => text),
        ['Repetitions: 42'],
    );
    assert.deepEqual(
        columns['gx-wheel'].map(({ text }) => text),
        ['Colour: green', 'Number: 17'],
    );
    assertQuiet(logs);
    await close();
});

test('the pictures of a weather have the name that the page gives to the picker', async () => {
    const { page, logs, close } = await stage.open(`<main><h1>Workout</h1>
        <gx-weather-and-temperature-picker aria-label="Weather" weather="1" temperature="18" step="1">
            <img alt="clear" src="data:," /><img alt="cloudy" src="data:," />
        </gx-weather-and-temperature-picker></main>`);
    await untilColumns(page, 'gx-weather-and-temperature-picker');
    const columns = await readColumns(page);
    assert.deepEqual(
        columns['gx-weather-and-temperature-picker'].map(({ text }) => text),
        ['Weather: cloudy', 'Temperature: 18 degrees Celsius'],
    );
    assertQuiet(logs);
    await close();
});

test('names and values are texts of the page’s language, in all fifteen', async () => {
    const { page, logs, close } = await openEvery();
    assert.equal(Object.keys(table.texts).length, 15);
    for (const [language, expected] of Object.entries(table.texts)) {
        await page.evaluate((lang) => (document.documentElement.lang = lang), language);
        const [first] = expected['gx-weight-picker'];
        const isThere = (text) => {
            const column = document.querySelector('gx-weight-picker').shadowRoot.querySelector('.column');
            return `${column.ariaLabel}: ${column.ariaValueText}` === text;
        };
        await page.waitForFunction(isThere, first, { timeout: 5000 }).catch(() => undefined);
        const columns = await readColumns(page);
        const read = Object.fromEntries(Object.keys(expected).map((name) => [name, columns[name].map(({ text }) => text)]));
        assert.deepEqual(read, expected, language);
    }
    assertQuiet(logs);
    await close();
});

test('in the other units numbers and texts follow', async () => {
    const { page, close } = await stage.open(
        `<main><gx-distance-picker value="5300" unit="imperial"></gx-distance-picker><gx-temperature-picker value="-5" unit="imperial"></gx-temperature-picker>
        <gx-height-picker value="176" unit="imperial"></gx-height-picker></main>`,
    );
    await untilColumns(page, 'gx-height-picker');
    const texts = Object.fromEntries(Object.entries(await readColumns(page)).map(([name, list]) => [name, list.map(({ text }) => text)]));
    assert.deepEqual(texts, {
        'gx-distance-picker': ['Distance, miles: 3.2 miles', 'Distance, tenths: 3.2 miles'],
        'gx-temperature-picker': ['Temperature: 21 degrees Fahrenheit'],
        'gx-height-picker': ['Height, feet: 5 feet 9 inches', 'Height, inches: 5 feet 9 inches', 'Height, unit: 5 feet 9 inches'],
    });
    await close();
});

test('a value that is turned is told when it is at rest', async () => {
    const { page, close } = await openEvery();
    await page.evaluate(() => document.querySelector('gx-duration-picker').focus());
    await page.keyboard.press('ArrowDown');
    await untilStill(page, 'gx-duration-picker');
    const [hours, minutes] = (await readColumns(page))['gx-duration-picker'];
    assert.deepEqual([hours.text, hours.numbers[0]], ['Duration, hours: 2 hours 25 minutes', 2]);
    assert.equal(minutes.text, 'Duration, minutes: 2 hours 25 minutes');
    await close();
});

test('a checker of accessibility finds nothing, in each state and both looks', async () => {
    const dark = {
        context: { colorScheme: 'dark' },
        options: { head: '<title>Workout</title><style>:root { color-scheme: light dark }</style>' },
    };
    const light = { options: { head: '<title>Workout</title>' } };
    for (const [state, look] of [
        ['', light],
        ['required', dark],
        ['disabled', light],
        ['readonly', dark],
    ]) {
        const { page, close } = await openEvery(state, look);
        const { violations, passed } = await checkAccessibility(page);
        assert.deepEqual(violations, [], `${state} ${look === dark ? 'dark' : 'light'}`);
        assert.ok(passed > 10, 'it has checked something');
        await close();
    }
});
