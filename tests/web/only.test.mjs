// A package with one element: what is left out of scripts, types and manifest. The packages that
// `scripts/web build --only NAME` has built are opened in a browser too.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { existsSync, readdirSync, readFileSync } from 'node:fs';
import path from 'node:path';
import { elementNamed, kindOf, manifestOfOne, optionsOfOne, scriptOfOne, withKindsAsNumbers } from '../../hosts/web/only.mjs';
import { tableOfOne } from '../../hosts/web/sizes.mjs';
import { startBrowser } from './browser.mjs';
import { root } from './places.mjs';
import { startServer } from '../../gallery/web/server.mjs';

const read = (name) => readFileSync(path.join(root, name), 'utf8');
const pickers = read('hosts/web/script/pickers.ts');

test('an element may be named in three ways', () => {
    for (const name of ['heart-rate', 'HeartRate', 'gx-heart-rate-picker']) assert.equal(elementNamed(name), 'gx-heart-rate-picker');
    for (const name of ['wheel', 'gx-wheel', 'Columns']) assert.equal(elementNamed(name), 'gx-wheel');
    assert.equal(kindOf('gx-distance-and-duration-picker'), 'DistanceAndDuration');
    assert.equal(kindOf('gx-wheel'), 'Columns');
});

test('one element is left in the script, and one class is exported', () => {
    const script = scriptOfOne(pickers, 'gx-pace-picker');
    assert.deepEqual([...new Set(script.match(/(?<=')gx-(?:[\w-]+-picker|wheel)(?=': \w+[,;]$)/gm))], ['gx-pace-picker']);
    assert.deepEqual(script.match(/(?<=^export class )\w+/gm), ['PacePicker']);
    assert.doesNotMatch(script, /^export \{/m);
    assert.match(scriptOfOne(pickers, 'gx-wheel'), /^export \{ Wheel, /m);
    assert.throws(() => scriptOfOne(pickers, 'gx-space-picker'), /There is no element gx-space-picker/);
});

test('the options of one kind are left', () => {
    const list = (script) => script.match(/(?<=^ {4}\[Kind\.)\w+(?=\]:)/gm);
    const properties = read('hosts/web/script/properties.ts');
    assert.deepEqual(list(optionsOfOne(properties, 'Weight')), ['Weight']);
    assert.equal(list(properties).length, 15);
});

test('the kinds of classes become their numbers', () => {
    const properties = read('hosts/web/script/properties.ts');
    const kinds = (script) => withKindsAsNumbers(script, properties).match(/(?<=kind(?:: Kind)? = )[^;]+/g);
    assert.deepEqual(kinds(pickers), ['0', '1', '2', '3', '5', '4', '6', '7', '9', '10', '11', '13']);
    assert.deepEqual(kinds(read('hosts/web/script/icons.ts')), ['8', '12']);
    assert.deepEqual(kinds(read('hosts/web/script/wheel.ts')), ['14']);
    assert.throws(() => withKindsAsNumbers('static override readonly kind = Kind.Space;', properties), /There is no kind Space/);
});

test('the manifest of one element has no other', () => {
    const module = {
        declarations: [
            { name: 'A', tagName: 'gx-a' },
            { name: 'B', tagName: 'gx-b' },
        ],
        exports: [{ name: 'A', declaration: { name: 'A' } }, { name: 'gx-a' }, { name: 'B', declaration: { name: 'B' } }, { name: 'gx-b' }],
    };
    assert.deepEqual(manifestOfOne({ schemaVersion: '2', modules: [module] }, 'gx-b'), {
        schemaVersion: '2',
        modules: [{ declarations: [module.declarations[1]], exports: module.exports.slice(2) }],
    });
});

test('the table has rows of elements alone, with what was measured last', () => {
    const elements = new Set(pickers.match(/gx-[\w-]+(?=': [A-Z])/g));
    for (const name of Object.keys(JSON.parse(read('hosts/web/package/sizes-of-one.json')))) assert.ok(elements.has(name), name);
    assert.equal(tableOfOne({ 'gx-a': [76800, 1024] }).split('\n')[2], '| `gx-a` | 75.0 KiB | 1.0 KiB |');
});

const folder = path.join(root, 'build/web/only');
const built = existsSync(folder) ? readdirSync(folder) : [];

test('each package that was built defines its element alone', { skip: built.length === 0 && 'none is built' }, async (context) => {
    const pages = Object.fromEntries(
        built.map((element) => [
            `/${element}.html`,
            `<!doctype html><title>One</title><script type="module" src="/only/${element}/asset.js"></script>
             <${element} aria-label="it"></${element}>`,
        ]),
    );
    const server = await startServer({ folders: { '/only/': folder }, pages });
    const chromium = await startBrowser();
    context.after(() => Promise.all([chromium.stop(), server.stop()]));
    for (const element of built) {
        const page = await chromium.browser.newPage();
        const errors = [];
        page.on('pageerror', (error) => errors.push(error.message));
        await page.goto(`${server.address}/${element}.html`);
        await page.waitForFunction((name) => document.querySelector(name).shadowRoot?.querySelector('.isReady'), element);
        const names = await page.evaluate(async (script) => Object.keys((await import(script)).elements), `/only/${element}/asset.js`);
        assert.deepEqual(names, [element]);
        const { attributes } = await page.evaluate((name) => ({ attributes: customElements.get(name).observedAttributes }), element);
        const { modules } = JSON.parse(readFileSync(path.join(folder, element, 'custom-elements.json'), 'utf8'));
        const [declaration, ...others] = modules[0].declarations;
        assert.equal(others.length, 0);
        for (const { name } of declaration.attributes) {
            if (name !== 'ticks') assert.ok(attributes.includes(name), `${element} does not observe ${name}`);
        }
        assert.deepEqual(errors, []);
        await page.close();
    }
});
