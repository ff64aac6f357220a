// Attributes and properties of every element: a table of them, and what is ignored.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { assertQuiet, Stage } from './stage.mjs';

const stage = new Stage();
const duration = {
    layout: ['minutes-seconds', 'hours-minutes'],
    'hours-step': [2, 1],
    'minutes-step': [5, 1],
    'seconds-step': [10, 5],
};
const unit = { unit: ['imperial', 'metric'] };
const weights = { unit: ['lb', 'kg'], 'unit-selectable': [true, false] };

// For each attribute a number or word that it can have, and what it is without the attribute.
const options = {
    'gx-number-picker': { min: [10, 0], max: [50, 100], step: [5, 1] },
    'gx-bpm-picker': { min: [60, 0], max: [200, 240], step: [2, 10] },
    'gx-calories-picker': { min: [100, 0], max: [900, 100000], step: [50, 10] },
    'gx-distance-picker': { ...unit, 'fraction-digits': [2, 1], min: [2000, 0], max: [9000, 300000] },
    'gx-distance-and-duration-picker': {
        ...unit,
        'fraction-digits': [2, 1],
        ...duration,
        'min-distance': [1000, 0],
        'max-distance': [9000, 300000],
        'min-duration': [60000, 0],
        'max-duration': [3600000, 356400000],
    },
    'gx-duration-picker': { ...duration, min: [60000, 0], max: [3600000, 356400000] },
    'gx-heart-rate-picker': { min: [60, 25], max: [200, 230], gap: [5, 1], 'no-null-row': [true, false] },
    'gx-height-picker': { ...unit },
    'gx-icon-picker': { min: [1, 0] },
    'gx-pace-picker': { ...unit, 'minutes-step': [2, 1], 'seconds-step': [10, 5], min: [8, 100 / 9], max: [2, 1 / 3.6] },
    'gx-speed-picker': { ...unit, min: [2, 0], max: [10, 13.8888889] },
    'gx-temperature-picker': { ...unit, min: [-10, -20], max: [40, 60], step: [2, 5] },
    'gx-weather-and-temperature-picker': { ...unit, min: [-10, -20], max: [40, 60], step: [2, 5] },
    'gx-weight-picker': { ...weights, min: [40, 15], max: [120, 350] },
};

test('each option is an attribute and a property, and has a default without', async () => {
    const { page, logs, close } = await stage.open('<main></main>');
    const read = await page.evaluate((table) => {
        const camel = (name) => name.replace(/-([a-z])/g, (_, letter) => letter.toUpperCase());
        return Object.fromEntries(
            Object.entries(table).map(([name, entries]) => [
                name,
                Object.fromEntries(
                    Object.entries(entries).map(([attribute, [value]]) => {
                        const property = camel(attribute);
                        const element = document.createElement(name);
                        document.querySelector('main').append(element);
                        const without = element[property];
                        element[property] = value;
                        const written = element.getAttribute(attribute);
                        const bySetting = element[property];
                        element.removeAttribute(attribute);
                        const removed = element[property];
                        element.setAttribute(attribute, value === true ? '' : String(value));
                        const byAttribute = element[property];
                        element.remove();
                        return [attribute, { without, written, bySetting, removed, byAttribute }];
                    }),
                ),
            ]),
        );
    }, options);
    for (const [name, entries] of Object.entries(options)) {
        for (const [attribute, [value, without]] of Object.entries(entries)) {
            const written = value === true ? '' : String(value);
            assert.deepEqual(
                read[name][attribute],
                { without, written, bySetting: value, removed: without, byAttribute: value },
                `${name} ${attribute}`,
            );
        }
    }
    assertQuiet(logs);
    await close();
});

// The values that each element has, with one that it can have besides that at the start.
const values = {
    'gx-number-picker': { value: [0, 42] },
    'gx-bpm-picker': { value: [160, 100] },
    'gx-calories-picker': { value: [0, 420] },
    'gx-distance-picker': { value: [5000, 6300] },
    'gx-distance-and-duration-picker': { distance: [5000, 6300], duration: [300000, 3900000] },
    'gx-duration-picker': { value: [300000, 3900000] },
    'gx-heart-rate-picker': { average: [120, 142], maximum: [160, 171] },
    // It shows 180 then: 0 is no height.
    'gx-height-picker': { value: [0, 165] },
    'gx-pace-picker': { value: [10, 4] },
    // Ten kilometres an hour, as its two rows add up.
    'gx-speed-picker': { value: [2.7777777799999996, 5] },
    'gx-temperature-picker': { value: [20, 25] },
    // It shows its lightest then.
    'gx-weight-picker': { value: [0, 72.5] },
};

test('a value’s attribute is what it begins with, its property what is shown', async () => {
    const { page, logs, close } = await stage.open('<main></main>');
    const read = await page.evaluate((table) => {
        const show = (name) => document.querySelector('main').appendChild(document.createElement(name));
        return Object.fromEntries(
            Object.entries(table).map(([name, entries]) => [
                name,
                Object.fromEntries(
                    Object.entries(entries).map(([property, [, value]]) => {
                        const element = show(name);
                        const without = element[property];
                        element[property] = value;
                        const bySetting = [element[property], element.hasAttribute(property)];
                        const text = element.valueText;
                        const other = show(name);
                        other.setAttribute(property, value);
                        const byAttribute = [other[property], other.valueText === text];
                        other.removeAttribute(property);
                        return [property, { without, bySetting, byAttribute, removed: other[property] }];
                    }),
                ),
            ]),
        );
    }, values);
    for (const [name, entries] of Object.entries(values)) {
        for (const [property, [without, value]] of Object.entries(entries)) {
            const expected = { without, bySetting: [value, false], byAttribute: [value, true], removed: without };
            assert.deepEqual(read[name][property], expected, `${name} ${property}`);
        }
    }
    assertQuiet(logs);
    await close();
});

test('flags and names are the attributes of fields', async () => {
    const { page, close } = await stage.open('<gx-bpm-picker></gx-bpm-picker>');
    const read = await page.evaluate(() => {
        const element = document.querySelector('gx-bpm-picker');
        return Object.entries({ disabled: 'disabled', readOnly: 'readonly', required: 'required' }).map(([property, attribute]) => {
            const before = element[property];
            element[property] = true;
            const set = [element[property], element.getAttribute(attribute)];
            element.removeAttribute(attribute);
            return [before, ...set, element[property]];
        });
    });
    assert.deepEqual(read, Array(3).fill([false, true, '', false]));
    const name = await page.evaluate(() => {
        const element = document.querySelector('gx-bpm-picker');
        element.name = 'rate';
        return [element.getAttribute('name'), element.name];
    });
    assert.deepEqual(name, ['rate', 'rate']);
    await close();
});

test('numbers beyond all bounds give a defined value', async () => {
    const { page, logs, close } = await stage.open('<main></main>');
    const table = { ...options, ...Object.fromEntries(Object.entries(values).map(([name, own]) => [name, { ...options[name], ...own }])) };
    const found = await page.evaluate((all) => {
        const wrong = [];
        const camel = (name) => name.replace(/-([a-z])/g, (_, letter) => letter.toUpperCase());
        for (const [name, entries] of Object.entries(all)) {
            for (const [attribute, [value]] of Object.entries(entries)) {
                if (typeof value !== 'number') continue;
                for (const number of ['0', '-1e300', '1e300', '0.3']) {
                    const element = document.createElement(name);
                    element.setAttribute(attribute, number);
                    document.querySelector('main').append(element);
                    if (!Number.isFinite(element[camel(attribute)]) || /NaN|inf|undefined/.test(element.valueText)) {
                        wrong.push(`${name} ${attribute}=${number}: ${element[camel(attribute)]} ${element.valueText}`);
                    }
                    element.remove();
                }
            }
        }
        return wrong;
    }, table);
    assert.deepEqual(found, []);
    assertQuiet(logs);
    await close();
});

test('crossed bounds are told once for each change, by their names', async () => {
    const { page, logs, close } = await stage.open('<main></main>');
    const warnings = async (markup) => {
        logs.length = 0;
        await page.evaluate((html) => document.querySelector('main').setHTMLUnsafe(html), markup);
        return logs.filter((line) => line.startsWith('warning'));
    };
    assert.deepEqual(
        await warnings('<gx-distance-and-duration-picker min-distance="9000" max-distance="2000"></gx-distance-and-duration-picker>'),
        ['warning: <gx-distance-and-duration-picker>: min-distance="9000" and max-distance="2000" are crossed.'],
    );
    assert.deepEqual(await warnings('<gx-pace-picker min="2" max="8"></gx-pace-picker>'), [
        'warning: <gx-pace-picker>: min="2" and max="8" are crossed.',
    ]);
    assert.deepEqual(await warnings('<gx-pace-picker min="8" max="2"></gx-pace-picker>'), []);
    assert.deepEqual(await warnings('<gx-heart-rate-picker min="50" max="50"></gx-heart-rate-picker>'), []);
    assert.deepEqual(await warnings('<gx-weight-picker unit="stone" layout="x"></gx-weight-picker>'), [
        'warning: <gx-weight-picker>: unit="stone" is none of kg, lb, st; it is ignored.',
    ]);
    assert.deepEqual(await warnings('<gx-bpm-picker value=" 90 " step=""></gx-bpm-picker>'), [
        'warning: <gx-bpm-picker>: step="" is no number; it is ignored.',
    ]);
    await close();
});
