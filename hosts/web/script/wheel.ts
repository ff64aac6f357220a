import { PickerElement } from './element.js';
import { Kind } from './properties.js';
import type { View } from './view.js';

/** A column of an application's own: titles, or how many rows there are and what shows a row. */
export interface WheelColumn {
    readonly rows: readonly string[] | number;
    readonly title?: (row: number) => string;
    /** In CSS pixels; an equal share without it. */
    readonly width?: number;
    readonly label?: string;
}

/** A wheel of an application's own columns. Its values are the selected rows. */
export class Wheel extends PickerElement {
    static override readonly kind = Kind.Columns;
    private list: readonly WheelColumn[] = [];
    /** What a form is reset to: the rows that the page has set. */
    private pageRows: readonly number[] = [];
    private selected: readonly number[] = [];

    protected override ownPropertyNames(): string[] {
        return ['columns', 'rows'];
    }

    /** Its columns, from the left. */
    get columns(): readonly WheelColumn[] {
        return this.list;
    }

    set columns(columns: readonly WheelColumn[]) {
        // Rows that were set before there are columns wait for them.
        if (this.list.length > 0) this.selected = this.usersNumbers();
        this.list = [...columns];
        if (this.view) this.didOpen(this.view);
        this.didSet();
    }

    /**
     * The selected row of each column; while the user turns, the row in the selection indicator.
     */
    get rows(): number[] {
        return this.readRows(1);
    }

    set rows(rows: readonly number[]) {
        this.pageRows = [...rows];
        this.setUsersNumbers(rows);
        this.didSet();
    }

    private readRows(isLive: number): number[] {
        const view = this.view;
        if (!view) return this.list.map((_, i) => this.selected[i] ?? 0);
        return this.list.map((_, i) => view.read((calls) => calls.row(view.number, i, isLive), 0));
    }

    protected override usersNumbers(): number[] {
        return this.readRows(0);
    }

    protected override setUsersNumbers(numbers: readonly unknown[]): void {
        this.selected = numbers.map((number) => (typeof number === 'number' ? number : 0));
        this.showRows();
    }

    protected override keepChoice(): void {
        this.selected = this.usersNumbers();
    }

    /** An entry for each column, all of the same name. */
    protected override formEntries(): (readonly [string, number])[] {
        return this.usersNumbers().map((row) => ['', row] as const);
    }

    override formResetCallback(): void {
        this.setUsersNumbers(this.pageRows);
        this.didSet();
    }

    private showRows(): void {
        const view = this.view;
        if (!view) return;
        this.list.forEach((_, i) => view.call((calls) => calls.setRow(view.number, i, this.selected[i] ?? 0), undefined));
    }

    protected override didOpen(view: View): void {
        const counts = this.list.map((column) => (typeof column.rows === 'number' ? column.rows : column.rows.length));
        const { module, number } = view;
        view.set((calls) => {
            calls.setRowCounts(number, module.giveNumbers(counts), counts.length);
            this.list.forEach((column, i) => calls.setColumn(number, i, column.width ?? 0, module.giveText(column.label ?? '')));
        });
        this.showRows();
    }

    protected override mayRunAhead(): boolean {
        return this.list.every((column) => !column.title);
    }

    protected override rowTitle(column: number, row: number): string | null {
        const entry = this.list[column];
        if (!entry) return null;
        if (entry.title) return entry.title(row);
        return typeof entry.rows === 'number' ? String(row) : (entry.rows[row] ?? null);
    }
}
