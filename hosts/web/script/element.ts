import { adoptStyle } from './style.js';
import { fontsOf, View, type Fonts, type Traits } from './view.js';
import { forgetPage, isHighContrast, languageOf, observePage, reducesMotion, type PageObserver } from './page.js';
import { Kind, numberOf, optionsOf, Property, propertyName, textOf, type Option } from './properties.js';
import { loadedModule, whenLoaded } from './module.js';
import { Surface } from './surface.js';

/** Where there is no DOM, as on a server, the classes exist and do nothing. */
const Base = (typeof HTMLElement === 'undefined' ? class {} : HTMLElement) as typeof HTMLElement;

/** In milliseconds. Chosen: short enough to be felt as a tick. */
const tickVibration = 5;

/**
 * What all pickers have in common: the life of an element on a page, its attributes and events.
 *
 * Attributes give numbers in base units; each has a property of its name. The attributes of values
 * are what a form is reset to, their properties what is shown now.
 *
 * @attr {string} name - The name of the value in a form's data.
 * @attr {boolean} disabled - Takes no input, and has no value in a form's data.
 * @attr {boolean} readonly - Takes no input, but keeps its value in a form's data.
 * @attr {boolean} required - A form is valid only if no value is missing, as a heart rate can be.
 *
 * @attr {string} lang - The language of units and numbers, if not that around the element.
 * @attr {string} aria-label - What a screen reader calls it, if no label element says so.
 * @attr {boolean} ticks - Dispatches `gx-tick`, and vibrates where a device can.
 *
 * @fires {Event} input - Rows have passed while the user turns; at most once a frame.
 * @fires {Event} change - The user has come to rest on other values.
 * @fires {CustomEvent} gx-tick - A row has passed. Needs the attribute `ticks`; does not bubble.
 *
 * @slot - Shown while there is no picker, such as an `<input type="number">`; and icons.
 *
 * @csspart row - The text of a row.
 * @csspart separator - The text between two columns.
 * @csspart label - The text beside the columns, such as a unit.
 *
 * @csspart indicator - The bar behind the selected row.
 * @csspart outline - The line around the bar at high contrast.
 * @csspart focus - The mark of the column that has the focus.
 * @csspart column - What a finger touches and a screen reader finds.
 *
 * @cssprop --gx-row-color - The colour of rows and separators.
 * @cssprop --gx-label-color - The colour of labels.
 * @cssprop --gx-indicator-color - The colour of the bar behind the selected row.
 * @cssprop --gx-indicator-radius - How round that bar is.
 * @cssprop --gx-focus-color - The colour of the mark of the focus.
 */
export abstract class PickerElement extends Base implements PageObserver {
    static readonly formAssociated: boolean = true;
    static readonly kind: Kind = Kind.Number;

    static get observedAttributes(): string[] {
        return ['disabled', 'readonly', 'required', 'lang', 'dir', 'aria-label', ...optionsOf[this.kind].map((option) => option.attribute)];
    }

    protected view: View | undefined;
    private readonly internals: ElementInternals;
    private readonly surface: Surface;
    private readonly shadow: ShadowRoot;
    private readonly rowProbe = probe('row');
    private readonly labelProbe = probe('label');
    private readonly sizes: ResizeObserver;
    /** What was set, by the page or the user; everything else is as the picker has it. */
    private readonly settings = new Map<Property, number>();
    private readonly defaults = new Map<Property, number>();
    private shownValues: readonly number[] = [];
    private isDisabledByForm = false;
    private stopWaiting: (() => void) | undefined;
    private size = { width: 0, height: 0 };
    private fontsKey = '';

    constructor() {
        super();
        this.internals = this.attachInternals();
        this.shadow = this.attachShadow({ mode: 'open', delegatesFocus: true });
        adoptStyle(this.shadow);
        this.surface = new Surface();
        this.shadow.append(this.rowProbe, this.labelProbe, this.surface.root, document.createElement('slot'));
        this.sizes = new ResizeObserver((entries) => {
            if (entries.some((entry) => entry.target === this)) this.sizeDidChange();
            if (entries.some((entry) => entry.target !== this)) this.fontsDidChange();
        });
    }

    private get kind(): Kind {
        return (this.constructor as typeof PickerElement).kind;
    }

    private get options(): readonly Option[] {
        return optionsOf[this.kind];
    }

    private get values(): readonly Option[] {
        return this.options.filter((option) => option.isValue);
    }

    // The life of an element

    connectedCallback(): void {
        this.takeOverProperties();
        observePage(this);
        this.sizes.observe(this);
        this.sizes.observe(this.rowProbe);
        this.sizes.observe(this.labelProbe);
        if (loadedModule()) this.open();
        else this.stopWaiting = whenLoaded(() => this.open());
    }

    disconnectedCallback(): void {
        this.stopWaiting?.();
        this.sizes.disconnect();
        forgetPage(this);
        this.close();
    }

    /** Properties that were set before the element was defined hide its accessors. */
    private takeOverProperties(): void {
        for (const name of ['disabled', 'readOnly', 'required', 'name', ...this.ownPropertyNames()]) {
            if (!Object.hasOwn(this, name)) continue;
            const self = this as unknown as Record<string, unknown>;
            const value = self[name];
            Reflect.deleteProperty(self, name);
            self[name] = value;
        }
    }

    protected ownPropertyNames(): string[] {
        return this.options.map((option) => propertyName(option.attribute));
    }

    private open(): void {
        const module = loadedModule();
        if (!module || this.view || !this.isConnected) return;
        const fonts = fontsOf(this.rowProbe, this.labelProbe);
        this.fontsKey = JSON.stringify(fonts);
        const owner = {
            didPassRows: (count: number) => this.didPassRows(count),
            didChange: () => this.didChange(),
            didFail: (reason: unknown) => this.didFail(reason),
            rowTitle: (column: number, row: number) => this.rowTitle(column, row),
        };
        const view = new View(module, owner, this.surface, this.shadow as unknown as HTMLElement);
        if (!view.open(this.kind, fonts, languageOf(this), this.isRightToLeft)) return;
        this.view = view;
        this.surface.root.classList.add('isReady');
        this.didOpen(view);
        for (const option of this.options) this.apply(option);
        view.setLabel(this.name_);
        view.setTraits(this.traits);
        this.size = { width: this.clientWidth, height: this.clientHeight };
        view.setSize(this.size.width, this.size.height);
        this.noteValues();
        view.showNow();
    }

    /** For what a picker needs besides its options. */
    protected didOpen(_view: View): void {}

    protected rowTitle(_column: number, _row: number): string | null {
        return null;
    }

    private close(): void {
        const view = this.view;
        if (!view) return;
        view.finish();
        // What the user has chosen is there again when the element comes back.
        for (const option of this.options) {
            const isUsers = option.isValue === true || option.property === Property.WeightUnit || option.property === Property.Metric;
            if (isUsers) this.settings.set(option.property, this.read(option));
        }
        this.view = undefined;
        view.close();
        this.surface.root.classList.remove('isReady');
    }

    private didFail(reason: unknown): void {
        this.view = undefined;
        this.surface.root.classList.remove('isReady');
        this.surface.begin();
        this.surface.end();
        console.error(`<${this.localName}> has stopped; its content is shown instead.`, reason);
    }

    // Options

    attributeChangedCallback(name: string, _before: string | null, text: string | null): void {
        switch (name) {
            case 'disabled':
            case 'readonly':
            case 'required':
                this.traitsDidChange();
                break;
            case 'lang':
            case 'dir':
                this.languageDidChange();
                break;
            case 'aria-label':
                this.view?.setLabel(this.name_);
                break;
            default: {
                const option = this.options.find((known) => known.attribute === name);
                if (option) this.takeAttribute(option, text);
            }
        }
    }

    private takeAttribute(option: Option, text: string | null): void {
        const number = numberOf(option, text);
        if (number === undefined && text !== null) {
            this.warn(
                `${option.attribute}="${text}" is ${option.words ? 'none of ' + Object.keys(option.words).join(', ') : 'no number'}; it is ignored`,
            );
        }
        if (number === undefined) this.settings.delete(option.property);
        else this.settings.set(option.property, number);
        this.apply(option);
        if (option.property === Property.Min || option.property === Property.Max) this.warnOfCrossedBounds();
    }

    private warnOfCrossedBounds(): void {
        const minimum = this.settings.get(Property.Min);
        const maximum = this.settings.get(Property.Max);
        if (minimum === undefined || maximum === undefined) return;
        // The faster a pace, the larger its speed: its range goes the other way.
        const isCrossed = this.kind === Kind.Pace ? minimum < maximum : minimum > maximum;
        if (isCrossed) this.warn(`min="${minimum}" and max="${maximum}" are crossed`);
    }

    private warn(text: string): void {
        console.warn(`<${this.localName}>: ${text}.`);
    }

    /** Gives the module what was set, or what holds without. */
    private apply(option: Option): void {
        const view = this.view;
        if (!view) return;
        if (!this.defaults.has(option.property)) {
            this.defaults.set(option.property, option.fallback ?? view.call((calls) => calls.get(view.number, option.property), NaN));
        }
        const value =
            this.settings.get(option.property) ??
            (option.isFlag ? numberOf(option, this.getAttribute(option.attribute)) : undefined) ??
            this.defaults.get(option.property)!;
        view.call((calls) => calls.set(view.number, option.property, value), 0);
        if (option.isValue) this.noteValues();
        view.changed();
    }

    private read(option: Option, isLive = false): number {
        const view = this.view;
        if (!view)
            return this.settings.get(option.property) ?? numberOf(option, this.getAttribute(option.attribute)) ?? option.fallback ?? NaN;
        return view.call((calls) => (isLive ? calls.getLive(view.number, option.property) : calls.get(view.number, option.property)), NaN);
    }

    /** What the accessors of a property end in. */
    protected getOption(option: Option): number | string | boolean {
        const number = this.read(option, option.isValue);
        if (option.isFlag) return this.hasAttribute(option.attribute);
        return option.words ? textOf(option, number) : number;
    }

    protected setOption(option: Option, value: unknown): void {
        if (option.isFlag) {
            this.toggleAttribute(option.attribute, Boolean(value));
            return;
        }
        if (!option.isValue) {
            if (value === null || value === undefined) this.removeAttribute(option.attribute);
            else this.setAttribute(option.attribute, `${value as number}`);
            return;
        }
        const number = numberOf(option, `${value as number}`);
        if (number === undefined) {
            this.warn(`${propertyName(option.attribute)} = ${value as number} is no number; it is ignored`);
            return;
        }
        this.settings.set(option.property, number);
        this.apply(option);
    }

    /** The value as it is shown, such as "5.3 km". */
    get valueText(): string {
        return this.view?.valueText ?? '';
    }

    // Events

    private didPassRows(count: number): void {
        if (this.hasAttribute('ticks')) {
            if ('vibrate' in navigator) navigator.vibrate(tickVibration);
            for (let i = 0; i < count; i += 1) this.dispatchEvent(new CustomEvent('gx-tick'));
        }
        this.dispatchEvent(new Event('input', { bubbles: true, composed: true }));
    }

    private didChange(): void {
        const before = this.shownValues;
        for (const option of this.values) this.settings.set(option.property, this.read(option));
        this.noteValues();
        this.view?.changed();
        if (this.shownValues.length === before.length && this.shownValues.every((value, i) => Object.is(value, before[i]))) return;
        this.dispatchEvent(new Event('change', { bubbles: true }));
    }

    /** Everything that the user can change, in its order. */
    protected usersNumbers(): number[] {
        const isUsers = (option: Option): boolean =>
            option.isValue === true || option.property === Property.WeightUnit || option.property === Property.Metric;
        return this.options.filter(isUsers).map((option) => this.read(option));
    }

    private noteValues(): void {
        this.shownValues = this.usersNumbers();
        this.internals.setFormValue(this.formValue, JSON.stringify(this.values.map((option) => this.read(option))));
        const isMissing = this.required && this.kind === Kind.HeartRate && this.values.some((option) => this.read(option) === 0);
        this.internals.setValidity(isMissing ? { valueMissing: true } : {}, isMissing ? this.valueText : undefined, this.surface.root);
    }

    // Forms

    private get formValue(): string | FormData | null {
        const [first, second] = this.values;
        if (!first) return null;
        if (!second) return String(this.read(first));
        const data = new FormData();
        for (const option of this.values) data.append(`${this.name}-${option.attribute}`, String(this.read(option)));
        return this.name === '' ? null : data;
    }

    formDisabledCallback(isDisabled: boolean): void {
        this.isDisabledByForm = isDisabled;
        this.traitsDidChange();
    }

    formResetCallback(): void {
        for (const option of this.values) this.takeAttribute(option, this.getAttribute(option.attribute));
    }

    formStateRestoreCallback(state: string | File | FormData | null): void {
        if (typeof state !== 'string') return;
        const numbers: unknown = JSON.parse(state);
        if (!Array.isArray(numbers)) return;
        this.values.forEach((option, i) => {
            if (typeof numbers[i] === 'number') this.setOption(option, numbers[i]);
        });
    }

    get form(): HTMLFormElement | null {
        return this.internals.form;
    }

    get labels(): NodeList {
        return this.internals.labels;
    }

    get validity(): ValidityState {
        return this.internals.validity;
    }

    checkValidity(): boolean {
        return this.internals.checkValidity();
    }

    get name(): string {
        return this.getAttribute('name') ?? '';
    }

    set name(name: string) {
        this.setAttribute('name', name);
    }

    get disabled(): boolean {
        return this.hasAttribute('disabled');
    }

    set disabled(isDisabled: boolean) {
        this.toggleAttribute('disabled', isDisabled);
    }

    get readOnly(): boolean {
        return this.hasAttribute('readonly');
    }

    set readOnly(isReadOnly: boolean) {
        this.toggleAttribute('readonly', isReadOnly);
    }

    get required(): boolean {
        return this.hasAttribute('required');
    }

    set required(isRequired: boolean) {
        this.toggleAttribute('required', isRequired);
    }

    override focus(options?: FocusOptions): void {
        this.view?.focus(options);
    }

    // What surrounds it

    /** What the page calls it; columns name their part after it. */
    private get name_(): string | null {
        const label =
            this.getAttribute('aria-label')?.trim() ?? [...this.internals.labels].map((node) => node.textContent?.trim() ?? '').join(' ');
        return label === '' ? null : label;
    }

    private get isRightToLeft(): boolean {
        return getComputedStyle(this).direction === 'rtl';
    }

    private get traits(): Traits {
        return {
            isDisabled: this.isDisabledByForm || this.disabled,
            isReadOnly: this.readOnly,
            isRequired: this.required,
            isInvalid: !this.internals.validity.valid,
            isHighContrast: isHighContrast(),
            reducesMotion: reducesMotion(),
        };
    }

    traitsDidChange(): void {
        this.view?.setTraits(this.traits);
    }

    languageDidChange(): void {
        this.view?.setLanguage(languageOf(this), this.isRightToLeft);
    }

    fontsDidLoad(): void {
        this.view?.reload();
    }

    pageDidHide(): void {
        this.view?.finish();
    }

    private sizeDidChange(): void {
        const size = { width: this.clientWidth, height: this.clientHeight };
        if (!this.view || (size.width === this.size.width && size.height === this.size.height)) return;
        this.size = size;
        // Nobody sees an element without a size: what moves arrives.
        if (size.width === 0 || size.height === 0) this.view.finish();
        else this.view.setSize(size.width, size.height);
    }

    private fontsDidChange(): void {
        if (!this.view) return;
        const fonts: Fonts = fontsOf(this.rowProbe, this.labelProbe);
        const key = JSON.stringify(fonts);
        if (key === this.fontsKey) return;
        this.fontsKey = key;
        this.view.setFonts(fonts);
    }

    /**
     * Reads everything again that the page's style sheets decide, where no change can be noticed.
     */
    refresh(): void {
        this.fontsDidChange();
        this.languageDidChange();
        this.traitsDidChange();
    }
}

/** An invisible text in the font of a part, whose size tells of another font. */
function probe(part: string): HTMLElement {
    if (typeof document === 'undefined') return undefined as unknown as HTMLElement;
    const node = document.createElement('span');
    node.className = `probe ${part}`;
    node.part.value = part;
    node.setAttribute('aria-hidden', 'true');
    node.textContent = '0123456789';
    return node;
}

/** Gives a class the accessors of its options, and the page the element. */
export function define(name: string, element: typeof PickerElement): void {
    if (typeof customElements === 'undefined' || customElements.get(name)) return;
    for (const option of optionsOf[element.kind]) {
        Object.defineProperty(element.prototype, propertyName(option.attribute), {
            configurable: true,
            enumerable: true,
            get(this: { getOption(asked: Option): unknown }) {
                return this.getOption(option);
            },
            set(this: { setOption(asked: Option, value: unknown): void }, value: unknown) {
                this.setOption(option, value);
            },
        });
    }
    customElements.define(name, element as unknown as CustomElementConstructor);
}
