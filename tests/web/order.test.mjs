// The order of a module's functions: alike ones beside each other, and what they do as before.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { gzipSync } from 'node:zlib';
import { ordered } from '../../hosts/web/order.mjs';

const assembler = path.join(path.dirname(fileURLToPath(import.meta.url)), '../../hosts/web/node_modules/.bin/wasm-as');

function assembled(text, ...options) {
    const folder = mkdtempSync(path.join(os.tmpdir(), 'gx-order-'));
    try {
        writeFileSync(path.join(folder, 'module.wat'), text);
        execFileSync(assembler, [...options, path.join(folder, 'module.wat'), '-o', path.join(folder, 'module.wasm')]);
        return readFileSync(path.join(folder, 'module.wasm'));
    } finally {
        rmSync(folder, { recursive: true });
    }
}

/** Two kinds of functions by turns, of which each calls the one before it. */
const count = 150;
const lines = Array.from({ length: count }, (_, i) => {
    const before = i === 0 ? '(local.get 0)' : `(call $f${i - 1} (local.get 0))`;
    const sum = `(i32.add (i32.mul ${before} (i32.const 3)) (i32.const ${i}))`;
    const steps = `(f64.store (i32.const 16) (f64.add (f64.const 0.5) (f64.load offset=8 (i32.const 8))))
        (if (i32.gt_u (local.get 0) (i32.const 1000)) (then (return (i32.const -1))))`;
    return `(func $f${i} (param i32) (result i32) ${i % 2 ? steps : '(drop (i64.const 123456789012))'} ${sum})`;
});
const text = `(module
    (import "page" "tell" (func $tell (param i32)))
    (memory (export "memory") 1)
    (table 4 funcref)
    (elem (i32.const 1) $f7 $tell $f149)
    (global $started (mut i32) (i32.const 0))
    (func $start (global.set $started (i32.const 5)) (memory.fill (i32.const 64) (i32.const 7) (i32.const 3)))
    (start $start)
    ${lines.join('\n')}
    (func (export "last") (param i32) (result i32)
        (call $tell (local.get 0))
        (block $a (block $b (block $c (br_table $a $b $c (local.get 0)))) (return (i32.const 77)))
        (call_indirect (param i32) (result i32) (local.get 0) (i32.const 3)))
    (func (export "seventh") (param i32) (result i32) (call_indirect (param i32) (result i32) (local.get 0) (i32.const 1)))
    (func (export "started") (result i32) (global.get $started)))`;

function resultsOf(bytes) {
    const told = [];
    const { exports } = new WebAssembly.Instance(new WebAssembly.Module(bytes), { page: { tell: (number) => told.push(number) } });
    const results = [0, 1, 2, 1001].map((number) => [exports.last(number), exports.seventh(number)]);
    return { results, told, started: exports.started(), memory: [...new Uint8Array(exports.memory.buffer, 0, 80)] };
}

const module = assembled(text, '--enable-bulk-memory');

test('functions in another order do the same', () => {
    const before = resultsOf(module);
    assert.equal(before.started, 5);
    assert.deepEqual(before.told, [0, 1, 2, 1001]);
    assert.notEqual(before.results[0][0], 77);
    assert.equal(before.results[1][0], 77);
    assert.deepEqual(resultsOf(ordered(module)), before);
});

test('alike functions are beside each other, so that they pack better', () => {
    const after = ordered(module);
    assert.notDeepEqual([...after], [...module]);
    assert.ok(gzipSync(after).length < gzipSync(module).length);
    assert.deepEqual([...ordered(module)], [...after], 'the same each time');
});

test('an instruction that is not known is an error', () => {
    const other = assembled('(module (func (export "f") (drop (v128.const i64x2 1 2))))', '--enable-simd');
    assert.throws(() => ordered(other), /an instruction that is not known here: 253/);
});
