// One file for a page without a bundler: the module comes with the script.
// First, so that it does not stand between parts of the script that are packed together.
import packed from 'gxuipickers.wasm.gz';
import { defineElements } from './pickers.js';
import { addLanguages, provideLanguages } from './languages.js';
import { startModule } from './module.js';
import languages from 'gxuipickers.languages';

export * from './index.js';

async function compile(): Promise<WebAssembly.Module> {
    const bytes = Uint8Array.from(atob(packed), (letter) => letter.charCodeAt(0));
    const unpacked = new Response(bytes).body!.pipeThrough(new DecompressionStream('gzip'));
    return WebAssembly.compile(await new Response(unpacked).arrayBuffer());
}

if (typeof HTMLElement !== 'undefined') {
    provideLanguages(languages);
    startModule(compile(), addLanguages).catch(() => undefined); // It has been told.
    defineElements();
}
