import { measure } from './fonts.js';

/** What the module exports. Elements are known by numbers that `Module` gives. */
interface Exports {
    memory: WebAssembly.Memory;
    _initialize(): void;
    text(length: number): number;
    numbers(count: number): number;
    open(
        element: number,
        kind: number,
        rowFont: number,
        rowSize: number,
        labelFont: number,
        labelSize: number,
        languageLength: number,
        isRightToLeft: number,
    ): number;
    close(element: number): void;
    elementCount(): number;
    liveBytes(): number;
    limitMemory(bytes: number): void;
    addLanguage(length: number): number;
    fontsDidLoad(): void;
    setFonts(element: number, rowFont: number, rowSize: number, labelFont: number, labelSize: number): void;
    setLanguage(element: number, length: number, isRightToLeft: number): void;
    setLabel(element: number, length: number): void;
    setSize(element: number, width: number, height: number): void;
    reload(element: number): void;
    setTraits(element: number, traits: number): void;
    get(element: number, property: number): number;
    getLive(element: number, property: number): number;
    set(element: number, property: number, value: number): number;
    valueText(element: number): number;
    setIcons(element: number, numbers: number, count: number, labelsLength: number): void;
    setRowCounts(element: number, numbers: number, count: number): void;
    setColumn(element: number, column: number, width: number, labelLength: number): void;
    row(element: number, column: number, isLive: number): number;
    setRow(element: number, column: number, row: number): void;
    tick(element: number, time: number): number;
    draw(element: number): void;
    finish(element: number): void;
    touch(element: number, phase: number, finger: number, x: number, y: number, time: number): number;
    pointer(element: number, isInside: number, x: number, y: number): void;
    scroll(
        element: number,
        isNotches: number,
        deltaX: number,
        deltaY: number,
        x: number,
        y: number,
        time: number,
        isFinished: number,
    ): number;
    key(element: number, code: number, textLength: number, modifiers: number, isRepeat: number, time: number): number;
    setReceivesKeys(element: number, receives: number): void;
    columns(element: number): number;
    columnNumber(element: number, column: number, which: number): number;
    columnText(element: number, column: number, which: number): number;
    columnAct(element: number, column: number, action: number, argument: number): void;
}

/** What an element shows a frame on. */
export interface Drawing {
    fillRect(shape: number, x: number, y: number, width: number, height: number, radius: number, alpha: number): void;
    drawText(
        isRow: boolean,
        font: number,
        size: number,
        text: string,
        scaleX: number,
        scaleY: number,
        x: number,
        y: number,
        alpha: number,
        home: number,
    ): void;
    drawImage(
        image: number,
        scaleX: number,
        scaleY: number,
        x: number,
        y: number,
        width: number,
        height: number,
        alpha: number,
        home: number,
    ): void;
}

/** What the module tells an element, while it is being called. */
export interface Client {
    readonly surface: Drawing;
    needsFrame(): void;
    didPassRow(): void;
    didChange(): void;
    /** The title of a row of the page's own columns. */
    rowTitle(column: number, row: number): string | null;
    /** Another client's call has failed. What this one had in the module is gone with it. */
    didLoseModule(): void;
}

/** The functions of the module that need no texts. */
export type Calls = Omit<Exports, 'memory' | '_initialize' | 'text' | 'numbers' | 'addLanguage' | 'limitMemory'>;

const decoder = new TextDecoder();
const encoder = new TextEncoder();

/**
 * In bytes. Chosen: more than a thousand elements need, and little enough for a small device to
 * survive a page that makes ever more of them.
 */
const usualLimit = 256 * 1024 * 1024;

/** Chosen: the titles of a few wheels. */
const highestShortTextCount = 1000;

/** The module at work. One that has failed is never called again. */
class Instance {
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

/**
 * The one WebAssembly module of the page, once it is there.
 *
 * Where a call fails, for lack of memory or by a defect, nothing in the module is unwound, so any
 * of its state may be wrong. The client that made the call stops. The module begins again with
 * another instance, in which all other clients open themselves once more.
 */
export class Module {
    private instance: Instance;
    private lastNumber = 0;
    private limit = usualLimit;
    private readonly languages: string[] = [];

    constructor(private readonly compiled: WebAssembly.Module) {
        this.instance = this.start();
    }

    private start(): Instance {
        const instance = new Instance(this.compiled);
        instance.exports.limitMemory(this.limit);
        for (const data of this.languages) instance.exports.addLanguage(instance.giveText(data));
        return instance;
    }

    /** A call of this client has failed: begins again, without it. */
    restart(failed: number): void {
        const { clients } = this.instance;
        clients.delete(failed);
        // Without memory for another instance, each client's next call fails as this one did.
        try {
            this.instance = this.start();
        } catch (reason) {
            console.error('GXUIPickers: the module cannot begin again.', reason);
        }
        const lost = [...clients.values()];
        clients.clear();
        for (const client of lost) client.didLoseModule();
    }

    private get exports(): Exports {
        return this.instance.exports;
    }

    /** Adds a language from its data, for every `setLanguage` from now on. */
    addLanguage(data: string): void {
        this.languages.push(data);
        this.exports.addLanguage(this.giveText(data));
    }

    /** What the module may take while it runs, in bytes; beyond it, an element fails. */
    limitMemory(bytes: number): void {
        this.limit = bytes;
        this.exports.limitMemory(bytes);
    }

    get calls(): Calls {
        return this.exports;
    }

    /** How much memory the module has, in bytes. */
    get memorySize(): number {
        return this.exports.memory.buffer.byteLength;
    }

    /** A number for a new element. */
    register(client: Client): number {
        this.lastNumber += 1;
        this.instance.clients.set(this.lastNumber, client);
        return this.lastNumber;
    }

    unregister(element: number): void {
        this.instance.clients.delete(element);
        this.exports.close(element);
    }

    /** What is done to the module meanwhile is undone. */
    runAhead(work: (calls: Calls) => void): void {
        const kept = this.instance.bytes().slice();
        work(this.exports);
        this.instance.bytes().set(kept);
    }

    /** Draws the element's frame on what it registered. */
    draw(element: number): void {
        const { instance } = this;
        instance.drawing = instance.clients.get(element)?.surface;
        try {
            instance.exports.draw(element);
        } finally {
            instance.drawing = undefined;
        }
    }

    /** Puts a text into the shared buffer and returns its length in bytes. */
    giveText(text: string): number {
        return this.instance.giveText(text);
    }

    /** The text that a call has left in the shared buffer. */
    takeText(length: number): string | null {
        return length < 0 ? null : this.instance.textAt(this.exports.text(0), length);
    }

    /** Hands numbers over and returns where they lie. */
    giveNumbers(numbers: readonly number[]): number {
        const place = this.exports.numbers(numbers.length);
        new Float64Array(this.exports.memory.buffer, place, numbers.length).set(numbers);
        return place;
    }
}

let loaded: Module | undefined;
let loading: Promise<Module> | undefined;
const waiting = new Set<() => void>();

/** The module, if it is there already. */
export const loadedModule = (): Module | undefined => loaded;

/**
 * Calls back once the module is there; never, if it cannot be loaded. Returns how to call it off.
 */
export function whenLoaded(callback: () => void): () => void {
    waiting.add(callback);
    return () => waiting.delete(callback);
}

/**
 * Starts the module from what it was compiled to. The first call counts; later ones return the same
 * module. `didStart` is called before elements open.
 */
export function startModule(compiled: WebAssembly.Module | Promise<WebAssembly.Module>, didStart?: () => void): Promise<Module> {
    loading ??= Promise.resolve(compiled)
        .then((ready) => new Module(ready))
        .then(
            (module) => {
                loaded = module;
                didStart?.();
                const callbacks = [...waiting];
                waiting.clear();
                for (const callback of callbacks) callback();
                return module;
            },
            (reason: unknown) => {
                console.error('GXUIPickers: the module cannot be loaded; elements show their content.', reason);
                throw reason;
            },
        );
    return loading;
}
