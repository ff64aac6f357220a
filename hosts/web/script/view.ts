import { ColumnAction, Columns, type Traits } from './accessibility.js';
import type { Calls, Client } from './calls.js';
import { clock } from './clock.js';
import type { Fonts } from './fonts.js';
import { Frames } from './frames.js';
import { Input } from './input.js';
import type { Module } from './module.js';
import type { Kind } from './properties.js';
import { Surface } from './surface.js';

/** What a view tells its element, each after the module has returned. */
export interface ViewOwner {
    /** Rows have passed the selection indicator, so many since the last call. */
    didPassRows(count: number): void;
    /** The user has selected something. */
    didChange(): void;
    /** The value is written in another way than it was. */
    didChangeText(): void;
    /** The module has trapped; the view shows nothing any more. */
    didFail(reason: unknown): void;
    /** Another view's call has failed; this one shows nothing any more and may be opened again. */
    didLoseModule(): void;
    rowTitle(column: number, row: number): string | null;
    /** Whether titles may be asked for ahead of their time: no function of the page's is called. */
    mayRunAhead(): boolean;
}

/**
 * One picker of the module on the page: its frames, its input and its columns.
 *
 * It lives from `open` to `close`. Events of its element are dispatched when no call to the module
 * is under way, so their listeners may do anything.
 */
export class View implements Client {
    readonly number: number;
    private readonly columns: Columns;
    private readonly input: Input;
    private readonly frames: Frames;
    private passedRows = 0;
    private hasChanged = false;
    private areColumnsOld = true;
    private depth = 0;
    private isClosed = false;
    private toldText = '';
    private traits: Traits | undefined;

    constructor(
        readonly module: Module,
        private readonly owner: ViewOwner,
        readonly surface: Surface,
        root: HTMLElement,
    ) {
        this.number = module.register(this);
        this.columns = new Columns({
            calls: module.calls,
            number: this.number,
            takeText: (length) => module.takeText(length),
            didFocusColumn: (column) => this.didFocusColumn(column),
        });
        root.append(this.columns.root);
        this.frames = new Frames(module, this.number, surface, {
            read: (work, otherwise) => this.read(work, otherwise),
            mayGlide: () => !this.input.hasFingers && owner.mayRunAhead(),
            didRest: () => {
                if (this.areColumnsOld) this.updateColumns();
            },
        });
        this.input = new Input(this.columns.root, {
            touch: (phase, finger, x, y, time) => {
                const isTaken = this.call((calls) => calls.touch(this.number, phase, finger, x, y, time) === 1, false, time);
                // Nothing follows the last finger.
                if (!this.input.hasFingers) this.frames.glide.release();
                return isTaken;
            },
            pointer: (isInside, x, y) => this.call((calls) => calls.pointer(this.number, Number(isInside), x, y), undefined),
            scroll: (isNotches, deltaX, deltaY, x, y, time, isFinished) =>
                this.call(
                    (calls) => calls.scroll(this.number, Number(isNotches), deltaX, deltaY, x, y, time, Number(isFinished)) === 1,
                    false,
                    time,
                ),
            key: (code, text, modifiers, isRepeat, time) => {
                const isUsed = this.call(
                    (calls) => calls.key(this.number, code, module.giveText(text), modifiers, Number(isRepeat), time) === 1,
                    false,
                    time,
                );
                // The row that a key moves to is told at once.
                if (isUsed) this.updateColumns();
                return isUsed;
            },
        });
        this.columns.root.addEventListener('focusout', (event) => {
            if (!this.columns.root.contains(event.relatedTarget as Node | null)) this.setReceivesKeys(false);
        });
    }

    open(kind: Kind, fonts: Fonts, language: string, isRightToLeft: boolean): boolean {
        const { row, rowSize, label, labelSize } = fonts;
        const fromRight = Number(isRightToLeft);
        this.surface.labelFont = label;
        return this.call((calls) => {
            const length = this.module.giveText(language);
            return calls.open(this.number, kind, row, rowSize, label, labelSize, length, fromRight) === 1;
        }, false);
    }

    /** Ends what moves first, so that it is reported. */
    close(): void {
        if (this.isClosed) return;
        this.input.cancelAll();
        this.finish();
        this.read(() => this.module.unregister(this.number), undefined);
        this.stop();
    }

    /**
     * Calls the module. What it tells meanwhile is told to the element afterwards. Should it trap,
     * the view is closed and the result is `otherwise`.
     */
    call<Result>(work: (calls: Calls) => Result, otherwise: Result, time = clock().now()): Result {
        return this.read((calls) => {
            this.frames.glide.hold();
            this.frames.settle(time);
            return work(calls);
        }, otherwise);
    }

    /** The same for what changes nothing in the module, and lets the compositor go on. */
    read<Result>(work: (calls: Calls) => Result, otherwise: Result): Result {
        if (this.isClosed) return otherwise;
        this.depth += 1;
        let result = otherwise;
        try {
            result = work(this.module.calls);
        } catch (reason) {
            this.fail(reason);
        } finally {
            this.depth -= 1;
        }
        if (this.depth === 0) this.flush();
        return result;
    }

    private stop(): void {
        this.isClosed = true;
        this.frames.stop();
        this.columns.root.remove();
    }

    didLoseModule(): void {
        this.stop();
        this.owner.didLoseModule();
    }

    private fail(reason: unknown): void {
        if (this.isClosed) return;
        this.stop();
        this.owner.didFail(reason);
        this.module.restart(this.number);
    }

    private flush(): void {
        if (this.isClosed) return;
        const passed = this.passedRows;
        const hasChanged = this.hasChanged;
        this.passedRows = 0;
        this.hasChanged = false;
        if (hasChanged) this.areColumnsOld = true;
        if (passed > 0) this.owner.didPassRows(passed);
        if (hasChanged) this.owner.didChange();
    }

    // What the module tells

    needsFrame(): void {
        this.frames.need();
    }

    didPassRow(): void {
        if (this.frames.glide.isAhead) this.frames.glide.note();
        else this.passedRows += 1;
    }

    didChange(): void {
        if (this.frames.glide.isAhead) this.frames.glide.note();
        else this.hasChanged = true;
    }

    rowTitle(column: number, row: number): string | null {
        return this.owner.rowTitle(column, row);
    }

    /** Shows the first picture at once; the columns follow when it is on the screen. */
    showNow(): void {
        this.frames.showNow();
        this.changed();
    }

    /** Something is to be shown and told again. */
    changed(): void {
        this.areColumnsOld = true;
        this.needsFrame();
    }

    updateColumns(): void {
        const traits = this.traits;
        if (this.isClosed || !traits) return;
        this.areColumnsOld = false;
        this.read(() => this.columns.update(traits), undefined);
        const text = this.valueText;
        if (text === this.toldText) return;
        this.toldText = text;
        this.owner.didChangeText();
    }

    /** Ends every movement at once; what the user has turned is reported. */
    finish(): void {
        this.call((calls) => calls.finish(this.number), undefined);
        // No frame may follow, as before printing.
        if (this.areColumnsOld) this.updateColumns();
    }

    // Settings

    /** Something of the module's, which is shown and told again. */
    set(work: (calls: Calls) => void): void {
        this.call(work, undefined);
        this.changed();
    }

    setTraits(traits: Traits): void {
        this.traits = traits;
        const takesInput = !traits.isDisabled && !traits.isReadOnly;
        if (!takesInput) this.input.cancelAll();
        const bits = Number(traits.isHighContrast) | (Number(traits.reducesMotion) << 1) | (Number(takesInput) << 2);
        this.set((calls) => calls.setTraits(this.number, bits));
    }

    setFonts(fonts: Fonts): void {
        this.surface.labelFont = fonts.label;
        this.surface.forgetFonts();
        this.set((calls) => calls.setFonts(this.number, fonts.row, fonts.rowSize, fonts.label, fonts.labelSize));
    }

    setLanguage(language: string, isRightToLeft: boolean): void {
        this.set((calls) => calls.setLanguage(this.number, this.module.giveText(language), Number(isRightToLeft)));
    }

    setLabel(label: string | null): void {
        this.set((calls) => calls.setLabel(this.number, label === null ? -1 : this.module.giveText(label)));
    }

    setSize(width: number, height: number): void {
        this.surface.height = height;
        this.set((calls) => calls.setSize(this.number, width, height));
    }

    reload(): void {
        this.surface.forgetFonts();
        this.set((calls) => calls.reload(this.number));
    }

    get valueText(): string {
        return this.read((calls) => this.module.takeText(calls.valueText(this.number)) ?? '', '');
    }

    private setReceivesKeys(receives: boolean): void {
        this.call((calls) => calls.setReceivesKeys(this.number, Number(receives)), undefined);
    }

    private didFocusColumn(column: number): void {
        this.setReceivesKeys(true);
        // A finger or the mouse chooses a column by itself and needs no mark.
        const isByKeys = this.columns.root.querySelector('.column:focus-visible') !== null;
        if (isByKeys) this.call((calls) => calls.columnAct(this.number, column, ColumnAction.Focus, 0), undefined);
    }

    focus(options?: FocusOptions): void {
        if (this.areColumnsOld) this.updateColumns();
        this.columns.focus(0, options);
    }
}
