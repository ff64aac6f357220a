// Runs a test program that was compiled to WebAssembly: node program.mjs PROGRAM [ARGUMENT…]
// Of this machine it sees the reference tables and GoogleTest's variables, nothing else.
import { readFile } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { WASI } from 'node:wasi';

const [program, ...asked] = process.argv.slice(2);
if (!program) {
    console.error('usage: node program.mjs PROGRAM [ARGUMENT…]');
    process.exit(2);
}
const tables = path.join(path.dirname(fileURLToPath(import.meta.url)), '../reference/tables');
const env = Object.fromEntries(Object.entries(process.env).filter(([name]) => name.startsWith('GTEST_') || name.startsWith('GX_')));
const wasi = new WASI({
    version: 'preview1',
    args: [path.basename(program), ...asked],
    env,
    preopens: { [tables]: tables },
    returnOnExit: true,
});
const module = await WebAssembly.compile(await readFile(program));
const instance = await WebAssembly.instantiate(module, wasi.getImportObject());
process.exitCode = wasi.start(instance);
