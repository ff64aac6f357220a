// Puts functions of a WebAssembly module that are alike beside each other, where gzip finds more in
// common: it looks back 32 KiB only. What the functions do stays the same.
// A test: tests/web/order.test.mjs.

/** Reads the numbers of a module, one after the other. */
class Reader {
    constructor(bytes, at = 0) {
        this.bytes = bytes;
        this.at = at;
    }
    byte() {
        return this.bytes[this.at++];
    }
    /** As the format writes numbers: seven bits a byte. */
    number() {
        let value = 0;
        for (let shift = 0; ; shift += 7) {
            const byte = this.byte();
            value += (byte & 127) * 2 ** shift;
            if (byte < 128) return value;
        }
    }
    skipNumbers(count) {
        for (let i = 0; i < count; i += 1) while (this.byte() > 127);
    }
    take(length) {
        this.at += length;
        return this.bytes.subarray(this.at - length, this.at);
    }
}

function numberAsBytes(number) {
    const bytes = [];
    for (let left = number; ; left = Math.floor(left / 128)) {
        if (left < 128) return [...bytes, left];
        bytes.push((left % 128) + 128);
    }
}

const sectionOf = { imports: 2, functions: 3, exports: 7, start: 8, elements: 9, code: 10 };

function sectionsOf(bytes) {
    const reader = new Reader(bytes, 8);
    const sections = [];
    while (reader.at < bytes.length) {
        const id = reader.byte();
        sections.push({ id, bytes: reader.take(reader.number()) });
    }
    return sections;
}

function countImportedFunctions(section) {
    const reader = new Reader(section);
    const all = reader.number();
    for (let i = 0; i < all; i += 1) {
        for (let name = 0; name < 2; name += 1) reader.take(reader.number());
        if (reader.byte() !== 0) throw new Error('Only functions can be imported.');
        reader.number();
    }
    return all;
}

/** How many numbers follow an instruction, for those that have any; all others have none. */
const numbersAfter = new Map([
    ...[0x02, 0x03, 0x04, 0x0c, 0x0d, 0x20, 0x21, 0x22, 0x23, 0x24, 0x25, 0x26, 0x3f, 0x40, 0x41, 0x42, 0xd0].map((code) => [code, 1]),
    ...Array.from({ length: 0x3e - 0x28 + 1 }, (_, i) => [0x28 + i, 2]),
    [0x11, 2],
]);
const numbersAfterPrefix = new Map([
    ...[0, 1, 2, 3, 4, 5, 6, 7].map((code) => [code, 0]),
    ...[9, 11, 13, 15, 16, 17].map((code) => [code, 1]),
    ...[8, 10, 12, 14].map((code) => [code, 2]),
]);
const isKnownWithoutNumbers = (code) => code < 0x12 || code === 0x1a || code === 0x1b || (code >= 0x45 && code <= 0xc4) || code === 0xd1;

/** Where a function's body names other functions: pairs of the number's begin and end. */
function callsIn(body) {
    const reader = new Reader(body);
    const calls = [];
    const groups = reader.number(); // Of local variables, each with its type.
    for (let i = 0; i < groups; i += 1) {
        reader.number();
        reader.byte();
    }
    while (reader.at < body.length) {
        const code = reader.byte();
        if (code === 0x10 || code === 0xd2) {
            const begin = reader.at;
            reader.skipNumbers(1);
            calls.push([begin, reader.at]);
        } else if (code === 0x0e) {
            reader.skipNumbers(reader.number() + 1);
        } else if (code === 0x1c) {
            reader.skipNumbers(reader.number());
        } else if (code === 0x43 || code === 0x44) {
            reader.take(code === 0x43 ? 4 : 8);
        } else if (code === 0xfc) {
            const count = numbersAfterPrefix.get(reader.number());
            if (count === undefined) throw new Error('There is an instruction that is not known here.');
            reader.skipNumbers(count);
        } else if (numbersAfter.has(code)) {
            reader.skipNumbers(numbersAfter.get(code));
        } else if (!isKnownWithoutNumbers(code)) {
            throw new Error(`There is an instruction that is not known here: ${code}.`);
        }
    }
    return calls;
}

/** Chosen by measuring: bytes that count as alike, and the neighbours that a function is like. */
const pieceLength = 5;
const neighbourCount = 4;
/** Pieces that more functions have than this say little. */
const mostOwners = 60;

/** The indices of the bodies, each as like as possible to the few before it. */
function orderOf(bodies) {
    const owners = new Map();
    const pieces = bodies.map((body, index) => {
        const own = new Set();
        for (let i = 0; i + pieceLength <= body.length; i += 1) own.add(String.fromCharCode(...body.subarray(i, i + pieceLength)));
        for (const piece of own) owners.set(piece, [...(owners.get(piece) ?? []), index]);
        return own;
    });
    const left = new Set(bodies.keys());
    const largest = () => [...left].reduce((best, index) => (bodies[index].length > bodies[best].length ? index : best));
    const order = [];
    while (left.size > 0) {
        const scores = new Map();
        order.slice(-neighbourCount).forEach((neighbour, i, neighbours) => {
            const weight = 1 / (1 + 0.3 * (neighbours.length - 1 - i));
            for (const piece of pieces[neighbour]) {
                const others = owners.get(piece);
                if (others.length > mostOwners) continue;
                for (const other of others) if (left.has(other)) scores.set(other, (scores.get(other) ?? 0) + weight);
            }
        });
        const scoreOf = ([index, shared]) => shared / (pieces[index].size + 12) ** 0.7;
        const best = [...scores].reduce((one, other) => (one && scoreOf(one) >= scoreOf(other) ? one : other), undefined);
        const next = best ? best[0] : largest();
        order.push(next);
        left.delete(next);
    }
    return order;
}

/** The module with its functions in another order. */
export function ordered(module) {
    const sections = sectionsOf(module);
    const sectionNamed = (name) => sections.find(({ id }) => id === sectionOf[name])?.bytes;
    const imported = sectionNamed('imports') ? countImportedFunctions(sectionNamed('imports')) : 0;

    const code = new Reader(sectionNamed('code'));
    const bodies = Array.from({ length: code.number() }, () => code.take(code.number()));
    const order = orderOf(bodies);
    const places = new Map(order.map((from, to) => [from, to]));
    const renumbered = (index) => (index < imported ? index : imported + places.get(index - imported));

    const rewrite = {
        functions(reader) {
            const types = Array.from({ length: reader.number() }, () => reader.number());
            return [types.length, ...order.map((from) => types[from])].flatMap(numberAsBytes);
        },
        exports(reader) {
            const count = reader.number();
            const bytes = numberAsBytes(count);
            for (let i = 0; i < count; i += 1) {
                const begin = reader.at;
                reader.take(reader.number());
                const isFunction = reader.byte() === 0;
                bytes.push(...reader.bytes.subarray(begin, reader.at));
                const index = reader.number();
                bytes.push(...numberAsBytes(isFunction ? renumbered(index) : index));
            }
            return bytes;
        },
        start: (reader) => numberAsBytes(renumbered(reader.number())),
        elements(reader) {
            const count = reader.number();
            const bytes = numberAsBytes(count);
            for (let i = 0; i < count; i += 1) {
                const begin = reader.at;
                // In the first table, at a constant place.
                if (reader.byte() !== 0 || reader.byte() !== 0x41) throw new Error('There is a table that is not known here.');
                reader.skipNumbers(1);
                if (reader.byte() !== 0x0b) throw new Error('There is a table that is not known here.');
                bytes.push(...reader.bytes.subarray(begin, reader.at));
                const length = reader.number();
                bytes.push(...numberAsBytes(length));
                for (let entry = 0; entry < length; entry += 1) bytes.push(...numberAsBytes(renumbered(reader.number())));
            }
            return bytes;
        },
        code() {
            const bytes = numberAsBytes(bodies.length);
            for (const from of order) {
                const body = [];
                let at = 0;
                for (const [begin, end] of callsIn(bodies[from])) {
                    body.push(...bodies[from].subarray(at, begin), ...numberAsBytes(renumbered(new Reader(bodies[from], begin).number())));
                    at = end;
                }
                body.push(...bodies[from].subarray(at));
                bytes.push(...numberAsBytes(body.length));
                for (const byte of body) bytes.push(byte);
            }
            return bytes;
        },
    };
    const result = [...module.subarray(0, 8)];
    for (const { id, bytes } of sections) {
        const name = Object.keys(sectionOf).find((key) => sectionOf[key] === id);
        const changed = rewrite[name]?.(new Reader(bytes)) ?? bytes;
        result.push(id, ...numberAsBytes(changed.length));
        for (const byte of changed) result.push(byte);
    }
    return Uint8Array.from(result);
}
