// Languages that come when an element needs them.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { assertQuiet, Stage, untilColumns } from './stage.mjs';

const stage = new Stage();
const distance = '<gx-distance-picker value="5300"></gx-distance-picker>';

/** The names of an element's columns, as a screen reader has them. */
const labels = (page, selector = 'gx-distance-picker') =>
    page.evaluate(
        (asked) => [...document.querySelector(asked).shadowRoot.querySelectorAll('.column')].map((node) => node.getAttribute('aria-label')),
        selector,
    );

const untilLabel = (page, label, selector = 'gx-distance-picker') =>
    page.waitForFunction(
        ([asked, wanted]) => document.querySelector(asked).shadowRoot?.querySelector('.column')?.getAttribute('aria-label') === wanted,
        [selector, label],
    );

test('a page in German is in German from its first picture on, and loads that language alone', async () => {
    const { page, logs, close } = await stage.open(distance, { options: { lang: 'de-AT' } });
    const loaded = await page.evaluate(() => performance.getEntriesByType('resource').map((entry) => entry.name.split('/').pop()));
    assert.deepEqual(
        loaded.filter((name) => /^[a-z]{2}(-[A-Z][a-z]+)?\.js$/.test(name)),
        ['de.js'],
    );
    await untilColumns(page, 'gx-distance-picker');
    assert.deepEqual(await labels(page), ['Distanz, Kilometer', 'Distanz, Zehntel']);
    assertQuiet(logs);
    await close();
});

test('a page in English loads no language', async () => {
    const { page, close } = await stage.open(distance);
    await untilColumns(page, 'gx-distance-picker');
    assert.equal(
        await page.evaluate(() => performance.getEntriesByType('resource').filter((entry) => entry.name.includes('/languages/')).length),
        0,
    );
    await close();
});

test('elements of a page have each their own language, by its present or its old code', async () => {
    const body = ['de', 'fr', 'iw', 'he', 'zh_TW', 'xx'].map((lang) => `<gx-distance-picker lang="${lang}"></gx-distance-picker>`).join('');
    const { page, logs, close } = await stage.open(body);
    const firsts = {};
    for (const lang of ['de', 'fr', 'iw', 'he', 'zh_TW', 'xx']) {
        await untilColumns(page, `[lang="${lang}"]`);
        [firsts[lang]] = await labels(page, `[lang="${lang}"]`);
    }
    assert.equal(firsts.de, 'Distanz, Kilometer');
    assert.equal(firsts.fr, 'Distance, kilomètres');
    assert.equal(firsts.iw, firsts.he);
    assert.match(firsts.he, /[א-ת]/);
    assert.match(firsts.zh_TW, /距离/);
    assert.equal(firsts.xx, 'Distance, kilometres');
    assertQuiet(logs);
    await close();
});

test('a change of the page’s language changes its elements', async () => {
    const { page, logs, close } = await stage.open(distance);
    await untilLabel(page, 'Distance, kilometres');
    await page.evaluate(() => (document.documentElement.lang = 'nl'));
    await untilLabel(page, 'Afstand, kilometer');
    await page.evaluate(() => (document.documentElement.lang = 'en'));
    await untilLabel(page, 'Distance, kilometres');
    assertQuiet(logs);
    await close();
});

test('a language that cannot be loaded is English, with one warning', async () => {
    const opened = await stage.open('', { options: { lang: 'en' } });
    const { page, logs, close } = opened;
    await page.route('**/languages/**', (route) => route.abort());
    await page.evaluate((body) => {
        document.documentElement.lang = 'de';
        document.body.innerHTML = body + body;
    }, distance);
    await untilLabel(page, 'Distance, kilometres');
    assert.deepEqual(
        logs.filter((line) => line.startsWith('warning')).map((line) => line.slice(0, 70)),
        ['warning: GXUIPickers: the language "de" cannot be loaded; texts are in'],
    );
    await close();
});

test('a language that comes late finds its elements in English', async () => {
    const { page, logs, close } = await stage.open('');
    let letThrough;
    const held = new Promise((resolve) => (letThrough = resolve));
    await page.route('**/languages/**', async (route) => {
        await held;
        await route.continue();
    });
    await page.evaluate((body) => {
        document.documentElement.lang = 'de';
        document.body.innerHTML = body;
    }, distance);
    assert.equal(await page.evaluate(() => document.querySelector('.surface.isReady') !== null), false, 'it waits at first');
    await untilLabel(page, 'Distance, kilometres');
    letThrough();
    await untilLabel(page, 'Distanz, Kilometer');
    assertQuiet(logs);
    await close();
});
