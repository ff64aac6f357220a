// Short names of properties: only those that no page, no browser and no module knows have one.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { readdirSync, readFileSync } from 'node:fs';
import path from 'node:path';
import { shortNames } from '../../hosts/web/names.mjs';
import { packageFolder, root } from './places.mjs';

const read = (name) => readFileSync(path.join(packageFolder, name), 'utf8');
const names = shortNames(path.join(root, 'hosts/web/script'), readFileSync(path.join(packageFolder, 'gxuipickers.wasm')));

test('what only the scripts use has a short name, each another one', () => {
    for (const name of ['surroundings', 'shownNumbers', 'drawCount', 'isFirstPictureNew']) assert.ok(names[name], name);
    assert.equal(new Set(Object.values(names)).size, Object.keys(names).length);
    // What the scripts call after it is gone from both builds.
    for (const file of ['asset.js', 'gxuipickers.js']) {
        assert.doesNotMatch(read(file).replace(/"[^"]*"/g, ''), /\.(?:surroundings|drawCount|isFirstPictureNew)\b/);
    }
});

test('private properties of an element begin with a line, so that a page may use short names', () => {
    for (const name of ['surroundings', 'shownNumbers', 'pageRows']) assert.match(names[name], /^_[a-zA-Z]+$/);
});

test('what the package documents keeps its name', () => {
    const { modules } = JSON.parse(read('custom-elements.json'));
    const documented = modules.flatMap(({ declarations }) => declarations.flatMap(({ members }) => members ?? []).map(({ name }) => name));
    assert.ok(documented.includes('valueText'));
    for (const name of documented) assert.ok(!Object.hasOwn(names, name), name);
});

test('what classes and types of the package declare for others keeps its name', () => {
    const files = ['clock', 'element', 'forms', 'icons', 'module', 'pickers', 'values', 'wheel'].map((name) => `types/${name}.d.ts`);
    const declared = files.flatMap((file) =>
        read(file).match(/(?<=^ {4}(?!private)(?:(?:get|set|protected|readonly|abstract|static) )*)\w+(?=[?(:])/gm),
    );
    for (const name of ['refresh', 'didOpen', 'runUntilStill', 'limitMemory', 'rows']) assert.ok(declared.includes(name), name);
    for (const name of declared) assert.ok(!Object.hasOwn(names, name), name);
});

test('names of the browser and of the module are neither shortened nor taken', () => {
    const module = new WebAssembly.Module(readFileSync(path.join(packageFolder, 'gxuipickers.wasm')));
    const foreign = [
        ...WebAssembly.Module.imports(module).flatMap((entry) => [entry.module, entry.name]),
        ...WebAssembly.Module.exports(module).map(({ name }) => name),
        ...['id', 'textContent', 'wheelDeltaY', 'getCoalescedEvents', 'setFormValue', 'transform', 'startTime', 'at'],
    ];
    for (const name of foreign) assert.ok(!Object.hasOwn(names, name) && !Object.values(names).includes(name), name);
});

test('an attribute, and what else stands in quotes, keeps its name', () => {
    const quoted = readdirSync(path.join(root, 'hosts/web/script'))
        .filter((name) => name.endsWith('.ts'))
        .flatMap((name) =>
            [...readFileSync(path.join(root, 'hosts/web/script', name), 'utf8').matchAll(/'(\w+)'/g)].map(([, text]) => text),
        );
    assert.ok(quoted.includes('readOnly'));
    for (const name of quoted) assert.ok(!Object.hasOwn(names, name), name);
});
