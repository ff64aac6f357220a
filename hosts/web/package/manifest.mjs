// Writes the custom elements manifest of the package: node manifest.mjs FOLDER
//
// Nothing of it is written by hand a second time:
// - tags, attributes and what they stand for are the script's own `elements` and `optionsOf`;
// - types and descriptions are those of the script's classes;
// - what all pickers have in common stands in the tags of the comment of `PickerElement`.
import { build } from 'esbuild';
import { readdirSync, writeFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import ts from 'typescript';

const scripts = fileURLToPath(new URL('../script/', import.meta.url));
const modulePath = 'asset.js';

/** The script's own lists, run as they are. */
async function readLists() {
    const stdin = {
        contents: "export { elements } from './pickers.ts'; export { optionsOf, propertyName } from './properties.ts';",
        resolveDir: scripts,
    };
    const { outputFiles } = await build({ stdin, bundle: true, format: 'esm', write: false, keepNames: true, logLevel: 'warning' });
    return import(`data:text/javascript;base64,${Buffer.from(outputFiles[0].contents).toString('base64')}`);
}

/** The exported classes by their names, each with its comment and its public members. */
function readClasses() {
    const files = readdirSync(scripts).filter((name) => name.endsWith('.ts'));
    const program = ts.createProgram(
        files.map((name) => path.join(scripts, name)),
        { target: ts.ScriptTarget.ES2022, module: ts.ModuleKind.ESNext, moduleResolution: ts.ModuleResolutionKind.Bundler, strict: true },
    );
    const checker = program.getTypeChecker();
    const textOf = (symbol) => ts.displayPartsToString(symbol.getDocumentationComment(checker)).replace(/\s+/g, ' ').trim();
    const classes = new Map();
    for (const name of files) {
        ts.forEachChild(program.getSourceFile(path.join(scripts, name)), (node) => {
            if (!ts.isClassDeclaration(node) || !node.name) return;
            const symbol = checker.getSymbolAtLocation(node.name);
            const type = checker.getDeclaredTypeOfSymbol(symbol);
            const member = (property) => {
                const found = type.getProperty(property);
                if (!found) return undefined;
                const flags = ts.TypeFormatFlags.InTypeAlias | ts.TypeFormatFlags.NoTruncation;
                const shown = checker.typeToString(checker.getTypeOfSymbol(found), node, flags).replaceAll('"', "'");
                const isReadonly = (found.flags & ts.SymbolFlags.GetAccessor) !== 0 && (found.flags & ts.SymbolFlags.SetAccessor) === 0;
                return { type: { text: shown }, description: textOf(found), ...(isReadonly ? { readonly: true } : {}) };
            };
            const tags = symbol.getJsDocTags(checker).map((tag) => ({ kind: tag.name, text: ts.displayPartsToString(tag.text) }));
            classes.set(node.name.text, { description: textOf(symbol), member, tags });
        });
    }
    return classes;
}

/** "{type} name - description", as in the tags of a class's comment. */
function partsOf(text) {
    const [, type, name, description] = /^(?:\{(.*?)\}\s*)?(.*?)\s*-\s+(.*)$/s.exec(text) ?? [];
    if (description === undefined) throw new Error(`a tag without a description: ${text}`);
    return { name, ...(type ? { type: { text: type } } : {}), description: description.replace(/\s+/g, ' ') };
}

const { elements, optionsOf, propertyName } = await readLists();
const classes = readClasses();
const base = classes.get('PickerElement');
const tagged = (kind) => base.tags.filter((tag) => tag.kind === kind).map((tag) => partsOf(tag.text));
/** Attributes whose property is spelled otherwise. */
const spelling = { readonly: 'readOnly' };

const known = (tag, member, found) => {
    if (!found) throw new Error(`<${tag}>: there is no ${member}`);
    return found;
};

function declarationOf(tag, element) {
    const own = classes.get(element.name);
    const options = optionsOf[element.kind].map((option) => ({ option, name: propertyName(option.attribute) }));
    const member = (name) => ({ kind: 'field', name, ...known(tag, name, own.member(name)) });
    const inheritedFrom = { name: 'PickerElement', module: modulePath };
    const common = tagged('attr').map((attribute) => {
        const fieldName = spelling[attribute.name] ?? attribute.name;
        return { ...attribute, ...(base.member(fieldName) ? { fieldName } : {}), inheritedFrom };
    });
    return {
        kind: 'class',
        customElement: true,
        name: element.name,
        tagName: tag,
        description: known(tag, 'the class', own).description,
        superclass: { name: 'PickerElement', module: modulePath },
        attributes: [
            ...options.map(({ option, name }) => {
                const { type, description } = member(name);
                return { name: option.attribute, type, description, fieldName: name };
            }),
            ...common,
        ],
        members: [
            ...options.map(({ option, name }) => ({
                ...member(name),
                attribute: option.attribute,
                ...(option.isValue ? {} : { reflects: true }),
            })),
            ...(tag === 'gx-wheel' ? ['columns', 'rows'].map(member) : []),
            { ...member('valueText'), inheritedFrom },
        ],
        events: tagged('fires').map((event) => ({ ...event, inheritedFrom })),
        slots: tagged('slot').map(({ description }) => ({ name: '', description })),
        cssParts: tagged('csspart'),
        cssProperties: tagged('cssprop'),
    };
}

const [folder] = process.argv.slice(2);
if (!folder) {
    console.error('usage: node manifest.mjs FOLDER');
    process.exit(2);
}
const all = Object.entries(elements);
const manifest = {
    schemaVersion: '2.1.0',
    readme: 'README.md',
    modules: [
        {
            kind: 'javascript-module',
            path: modulePath,
            declarations: all.map(([tag, element]) => declarationOf(tag, element)),
            exports: all.flatMap(([tag, { name }]) => [
                { kind: 'js', name, declaration: { name, module: modulePath } },
                { kind: 'custom-element-definition', name: tag, declaration: { name, module: modulePath } },
            ]),
        },
    ],
};
writeFileSync(path.join(folder, 'custom-elements.json'), `${JSON.stringify(manifest, null, 2)}\n`);
