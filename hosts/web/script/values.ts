import { FormElement } from './forms.js';
import { Options } from './options.js';
import { Kind, optionsOf, propertyName, type Option } from './properties.js';
import type { View } from './view.js';

/**
 * What attributes, properties and forms give to a picker, and get of it.
 *
 * It knows which numbers were set last, so that it can say whether the user has changed one. When
 * there is a picker, and what else surrounds it, is for the class that extends it.
 */
export abstract class ValueElement extends FormElement {
    static readonly kind: Kind = Kind.Number;

    static get observedAttributes(): string[] {
        const own = ['disabled', 'readonly', 'required', 'name', 'lang', 'dir', 'aria-label', 'aria-labelledby'];
        return [...own, ...optionsOf[this.kind].map((option) => option.attribute)];
    }

    protected readonly options = new Options(this, this.kind);
    /** What `change` compares with. */
    private shownNumbers: readonly number[] = [];

    protected get kind(): Kind {
        return (this.constructor as typeof ValueElement).kind;
    }

    protected get view(): View | undefined {
        return this.options.view;
    }

    /** Where the browser shows that a value is missing. */
    protected abstract get shown(): HTMLElement;

    /** Reads everything again that the page decides. */
    abstract refresh(): void;

    // Options

    /** Properties that were set before the element was defined hide its accessors. */
    protected takeOverProperties(): void {
        for (const name of ['disabled', 'readOnly', 'required', 'name', ...this.ownPropertyNames()]) {
            if (!Object.hasOwn(this, name)) continue;
            const self = this as unknown as Record<string, unknown>;
            const value = self[name];
            Reflect.deleteProperty(self, name);
            self[name] = value;
        }
    }

    protected ownPropertyNames(): string[] {
        return this.options.all.map((option) => propertyName(option.attribute));
    }

    attributeChangedCallback(name: string): void {
        switch (name) {
            case 'lang':
            case 'dir':
            case 'aria-label':
            case 'aria-labelledby':
                this.refresh();
                break;
            default: {
                const option = this.options.all.find((known) => known.attribute === name);
                if (option) this.options.takeAttribute(option);
                this.didSet();
            }
        }
    }

    /** What the accessors of a property end in. */
    protected getOption(option: Option): number | string | boolean {
        return this.options.getProperty(option);
    }

    protected setOption(option: Option, value: unknown): void {
        this.options.setProperty(option, value);
        this.didSet();
    }

    /** The page has set something: values may be others, which is no change of the user's. */
    protected didSet(): void {
        if (!this.view) return;
        this.shownNumbers = this.usersNumbers();
        this.tellForm();
        this.view.changed();
    }

    // What the user has chosen

    /** Everything that the user can change, in its order. */
    protected usersNumbers(): number[] {
        return this.options.usersNumbers();
    }

    protected setUsersNumbers(numbers: readonly unknown[]): void {
        this.options.setUsersNumbers(numbers);
    }

    protected keepChoice(): void {
        this.options.keepChoice();
    }

    /** Keeps what the user has chosen, and returns whether it is something else than before. */
    protected takeUsersChange(): boolean {
        const before = this.shownNumbers;
        this.keepChoice();
        this.didSet();
        return this.shownNumbers.length !== before.length || this.shownNumbers.some((number, i) => !Object.is(number, before[i]));
    }

    /** The entries in a form's data, each with what follows the name. */
    protected formEntries(): (readonly [string, number])[] {
        const { values } = this.options;
        return values.map((option) => [values.length > 1 ? `-${option.attribute}` : '', this.options.read(option)] as const);
    }

    private tellForm(): void {
        this.setForm(this.formEntries(), JSON.stringify(this.usersNumbers()));
        const isMissing =
            this.required && this.kind === Kind.HeartRate && this.options.values.some((option) => this.options.read(option) === 0);
        this.setMissing(isMissing, this.shown);
        this.traitsDidChange();
    }

    formResetCallback(): void {
        for (const option of this.options.users) this.options.takeAttribute(option);
        this.didSet();
    }

    formStateRestoreCallback(state: string | File | FormData | null): void {
        if (typeof state !== 'string') return;
        const numbers: unknown = JSON.parse(state);
        if (Array.isArray(numbers)) this.setUsersNumbers(numbers);
        this.didSet();
    }
}
