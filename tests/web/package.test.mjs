// The package as it is published: what it holds, and what its manifest says of the elements.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import path from 'node:path';
import { packageFolder } from './places.mjs';
import { assertQuiet, Stage, untilColumns } from './stage.mjs';

const manifest = JSON.parse(readFileSync(path.join(packageFolder, 'custom-elements.json'), 'utf8'));
const declarations = manifest.modules[0].declarations;
const stage = new Stage();

test('the packed package holds all that its package.json names', () => {
    const list = execFileSync('npm', ['pack', '--dry-run', '--json', '--ignore-scripts'], { cwd: packageFolder, encoding: 'utf8' });
    const packed = JSON.parse(list);
    const files = new Set((Array.isArray(packed) ? packed : Object.values(packed))[0].files.map((file) => file.path));
    const { exports, customElements, sideEffects } = JSON.parse(readFileSync(path.join(packageFolder, 'package.json'), 'utf8'));
    const named = [
        Object.values(exports).flatMap((entry) => (typeof entry === 'string' ? entry : Object.values(entry))),
        customElements,
        sideEffects,
    ];
    for (const name of [...named.flat(), 'LICENSE', 'README.md', 'asset.js.map', 'gxuipickers.js.map', 'sizes.json'])
        assert.ok(files.has(path.posix.normalize(name)), `${name} is not packed`);
    for (const name of files) assert.ok(!/(?<!\.d)\.ts$/.test(name), `${name} is packed`);
});

test('source maps hold the sources', () => {
    for (const name of ['asset.js', 'gxuipickers.js']) {
        const script = readFileSync(path.join(packageFolder, name), 'utf8');
        assert.ok(script.endsWith(`sourceMappingURL=${name}.map\n`), name);
        const { sources, sourcesContent } = JSON.parse(readFileSync(path.join(packageFolder, `${name}.map`), 'utf8'));
        assert.ok(sources.some((source) => source.endsWith('script/element.ts')));
        assert.equal(sourcesContent.length, sources.length);
    }
});

test('the manifest describes every part of every element', () => {
    const isDescribed = (part, of) => assert.ok(part.description?.length > 2, `${of}: ${part.name || 'slot'} has no description`);
    assert.equal(declarations.length, 15);
    for (const declaration of declarations) {
        const { tagName, attributes, members, events, slots, cssParts, cssProperties } = declaration;
        isDescribed(declaration, tagName);
        for (const part of [...attributes, ...members, ...events, ...slots, ...cssParts, ...cssProperties]) isDescribed(part, tagName);
    }
});

test('the manifest says what the elements have', async () => {
    const { page, logs, close } = await stage.open(declarations.map(({ tagName }) => `<${tagName} aria-label="it"></${tagName}>`).join(''));
    const found = await page.evaluate(() =>
        [...document.querySelectorAll('body > *')]
            .filter((node) => node.localName.startsWith('gx-'))
            .map((node) => ({ tagName: node.localName, observed: [...node.constructor.observedAttributes] })),
    );
    for (const [i, declaration] of declarations.entries()) {
        const { tagName, observed } = found[i];
        assert.equal(tagName, declaration.tagName);
        const named = declaration.attributes.map(({ name }) => name);
        assert.deepEqual(
            observed.filter((name) => !named.includes(name) && !['dir', 'aria-labelledby'].includes(name)),
            [],
            tagName,
        );
    }
    const missing = await page.evaluate(
        (all) =>
            all.flatMap(({ tagName, members }) =>
                members.filter(({ name }) => !(name in document.querySelector(tagName))).map(({ name }) => `${tagName}.${name}`),
            ),
        declarations,
    );
    assert.deepEqual(missing, []);
    assertQuiet(logs);
    await close();
});

test('the manifest names the parts and properties that a page’s style sheet reaches', async () => {
    const icons = '<gx-icon-picker><svg aria-label="one"></svg><svg aria-label="two"></svg></gx-icon-picker>';
    const { page, close } = await stage.open(`<gx-distance-picker></gx-distance-picker>${icons}`);
    await untilColumns(page, 'gx-icon-picker');
    const { parts, sheet } = await page.evaluate(() => {
        const shadow = document.querySelector('gx-distance-picker').shadowRoot;
        const others = document.querySelector('gx-icon-picker').shadowRoot;
        const nodes = [shadow, others].flatMap((root) => [...root.querySelectorAll('[part]')]);
        return {
            parts: [...new Set(nodes.flatMap((node) => [...node.part]))],
            sheet: [...shadow.adoptedStyleSheets].flatMap((one) => [...one.cssRules].map((rule) => rule.cssText)).join('\n'),
        };
    });
    const named = declarations[0].cssParts.map(({ name }) => name);
    assert.deepEqual(
        parts.filter((name) => !named.includes(name)),
        [],
    );
    assert.deepEqual(new Set(sheet.match(/--gx-[a-z-]+/g)), new Set(declarations[0].cssProperties.map(({ name }) => name)));
    await close();
});
