// Builds what a page loads from the compiled module: node build.mjs MODULE.wasm FOLDER
// The folder becomes the npm package:
//   gxuipickers.js               one file, the module within
//   asset.js, gxuipickers.wasm   for bundlers
//   types/                       what TypeScript knows of both, and React and Vue of the elements
//   custom-elements.json         what editors know of the elements
//   sizes.json                   how large each is, and how large as a server would send it
import { build } from 'esbuild';
import { execFileSync } from 'node:child_process';
import { copyFileSync, cpSync, mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { gzipSync } from 'node:zlib';

const here = path.dirname(fileURLToPath(import.meta.url));
const [source, folder] = process.argv.slice(2);
if (!source || !folder) {
    console.error('usage: node build.mjs MODULE.wasm FOLDER');
    process.exit(2);
}
mkdirSync(folder, { recursive: true });
const wasm = path.join(folder, 'gxuipickers.wasm');
execFileSync(
    path.join(here, 'node_modules/.bin/wasm-opt'),
    [
        '-Oz',
        '--enable-bulk-memory',
        '--enable-sign-ext',
        '--enable-mutable-globals',
        '--enable-nontrapping-float-to-int',
        source,
        '-o',
        wasm,
    ],
    { stdio: 'inherit' },
);
const packed = gzipSync(readFileSync(wasm), { level: 9 });

const packedModule = {
    name: 'packed module',
    setup(plugin) {
        plugin.onResolve({ filter: /^gxuipickers\.wasm\.gz$/ }, () => ({ path: 'gxuipickers.wasm.gz', namespace: 'packed' }));
        plugin.onLoad({ filter: /.*/, namespace: 'packed' }, () => ({ contents: packed.toString('base64'), loader: 'text' }));
    },
};
const common = {
    bundle: true,
    format: 'esm',
    target: 'es2022',
    minify: true,
    sourcemap: true,
    charset: 'utf8',
    legalComments: 'none',
    logLevel: 'warning',
};
await build({
    ...common,
    entryPoints: [path.join(here, 'script/inline.ts')],
    outfile: path.join(folder, 'gxuipickers.js'),
    plugins: [packedModule],
});
await build({ ...common, entryPoints: [path.join(here, 'script/asset.ts')], outfile: path.join(folder, 'asset.js') });
execFileSync(path.join(here, 'node_modules/.bin/tsc'), ['-p', here, '--emitDeclarationOnly', '--outDir', path.join(folder, 'types')], {
    stdio: 'inherit',
});
cpSync(path.join(here, 'package/types'), path.join(folder, 'types'), { recursive: true });
execFileSync(process.execPath, [path.join(here, 'package/manifest.mjs'), folder], { stdio: 'inherit' });
for (const name of ['package/package.json', 'package/README.md', '../../LICENSE'])
    copyFileSync(path.join(here, name), path.join(folder, path.basename(name)));

const sizes = Object.fromEntries(
    ['gxuipickers.wasm', 'asset.js', 'gxuipickers.js'].map((name) => {
        const bytes = readFileSync(path.join(folder, name));
        return [name, { bytes: bytes.length, gzip: gzipSync(bytes, { level: 9 }).length }];
    }),
);
writeFileSync(path.join(folder, 'sizes.json'), JSON.stringify(sizes, null, 2) + '\n');
for (const [name, size] of Object.entries(sizes))
    console.log(`${name.padEnd(20)} ${String(size.bytes).padStart(8)} bytes ${String(size.gzip).padStart(8)} gzipped`);
