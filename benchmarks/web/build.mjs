// Bundles a page for each picker: node benchmarks/web/build.mjs
// Each is a folder of build/web/benchmark with index.html, page.js, page.css where it has styles,
// and the module of the elements.
import { copyFileSync, existsSync, mkdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { gzipSync } from 'node:zlib';

const here = path.dirname(fileURLToPath(import.meta.url));
const root = path.join(here, '../..');
const tools = createRequire(path.join(root, 'hosts/web/package.json'));
const { build } = tools('esbuild');

export const pages = path.join(root, 'build/web/benchmark');

const styles = '<link rel="stylesheet" href="page.css">';
/** As the package's README says. */
const preload = '<link rel="preload" href="gxuipickers.wasm" as="fetch" type="application/wasm" crossorigin>';

const html = (
    links,
) => `<!doctype html><html lang="en"><head><meta charset="utf-8"><meta name="viewport" content="width=device-width"><link rel="icon" href="data:,">
<style>body { margin: 0; font: 22px sans-serif; } #stage { width: 330px; height: 216px; margin: 100px 30px; }</style>
${links}<script type="module" src="page.js"></script></head><body><div id="stage"></div></body></html>
`;

const gzipped = (file) => (existsSync(file) ? gzipSync(readFileSync(file), { level: 9 }).length : 0);

/**
 * Bundles the pages of these pickers and returns for each how many bytes a server would send.
 * `packages` are folders of our package, by the name that their elements have here.
 */
export async function buildPages(names, packages = {}) {
    const sizes = {};
    for (const name of names) {
        const elements = packages[name];
        const folder = path.join(pages, name);
        rmSync(folder, { recursive: true, force: true });
        mkdirSync(folder, { recursive: true });
        await build({
            entryPoints: { page: path.join(here, `pickers/${elements ? 'elements' : name}.mjs`) },
            alias: elements ? { gxuipickers: path.join(elements, 'asset.js') } : {},
            outdir: folder,
            bundle: true,
            // The page is in English and loads none of them.
            external: ['./languages/*'],
            format: 'esm',
            target: 'es2022',
            minify: true,
            legalComments: 'none',
            logLevel: 'error',
            define: {
                'process.env.NODE_ENV': '"production"',
                __VUE_OPTIONS_API__: 'false',
                __VUE_PROD_DEVTOOLS__: 'false',
                __VUE_PROD_HYDRATION_MISMATCH_DETAILS__: 'false',
            },
        });
        if (elements) copyFileSync(path.join(elements, 'gxuipickers.wasm'), path.join(folder, 'gxuipickers.wasm'));
        writeFileSync(
            path.join(folder, 'index.html'),
            html((existsSync(path.join(folder, 'page.css')) ? styles : '') + (elements ? preload : '')),
        );
        sizes[name] = ['page.js', 'page.css', 'gxuipickers.wasm'].reduce((sum, file) => sum + gzipped(path.join(folder, file)), 0);
    }
    return sizes;
}
