import { Kind, numberOf, optionsOf, Property, propertyName, textOf, type Option } from './properties.js';
import type { View } from './view.js';

/** The properties that are a range's ends. */
const ranges = [
    [Property.Min, Property.Max],
    [Property.MinDistance, Property.MaxDistance],
    [Property.MinDuration, Property.MaxDuration],
] as const;

/**
 * What the attributes and properties of one element say, and what its picker has.
 *
 * Without a view it keeps what was set until there is one.
 */
export class Options {
    readonly all: readonly Option[];
    readonly values: readonly Option[];
    /** What the user can change, in its order: values, and units that have a column. */
    readonly users: readonly Option[];
    view: View | undefined;
    /** What was set, by the page or the user; everything else is as the picker has it. */
    private readonly settings = new Map<Property, number>();
    private readonly defaults = new Map<Property, number>();

    constructor(
        private readonly element: HTMLElement,
        private readonly kind: Kind,
    ) {
        this.all = optionsOf[kind];
        this.values = this.all.filter((option) => option.isValue);
        this.users = this.all.filter(
            (option) =>
                option.isValue === true ||
                option.property === Property.WeightUnit ||
                (option.property === Property.Metric && kind === Kind.Height),
        );
    }

    /** Takes an attribute as it is now; without a number in it, what holds without it. */
    takeAttribute(option: Option): void {
        const text = this.element.getAttribute(option.attribute);
        const number = numberOf(option, text);
        if (number === undefined && text !== null) {
            const problem = option.words ? `none of ${Object.keys(option.words).join(', ')}` : 'no number';
            this.warn(`${option.attribute}="${text}" is ${problem}; it is ignored`);
        }
        this.set(option, number);
        this.warnOfCrossedBounds(option);
    }

    private warnOfCrossedBounds(changed: Option): void {
        for (const range of ranges) {
            if (!range.some((end) => end === changed.property)) continue;
            const [minimum, maximum] = range.map((end) => this.settings.get(end));
            if (minimum === undefined || maximum === undefined) continue;
            // The faster a pace, the larger its speed: its range goes the other way.
            if (this.kind === Kind.Pace ? minimum >= maximum : minimum <= maximum) continue;
            const [from, to] = range.map((end) => this.all.find((option) => option.property === end)?.attribute ?? '');
            this.warn(`${from}="${minimum}" and ${to}="${maximum}" are crossed`);
        }
    }

    private warn(text: string): void {
        console.warn(`<${this.element.localName}>: ${text}.`);
    }

    set(option: Option, number: number | undefined): void {
        if (number === undefined) this.settings.delete(option.property);
        else this.settings.set(option.property, number);
        this.apply(option);
    }

    /** Gives the picker what was set, or what holds without. */
    apply(option: Option): void {
        const view = this.view;
        if (!view) return;
        const { property } = option;
        if (!this.defaults.has(property)) {
            this.defaults.set(property, option.fallback ?? view.call((calls) => calls.get(view.number, property), NaN));
        }
        const flag = option.isFlag ? numberOf(option, this.element.getAttribute(option.attribute)) : undefined;
        const value = this.settings.get(property) ?? flag ?? this.defaults.get(property)!;
        view.call((calls) => calls.set(view.number, property, value), 0);
    }

    /** A value while the user turns is that of the row in the indicator if `isLive`. */
    read(option: Option, isLive = false): number {
        const view = this.view;
        const { property } = option;
        if (!view) return this.settings.get(property) ?? option.fallback ?? this.defaults.get(property) ?? NaN;
        return view.read((calls) => (isLive ? calls.getLive(view.number, property) : calls.get(view.number, property)), NaN);
    }

    usersNumbers(): number[] {
        return this.users.map((option) => this.read(option));
    }

    /** Sets what `usersNumbers` returned once. */
    setUsersNumbers(numbers: readonly unknown[]): void {
        this.users.forEach((option, i) => {
            const number = numbers[i];
            if (typeof number === 'number') this.set(option, number);
        });
    }

    /** Keeps what the user has chosen, for when the element comes back. */
    keepChoice(): void {
        for (const option of this.users) this.settings.set(option.property, this.read(option));
    }

    /** What the accessors of a property end in. */
    getProperty(option: Option): number | string | boolean {
        if (option.isFlag) return this.element.hasAttribute(option.attribute);
        const number = this.read(option, option.isValue);
        return option.words ? textOf(option, number) : number;
    }

    /** Options are their attributes; a value's attribute stays what a form is reset to. */
    setProperty(option: Option, value: unknown): void {
        const text = `${value as number}`;
        if (option.isFlag) {
            this.element.toggleAttribute(option.attribute, Boolean(value));
        } else if (!option.isValue) {
            if (value === null || value === undefined) this.element.removeAttribute(option.attribute);
            else this.element.setAttribute(option.attribute, text);
        } else {
            const number = numberOf(option, text);
            if (number === undefined) this.warn(`${propertyName(option.attribute)} = ${text} is no number; it is ignored`);
            else if (!this.isPassing(option, number)) this.set(option, number);
        }
    }

    /**
     * Whether a wheel that moves is passing this value. A framework may set each value that `input`
     * reports; that must not end the spin.
     */
    private isPassing(option: Option, number: number): boolean {
        return this.view !== undefined && number === this.read(option, true) && number !== this.read(option);
    }
}
