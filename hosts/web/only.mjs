// What a package with one element leaves out of the scripts, their types and the manifest.
// A test: tests/web/only.test.mjs.

/** A line that names an element, such as `'gx-wheel': Wheel,` or `'gx-wheel': Wheel;`. */
const elementLine = /^ +(?:readonly )?'(gx-(?:[\w-]+-picker|wheel))': (?:typeof )?(\w+)[,;]$/;

/** The name of an element's class, by the list of `pickers.ts`. */
function classOf(script, element) {
    const lines = script.split('\n').map((line) => elementLine.exec(line));
    const found = lines.find((match) => match?.[1] === element);
    if (!found) throw new Error(`There is no element ${element}.`);
    return found[2];
}

/**
 * `pickers.ts`, or its types, with one element left in the lists and only its class exported. What
 * nothing names then is left out by the bundler.
 */
export function scriptOfOne(script, element) {
    const className = classOf(script, element);
    const isOther = (line) => {
        const match = elementLine.exec(line);
        return match !== null && match[1] !== element;
    };
    const isReexportOfOthers = (line) => /^export \{ \w+/.test(line) && !new RegExp(`\\b${className}\\b`).test(line);
    return script
        .split('\n')
        .filter((line) => !isOther(line) && !isReexportOfOthers(line))
        .map((line) => (new RegExp(`^export (declare )?class (?!${className}\\b)`).test(line) ? line.replace('export ', '') : line))
        .join('\n');
}

/** `properties.ts` with the options of one kind. */
export function optionsOfOne(script, kind) {
    let isInList = false;
    let isDropped = false;
    return script
        .split('\n')
        .filter((line) => {
            if (line.startsWith('export const optionsOf')) isInList = true;
            else if (line === '};') isInList = isDropped = false;
            else if (isInList) {
                const entry = /^ {4}\[Kind\.(\w+)\]:/.exec(line);
                if (entry) isDropped = entry[1] !== kind;
                return !isDropped;
            }
            return true;
        })
        .join('\n')
        .replace('Readonly<Record<Kind, readonly Option[]>> =', 'any =');
}

/**
 * A script with each class's kind as a plain number. The bundler leaves out a class that nothing
 * names only if it sees that making it does nothing else; of `Kind.Pace` it does not know that.
 */
export function withKindsAsNumbers(script, properties) {
    const names = /export enum Kind \{([^}]*)\}/.exec(properties)[1].match(/[A-Z]\w*(?=,| =)/g);
    return script.replace(/(?<=static override readonly kind(?:: Kind)? = )Kind\.(\w+)(?=;)/g, (_, name) => {
        if (!names.includes(name)) throw new Error(`There is no kind ${name}.`);
        return String(names.indexOf(name));
    });
}

/** The manifest with one element. */
export function manifestOfOne(manifest, element) {
    const kept = (list) => list.filter((entry) => entry.tagName === element || entry.name === element);
    const modules = manifest.modules.map((module) => {
        const declarations = kept(module.declarations);
        const names = new Set(declarations.map(({ name }) => name));
        return {
            ...module,
            declarations,
            exports: module.exports.filter((entry) => entry.name === element || names.has(entry.declaration?.name)),
        };
    });
    return { ...manifest, modules };
}

/** How the library calls an element's kind: `gx-heart-rate-picker` is HeartRate. */
export function kindOf(element) {
    if (element === 'gx-wheel') return 'Columns';
    const words = element
        .replace(/^gx-/, '')
        .replace(/-picker$/, '')
        .split('-');
    return words.map((word) => word[0].toUpperCase() + word.slice(1)).join('');
}

/** The element that someone means by `distance`, `Distance` or `gx-distance-picker`. */
export function elementNamed(name) {
    const plain = name
        .replace(/(?<=[a-z])[A-Z]/g, (letter) => `-${letter}`)
        .toLowerCase()
        .replace(/^gx-/, '')
        .replace(/-picker$/, '');
    return plain === 'wheel' || plain === 'columns' ? 'gx-wheel' : `gx-${plain}-picker`;
}
