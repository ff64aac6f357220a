import type { Client, Drawing, Exports } from './calls.js';
import { measure } from './fonts.js';

const decoder = new TextDecoder();
const encoder = new TextEncoder();

/** Chosen: the titles of a few wheels. */
const highestShortTextCount = 1000;

/** The module at work. One that has failed is never called again. */
export class Instance {
    readonly exports: Exports;
    readonly clients = new Map<number, Client>();
    drawing: Drawing | undefined;
    private kept: Uint8Array;
    /** Texts of up to four letters, by their bytes. */
    private readonly shortTexts = new Map<number, string>();

    constructor(compiled: WebAssembly.Module) {
        const client = (element: number): Client | undefined => this.clients.get(element);
        const page = {
            measureText: (font: number, size: number, text: number, length: number, result: number) => {
                const [width, height] = measure(font, size, this.textAt(text, length));
                const sizes = new Float64Array(this.exports.memory.buffer, result, 2);
                sizes[0] = width;
                sizes[1] = height;
            },
            fillRect: (...call: Parameters<Drawing['fillRect']>) => this.drawing?.fillRect(...call),
            drawText: (
                isRow: number,
                font: number,
                size: number,
                text: number,
                length: number,
                scaleX: number,
                scaleY: number,
                x: number,
                y: number,
                alpha: number,
                home: number,
            ) => this.drawing?.drawText(isRow !== 0, font, size, this.textAt(text, length), scaleX, scaleY, x, y, alpha, home),
            drawImage: (...call: Parameters<Drawing['drawImage']>) => this.drawing?.drawImage(...call),
            needsFrame: (element: number) => client(element)?.needsFrame(),
            didPassRow: (element: number) => client(element)?.didPassRow(),
            didChange: (element: number) => client(element)?.didChange(),
            rowTitle: (element: number, column: number, row: number) => {
                const title = titleOf(client(element), column, row);
                return title === null ? -1 : this.giveText(title);
            },
            outOfMemory: (bytes: number) => {
                throw new RangeError(`There is no memory left for ${bytes} bytes.`);
            },
        };
        const instance = new WebAssembly.Instance(compiled, { page });
        this.exports = instance.exports as unknown as Exports;
        this.kept = new Uint8Array(this.exports.memory.buffer);
        this.exports._initialize();
    }

    giveText(text: string): number {
        const encoded = encoder.encode(text);
        const place = this.exports.text(encoded.length);
        this.bytes().set(encoded, place);
        return encoded.length;
    }

    bytes(): Uint8Array {
        // Memory that has grown has another buffer.
        if (this.kept.buffer !== this.exports.memory.buffer) this.kept = new Uint8Array(this.exports.memory.buffer);
        return this.kept;
    }

    textAt(place: number, length: number): string {
        const bytes = this.bytes();
        if (length > 4) return decoder.decode(bytes.subarray(place, place + length));
        // Titles are a few digits nearly always, and the same ones in each frame.
        let code = 0;
        for (let i = place; i < place + length; i += 1) {
            const byte = bytes[i]!;
            if (byte > 127) return decoder.decode(bytes.subarray(place, place + length));
            code = code * 128 + byte;
        }
        let text = this.shortTexts.get(code);
        if (text === undefined) {
            text = decoder.decode(bytes.subarray(place, place + length));
            if (this.shortTexts.size === highestShortTextCount) this.shortTexts.clear();
            this.shortTexts.set(code, text);
        }
        return text;
    }
}

/** An error of the page's own function must not unwind the module: it is reported, and no title. */
function titleOf(client: Client | undefined, column: number, row: number): string | null {
    try {
        return client?.rowTitle(column, row) ?? null;
    } catch (reason) {
        reportError(reason);
        return null;
    }
}
