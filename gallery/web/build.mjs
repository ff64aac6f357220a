// Puts the page and all that it loads into a folder: node build.mjs PACKAGE FOLDER
// Its texts are those of the gallery, read from gallery/text/languages: texts/de.json and so on.
import { cpSync, mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

const here = fileURLToPath(new URL('.', import.meta.url));
const [packed, folder] = process.argv.slice(2);
if (!packed || !folder) {
    console.error('usage: node build.mjs PACKAGE FOLDER');
    process.exit(2);
}

const sources = path.join(here, '../text/languages');
const literal = String.raw`"(?:\\.|[^"\\])*"`;
const entry = new RegExp(String.raw`^\s*(?:\{(${literal}),\s*(${literal})\}|(${literal})),\s*$`, 'gm');

/** What a language's header lists: its code, and each English text with its own. */
function readLanguage(file) {
    const source = readFileSync(file, 'utf8');
    const [, code] = /language = "([a-zA-Z-]+)"/.exec(source);
    // Escapes are the same in JSON; one that is not stops the build.
    const texts = [...source.matchAll(entry)].map(([, english, text, both]) =>
        [english ?? both, text ?? both].map((one) => JSON.parse(one)),
    );
    return { code, texts: Object.fromEntries(texts) };
}

// In the order of the list of languages, which is that of the menu.
const [, list] = /ApplicationLanguageList<([^>]*)>;/s.exec(readFileSync(path.join(sources, 'ApplicationLanguages.h'), 'utf8'));
const languages = list.split(',').map((name) => readLanguage(path.join(sources, `${name.trim()}.h`)));
const count = Object.keys(languages[0].texts).length;
for (const { code, texts } of languages)
    if (count === 0 || Object.keys(texts).length !== count)
        throw new Error(`${code} has ${Object.keys(texts).length} texts, en has ${count}`);

rmSync(folder, { recursive: true, force: true });
mkdirSync(path.join(folder, 'texts'), { recursive: true });
for (const { code, texts } of languages) writeFileSync(path.join(folder, `texts/${code}.json`), JSON.stringify(texts));
writeFileSync(path.join(folder, 'texts/index.json'), JSON.stringify(languages.map(({ code }) => code)));
for (const name of readdirSync(here)) if (/\.(html|css|js|svg)$/.test(name)) cpSync(path.join(here, name), path.join(folder, name));
cpSync(packed, path.join(folder, 'gxuipickers'), { recursive: true, filter: (source) => path.basename(source) !== 'types' });
