import type { Calls } from './calls.js';

/** The numbers of a column (`columnNumber`). */
const enum ColumnNumber {
    X = 0,
    Y,
    Width,
    Height,
    Value,
    Minimum,
    Maximum,
    IsFocused,
}

/** The texts of a column (`columnText`). */
const enum ColumnText {
    Label = 0,
    Value,
}

/** What can be done with a column (`columnAct`). */
export const enum ColumnAction {
    Focus = 0,
    Step,
    SetNumber,
}

/** What decides how a picker behaves, besides its properties. */
export interface Traits {
    isDisabled: boolean;
    isReadOnly: boolean;
    isRequired: boolean;
    isInvalid: boolean;
    isHighContrast: boolean;
    reducesMotion: boolean;
}

/** What the columns' elements ask of the picker's. */
export interface ColumnOwner {
    readonly calls: Calls;
    readonly number: number;
    takeText(length: number): string | null;
    /** A column has got the focus from outside. */
    didFocusColumn(column: number): void;
}

/**
 * The columns for those who use a screen reader or the keyboard: each is a spin button of its own,
 * over its place on the screen.
 *
 * It also is what fingers and wheels reach, so that the page scrolls beside the columns.
 */
export class Columns {
    readonly root: HTMLElement;
    private readonly nodes: HTMLElement[] = [];
    private count = 0;
    private isFocusing = false;

    constructor(private readonly owner: ColumnOwner) {
        this.root = document.createElement('div');
        this.root.className = 'columns';
        this.root.addEventListener('focusin', (event) => {
            const column = this.nodes.indexOf(event.target as HTMLElement);
            if (column >= 0 && !this.isFocusing) owner.didFocusColumn(column);
        });
    }

    /** Reads all columns again. Writes only what has changed. */
    update(traits: Traits): void {
        const { calls, number } = this.owner;
        this.count = calls.columns(number);
        let focused = -1;
        const values: (string | null)[] = [];
        for (let i = 0; i < this.count; i += 1) {
            const node = this.nodes[i] ?? this.addNode();
            const read = (which: ColumnNumber): number => calls.columnNumber(number, i, which);
            const text = (which: ColumnText): string | null => this.owner.takeText(calls.columnText(number, i, which));
            const style = node.style;
            style.display = '';
            style.left = `${read(ColumnNumber.X)}px`;
            style.top = `${read(ColumnNumber.Y)}px`;
            style.width = `${read(ColumnNumber.Width)}px`;
            style.height = `${read(ColumnNumber.Height)}px`;
            attribute(node, 'aria-label', text(ColumnText.Label));
            const value = text(ColumnText.Value);
            attribute(node, 'aria-valuetext', value);
            // The columns of one wheel say the same.
            if (value !== values[values.length - 1]) values.push(value);
            attribute(node, 'aria-valuenow', numeric(read(ColumnNumber.Value)));
            attribute(node, 'aria-valuemin', numeric(read(ColumnNumber.Minimum)));
            attribute(node, 'aria-valuemax', numeric(read(ColumnNumber.Maximum)));
            attribute(node, 'aria-disabled', traits.isDisabled ? 'true' : null);
            attribute(node, 'aria-readonly', traits.isReadOnly ? 'true' : null);
            attribute(node, 'aria-required', traits.isRequired ? 'true' : null);
            attribute(node, 'aria-invalid', traits.isInvalid ? 'true' : null);
            const tabIndex = traits.isDisabled ? -1 : 0;
            if (node.tabIndex !== tabIndex) node.tabIndex = tabIndex;
            if (read(ColumnNumber.IsFocused) === 1) focused = i;
        }
        for (let i = this.count; i < this.nodes.length; i += 1) this.nodes[i]!.style.display = 'none';
        // What is printed.
        attribute(this.root, 'data-value', values.join(', '));
        this.follow(focused);
    }

    /** The keys' column has changed inside the module: the page's focus goes along. */
    private follow(focused: number): void {
        const root = this.root.getRootNode() as ShadowRoot;
        const active = root.activeElement;
        const node = this.nodes[focused];
        if (!node || active === node || !this.nodes.includes(active as HTMLElement)) return;
        this.isFocusing = true;
        node.focus({ preventScroll: true });
        this.isFocusing = false;
    }

    /** Gives a column the focus; the first one that there is if none is named. */
    focus(column = 0, options?: FocusOptions): void {
        if (column < this.count) this.nodes[column]?.focus(options);
    }

    private addNode(): HTMLElement {
        const node = document.createElement('div');
        node.className = 'column';
        node.setAttribute('role', 'spinbutton');
        node.part.value = 'column';
        this.root.append(node);
        this.nodes.push(node);
        return node;
    }
}

const numeric = (value: number): string | null => (Number.isFinite(value) ? String(value) : null);

function attribute(node: HTMLElement, name: string, value: string | null): void {
    if (value === null) {
        if (node.hasAttribute(name)) node.removeAttribute(name);
    } else if (node.getAttribute(name) !== value) {
        node.setAttribute(name, value);
    }
}
