// Builds what a page loads: node build.mjs FOLDER PACKAGE [ELEMENT]
// FOLDER has the compiled gxuipickers.wasm and languages.wasm. PACKAGE becomes the npm package:
//   gxuipickers.js               one file, the module within
//   asset.js, gxuipickers.wasm   for bundlers
//   languages/                   the languages but English, loaded on demand
//   types/                       what TypeScript knows of both, and React and Vue of the elements
//   custom-elements.json         what editors know of the elements
//   sizes.json                   how large each is, and how large as a server would send it
// With an ELEMENT, such as gx-distance-picker, the scripts define that one alone.
import { build, transformSync } from 'esbuild';
import { execFile, execFileSync } from 'node:child_process';
import { copyFileSync, cpSync, mkdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { promisify, TextDecoder } from 'node:util';
import { gzipSync } from 'node:zlib';
import { shortNames } from './names.mjs';
import { kindOf, manifestOfOne, optionsOfOne, scriptOfOne, withKindsAsNumbers } from './only.mjs';
import { ordered } from './order.mjs';
import { readSizesOfOne, table, tableOfOne } from './sizes.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const [source, folder, onlyElement] = process.argv.slice(2);
if (!source || !folder) {
    console.error('usage: node build.mjs FOLDER PACKAGE [ELEMENT]');
    process.exit(2);
}
rmSync(folder, { recursive: true, force: true });
mkdirSync(path.join(folder, 'languages'), { recursive: true });

// What a browser has to know. All that can load the scripts do.
const features = ['bulk-memory', 'sign-ext', 'mutable-globals', 'nontrapping-float-to-int'];
const wasm = path.join(folder, 'gxuipickers.wasm');
// - Traps by an access beyond the memory end the module anyway, so code may be moved across them.
// - The first KiB of the memory is the end of the stack: no address is computed from one in it.
// - Functions stay functions: what is inlined is less like its neighbours, and so larger packed.
// - Equal ends of branches stay, which pack well.
// - Zeros stay in the data: a segment for each stretch between them is larger packed.
// - What is computed twice stays too: a variable for it is larger packed.
const optimisations = [
    ['-Oz', '--converge'],
    ['--ignore-implicit-traps', '--low-memory-unused'],
    ['--one-caller-inline-max-function-size', '0'],
    ['memory-packing', 'code-folding', 'local-cse'].map((name) => `--skip-pass=${name}`),
    features.map((name) => `--enable-${name}`),
].flat();
execFileSync(path.join(here, 'node_modules/.bin/wasm-opt'), [...optimisations, path.join(source, 'gxuipickers.wasm'), '-o', wasm], {
    stdio: 'inherit',
});
writeFileSync(wasm, ordered(readFileSync(wasm)));
// In the background, while the other parts are built.
const packedFile = path.join(source, 'gxuipickers.wasm.gz');
const packing = promisify(execFile)(process.execPath, [path.join(here, 'pack.mjs'), wasm, packedFile]);

/** The data of every language, in the library's order, as its own code writes it. */
function readLanguages(file) {
    const module = new WebAssembly.Module(readFileSync(file));
    const imports = {};
    for (const { module: name, name: called } of WebAssembly.Module.imports(module)) (imports[name] ??= {})[called] = () => 0;
    const { exports } = new WebAssembly.Instance(module, imports);
    exports._initialize();
    return Array.from({ length: exports.count() }, (_, i) => {
        const length = exports.read(i);
        return new TextDecoder('utf-8', { fatal: true }).decode(new Uint8Array(exports.memory.buffer, exports.data(), length));
    });
}

/** The files of the languages by the first part of their tags; English is in the module. */
const files = new Map();
for (const data of readLanguages(path.join(source, 'languages.wasm'))) {
    const identifier = data.slice(0, data.indexOf('\n'));
    if (identifier === 'en') continue;
    const code = identifier.split('-')[0];
    if (files.has(code)) throw new Error(`Two languages begin with "${code}": the script would confuse them.`);
    files.set(code, `languages/${identifier}.js`);
    writeFileSync(path.join(folder, `languages/${identifier}.js`), `export default ${JSON.stringify(data)};\n`);
    writeFileSync(path.join(folder, `languages/${identifier}.d.ts`), 'declare const data: string;\nexport default data;\n');
}
// The old code of Hebrew, which some pages still have.
const loaders = [...files, ['iw', files.get('he')]].map(([code, file]) => `${code}:()=>import("./${file}")`);

const parts = {
    'gxuipickers.languages': { contents: `export default {${loaders.join(',')}}`, loader: 'js', resolveDir: here },
};
/** The style sheet in `style.ts` without its comments and what else only its reader needs. */
const withShortStyle = (text) =>
    text.replace(/(?<=const css = `)[^`]*/, (css) => transformSync(css, { loader: 'css', minify: true, target: 'es2022' }).code);

/** How scripts are changed before they become one file. */
const changes = { style: withShortStyle };
if (onlyElement) {
    const numbered = (text) => withKindsAsNumbers(text, readFileSync(path.join(here, 'script/properties.ts'), 'utf8'));
    Object.assign(changes, {
        pickers: (text) => numbered(scriptOfOne(text, onlyElement)),
        properties: (text) => optionsOfOne(text, kindOf(onlyElement)),
        icons: numbered,
        wheel: numbered,
    });
}

const generated = {
    name: 'generated parts',
    setup(plugin) {
        plugin.onResolve({ filter: /^gxuipickers\./ }, ({ path: name }) => ({ path: name, namespace: 'generated' }));
        plugin.onLoad({ filter: /.*/, namespace: 'generated' }, ({ path: name }) => parts[name]);
        // A file of its own, which a bundler finds beside the script.
        plugin.onResolve({ filter: /^\.\/languages\// }, ({ path: name }) =>
            name.endsWith('.js') && name !== './languages.js' ? { path: name, external: true } : null,
        );
        for (const [file, reduced] of Object.entries(changes)) {
            const filter = new RegExp(`script\\/${file}\\.ts$`);
            plugin.onLoad({ filter }, ({ path: name }) => ({ contents: reduced(readFileSync(name, 'utf8')), loader: 'ts' }));
        }
    },
};

const names = shortNames(path.join(here, 'script'), readFileSync(wasm));

// Chromium then compiles functions as it reads them, and not one by one when they are first called.
const hint = '//# allFunctionsCalledOnLoad';

const bundle = (entry, outfile) =>
    build({
        entryPoints: [path.join(here, `script/${entry}.ts`)],
        outfile: path.join(folder, outfile),
        plugins: [generated],
        bundle: true,
        banner: { js: hint },
        format: 'esm',
        target: 'es2022',
        minify: true,
        mangleProps: new RegExp(`^(?:${Object.keys(names).join('|')})$`),
        mangleCache: { ...names },
        sourcemap: true,
        charset: 'utf8',
        legalComments: 'none',
        logLevel: 'warning',
    });
await bundle('asset', 'asset.js');
execFileSync(path.join(here, 'node_modules/.bin/tsc'), ['-p', here, '--emitDeclarationOnly', '--outDir', path.join(folder, 'types')], {
    stdio: 'inherit',
});
cpSync(path.join(here, 'package/types'), path.join(folder, 'types'), { recursive: true });
execFileSync(process.execPath, [path.join(here, 'package/manifest.mjs'), folder], { stdio: 'inherit' });
await packing;
parts['gxuipickers.wasm.gz'] = { contents: readFileSync(packedFile).toString('base64'), loader: 'text' };
await bundle('inline', 'gxuipickers.js');

if (onlyElement) {
    const change = (name, by) => writeFileSync(path.join(folder, name), by(readFileSync(path.join(folder, name), 'utf8')));
    change('types/pickers.d.ts', (text) => scriptOfOne(text, onlyElement) + 'export {};\n');
    change('custom-elements.json', (text) => JSON.stringify(manifestOfOne(JSON.parse(text), onlyElement), null, 2) + '\n');
}
for (const name of ['package/package.json', '../../LICENSE']) copyFileSync(path.join(here, name), path.join(folder, path.basename(name)));

const sent = ['gxuipickers.js', 'asset.js', 'gxuipickers.wasm', ...files.values()];
const sizes = Object.fromEntries(
    sent.map((name) => {
        const bytes = readFileSync(path.join(folder, name));
        return [name, { bytes: bytes.length, gzip: gzipSync(bytes, { level: 9 }).length }];
    }),
);
writeFileSync(path.join(folder, 'sizes.json'), JSON.stringify(sizes, null, 2) + '\n');
// The table in the package is always that of its files.
const readme = readFileSync(path.join(here, 'package/README.md'), 'utf8');
for (const place of ['<!-- sizes -->', '<!-- sizes of one -->'])
    if (!readme.includes(place)) throw new Error(`package/README.md has no ${place}, where a table goes.`);
writeFileSync(
    path.join(folder, 'README.md'),
    readme.replace('<!-- sizes -->', table(sizes)).replace('<!-- sizes of one -->', tableOfOne(readSizesOfOne())),
);
console.log(table(sizes));
