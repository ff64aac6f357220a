// For bundlers, and for pages that serve both files: the module lies beside the script.
import { defineElements } from './pickers.js';
import { addLanguages, provideLanguages } from './languages.js';
import { startModule } from './module.js';
import languages from 'gxuipickers.languages';

export * from './index.js';

async function compile(): Promise<WebAssembly.Module> {
    const response = await fetch(new URL('./gxuipickers.wasm', import.meta.url));
    if (!response.ok) throw new Error(`${response.url}: ${response.status} ${response.statusText}`);
    // A server that does not know the type has its file compiled once it is there.
    const isKnown = response.headers.get('content-type')?.startsWith('application/wasm') ?? false;
    return isKnown ? WebAssembly.compileStreaming(response) : WebAssembly.compile(await response.arrayBuffer());
}

if (typeof HTMLElement !== 'undefined') {
    provideLanguages(languages);
    startModule(compile(), addLanguages).catch(() => undefined); // It has been told.
    defineElements();
}
