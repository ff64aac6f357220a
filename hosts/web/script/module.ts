import type { Calls, Client, Exports } from './calls.js';
import { Instance } from './instance.js';

/**
 * In bytes. Chosen: more than a thousand elements need, and little enough for a small device to
 * survive a page that makes ever more of them.
 */
const usualLimit = 256 * 1024 * 1024;

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
