// Runs a test program on a page. `runOnPage` is handed to the page as it is, so it uses nothing
// outside of itself.
/* global TextEncoder, TextDecoder */

/**
 * Returns the program's exit code and what it has written. `files` are addresses by their names in
 * `folder`, the only files that it can read.
 */
export async function runOnPage({ program, folder, files, args }) {
    const success = 0;
    const badFile = 8;
    const noEntry = 44;
    const notThere = 52;
    const folderFile = 3;
    const encoder = new TextEncoder();
    const module = await WebAssembly.compile(await (await fetch(program)).arrayBuffer());
    const contents = new Map();
    for (const [name, address] of Object.entries(files)) contents.set(name, new Uint8Array(await (await fetch(address)).arrayBuffer()));

    const opened = new Map();
    const output = [];
    let lastFile = folderFile;
    const memory = () => running.exports.memory.buffer;
    const view = () => new DataView(memory());
    const bytesAt = (place, length) => new Uint8Array(memory(), place, length);
    const partsAt = (place, count) =>
        Array.from({ length: count }, (_, i) => [view().getUint32(place + i * 8, true), view().getUint32(place + i * 8 + 4, true)]);
    const write = (place, bytes) => bytesAt(place, bytes.length).set(bytes);
    const given = args.map((text) => encoder.encode(`${text}\0`));
    class Exit extends Error {
        constructor(code) {
            super(`exit ${code}`);
            this.code = code;
        }
    }

    const system = {
        args_sizes_get(count, size) {
            view().setUint32(count, given.length, true);
            view().setUint32(
                size,
                given.reduce((sum, bytes) => sum + bytes.length, 0),
                true,
            );
            return success;
        },
        args_get(places, buffer) {
            let place = buffer;
            given.forEach((bytes, i) => {
                view().setUint32(places + i * 4, place, true);
                write(place, bytes);
                place += bytes.length;
            });
            return success;
        },
        environ_sizes_get(count, size) {
            view().setUint32(count, 0, true);
            view().setUint32(size, 0, true);
            return success;
        },
        environ_get: () => success,
        clock_time_get(_clock, _precision, result) {
            view().setBigUint64(result, BigInt(Math.round(performance.now() * 1e6)), true);
            return success;
        },
        random_get(place, length) {
            for (let i = 0; i < length; i += 1) bytesAt(place, length)[i] = Math.floor(Math.random() * 256);
            return success;
        },
        fd_prestat_get(file, result) {
            if (file !== folderFile) return badFile;
            view().setUint32(result, 0, true);
            view().setUint32(result + 4, encoder.encode(folder).length, true);
            return success;
        },
        fd_prestat_dir_name(_file, place, length) {
            write(place, encoder.encode(folder).subarray(0, length));
            return success;
        },
        fd_fdstat_get(file, result) {
            if (file > folderFile && !opened.has(file)) return badFile;
            const kindOfFile = file < folderFile ? 2 : file === folderFile ? 3 : 4;
            view().setUint32(result, kindOfFile, true);
            view().setUint32(result + 4, 0, true);
            view().setBigUint64(result + 8, ~0n & 0xffffffffffffffffn, true);
            view().setBigUint64(result + 16, ~0n & 0xffffffffffffffffn, true);
            return success;
        },
        path_open(_folder, _flags, place, length, _how, _rights, _inherited, _more, result) {
            const bytes = contents.get(new TextDecoder().decode(bytesAt(place, length)));
            if (!bytes) return noEntry;
            lastFile += 1;
            opened.set(lastFile, { bytes, position: 0 });
            view().setUint32(result, lastFile, true);
            return success;
        },
        fd_read(number, parts, count, result) {
            const file = opened.get(number);
            if (!file) return badFile;
            let read = 0;
            for (const [place, length] of partsAt(parts, count)) {
                const part = file.bytes.subarray(file.position, file.position + length);
                write(place, part);
                file.position += part.length;
                read += part.length;
            }
            view().setUint32(result, read, true);
            return success;
        },
        fd_write(file, parts, count, result) {
            let written = 0;
            for (const [place, length] of partsAt(parts, count)) {
                // Pieces of a text may end within a character.
                output.push(bytesAt(place, length).slice());
                written += length;
            }
            view().setUint32(result, written, true);
            return file < folderFile ? success : badFile;
        },
        fd_close: (file) => (opened.delete(file) ? success : badFile),
        proc_exit(code) {
            throw new Exit(code);
        },
    };
    const imports = {};
    for (const { name } of WebAssembly.Module.imports(module)) imports[name] = system[name] ?? (() => notThere);
    const running = await WebAssembly.instantiate(module, { wasi_snapshot_preview1: imports });
    let code = 0;
    try {
        running.exports._start();
    } catch (error) {
        if (!(error instanceof Exit)) throw error;
        code = error.code;
    }
    return { code, output: await new Blob(output).text() };
}
