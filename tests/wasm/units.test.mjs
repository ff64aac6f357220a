// The unit tests of floors 1 to 3 as WebAssembly, where `long` and `size_t` have 32 bits and the
// standard library is another one. Expected numbers are the desktop's, to the bit.
//
// The preset wasm-tests builds them. What cannot run there is skipped by name, with its reason.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

const here = path.dirname(fileURLToPath(import.meta.url));
const programs = path.join(here, '../../build/wasm-tests/tests');
const noProcess = 'a program that ends needs a process of its own';
// Besides these, allocations_test is not built: it counts what the desktop's allocator gives.
const leftOut = {
    'GXMultiValuePickerViewDeathTest.ADelegateThatNothingHoldsStopsDebugBuilds': noProcess,
    'OwnPickerCellDeathTest.OneWithoutAnIdentifierThatIsMadeForTheInheritedOneStopsDebugBuilds': noProcess,
};

function run(program, shard, shards) {
    const environment = { ...process.env, GTEST_TOTAL_SHARDS: `${shards}`, GTEST_SHARD_INDEX: `${shard}` };
    const flags = ['--no-warnings', path.join(here, 'program.mjs'), path.join(programs, program)];
    return new Promise((resolve) => {
        execFile(process.execPath, flags, { env: environment, maxBuffer: 1 << 28 }, (error, output, log) =>
            resolve({ error, output, log }),
        );
    });
}

const count = (output, pattern) => [...output.matchAll(pattern)].length;

// The pickers' tests take longest, so they run in two halves side by side.
for (const [program, shards, least] of [
    ['platform_test', 1, 1000],
    ['services_test', 1, 90],
    ['pickers_test', 2, 900],
]) {
    test(`${program} passes as WebAssembly`, { concurrency: true }, async (context) => {
        const parts = await Promise.all(Array.from({ length: shards }, (_, shard) => run(program, shard, shards)));
        for (const { error, output, log } of parts) assert.equal(error, null, `${output.slice(-5000)}\n${log.slice(-2000)}`);
        const output = parts.map((part) => part.output).join('\n');
        const passed = count(output, /^\[ {7}OK \]/gm);
        const skipped = [...output.matchAll(/Skipped\n(.*)\n+\[ {2}SKIPPED \] (\S+)/g)].map(([, reason, name]) => [name, reason]);
        for (const [name, reason] of skipped) {
            assert.equal(reason, leftOut[name], `${name} may not be left out`);
            context.diagnostic(`left out: ${name}: ${reason}`);
        }
        assert.equal(count(output, /^\[ {2}SKIPPED \] \S+ \(/gm), skipped.length);
        assert.equal(count(output, /^\[ RUN {6}\]/gm), passed + skipped.length);
        assert.ok(passed >= least, `only ${passed} tests have run`);
        context.diagnostic(`${passed} tests passed, ${skipped.length} left out`);
    });
}
