// Short names for the properties that only the scripts themselves use.
// A test: tests/web/names.test.mjs.
import { readdirSync, readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import path from 'node:path';
import ts from 'typescript';

/** A page can reach the classes and types of these: only what is private of them is renamed. */
const publicScripts = ['calls', 'clock', 'element', 'forms', 'icons', 'module', 'pickers', 'properties', 'values', 'wheel'];

const parsed = (file) => ts.createSourceFile(file, readFileSync(file, 'utf8'), ts.ScriptTarget.ES2022, true);

function visit(node, work) {
    work(node);
    ts.forEachChild(node, (child) => visit(child, work));
}

/** What classes and interfaces declare, also by parameters of their constructors. */
const isMember = (node) =>
    ts.isClassElement(node) || ts.isTypeElement(node) || (ts.isParameter(node) && ts.isParameterPropertyDeclaration(node, node.parent));
const isPrivate = (node) => node.modifiers?.some(({ kind }) => kind === ts.SyntaxKind.PrivateKeyword) ?? false;

/** All that a browser's objects have, by TypeScript's declarations of them. */
function namesOfLibraries() {
    const folder = path.dirname(createRequire(import.meta.url).resolve('typescript'));
    const files = readdirSync(folder).filter((name) => /^lib\.(dom|es).*\.d\.ts$/.test(name));
    return files.flatMap(
        (file) => readFileSync(path.join(folder, file), 'utf8').match(/(?<=^ +(?:readonly |get |set )?)[\w$]+(?=\??[(:<])/gm) ?? [],
    );
}

/** What the module imports and exports. */
function namesOfModule(bytes) {
    const module = new WebAssembly.Module(bytes);
    const imports = WebAssembly.Module.imports(module).flatMap(({ module: group, name }) => [group, name]);
    return [...imports, ...WebAssembly.Module.exports(module).map(({ name }) => name)];
}

const letters = [...'abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ'];
const shortest = [...letters, ...letters.flatMap((first) => letters.map((second) => first + second))];

/**
 * A short name for each property that no page, no browser and no module knows, those used most
 * first. `folder` has the scripts, `module` the bytes of what they load.
 */
export function shortNames(folder, module) {
    const kept = new Set([...namesOfLibraries(), ...namesOfModule(module)]);
    const own = new Set();
    const ofElements = new Set();
    const uses = new Map();
    for (const file of readdirSync(folder).filter((name) => name.endsWith('.ts') && !name.endsWith('.d.ts'))) {
        const isPublic = publicScripts.includes(path.basename(file, '.ts'));
        visit(parsed(path.join(folder, file)), (node) => {
            if (ts.isIdentifier(node)) uses.set(node.text, (uses.get(node.text) ?? 0) + 1);
            // As a property's name in quotes, such as an attribute.
            if (ts.isStringLiteralLike(node)) kept.add(node.text);
            if (!isMember(node) || !node.name || !ts.isIdentifier(node.name)) return;
            // A type without a name says what an object of the browser's has besides.
            const isForeign = ts.isTypeLiteralNode(node.parent);
            if (isForeign || (isPublic && !isPrivate(node))) kept.add(node.name.text);
            else own.add(node.name.text);
            if (isPublic) ofElements.add(node.name.text);
        });
    }
    const names = [...own].filter((name) => !kept.has(name)).sort((one, other) => uses.get(other) - uses.get(one));
    const isFree = (name) => !kept.has(name) && !uses.has(name);
    const plain = shortest.filter(isFree).values();
    // A page may keep something of its own on an element, under a short name.
    const marked = shortest
        .map((name) => `_${name}`)
        .filter(isFree)
        .values();
    return Object.fromEntries(names.map((name) => [name, (ofElements.has(name) ? marked : plain).next().value]));
}
