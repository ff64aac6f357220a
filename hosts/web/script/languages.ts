import { loadedModule } from './module.js';

/** How each language is loaded, by the first part of its tag. */
type Languages = Readonly<Record<string, () => Promise<{ default: string }>>>;

let files: Languages = {};
/** What is being loaded, by the first part of a language's tag; nothing for what has arrived. */
const loading = new Map<string, Promise<void> | undefined>();
const arrived: string[] = [];

/** The page's language begins to load at once, while the module does. */
export function provideLanguages(languages: Languages): void {
    files = languages;
    void loadLanguage(document.documentElement.lang);
}

/** Gives the module the languages that were there before it. */
export function addLanguages(): void {
    const module = loadedModule();
    if (!module) return;
    for (const data of arrived.splice(0)) module.addLanguage(data);
}

/**
 * Begins to load the language of a tag such as "de-AT" and returns when it has arrived, or cannot
 * be had; nothing if there is nothing to wait for. English is in the module.
 */
export function loadLanguage(tag: string): Promise<void> | undefined {
    // No two languages have the first part of their tags in common.
    const code = /^[a-z]*/i.exec(tag)![0].toLowerCase();
    const load = Object.hasOwn(files, code) ? files[code] : undefined;
    if (!load || loading.has(code)) return loading.get(code);
    const promise = load()
        .then((file) => {
            arrived.push(file.default);
            addLanguages();
        })
        .catch((reason: unknown) => {
            console.warn(`GXUIPickers: the language "${code}" cannot be loaded; texts are in English.`, reason);
        })
        .finally(() => loading.set(code, undefined));
    loading.set(code, promise);
    return promise;
}
