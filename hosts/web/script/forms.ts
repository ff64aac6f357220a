/** Where there is no DOM, as on a server, the classes exist and do nothing. */
const Base = (typeof HTMLElement === 'undefined' ? class {} : HTMLElement) as typeof HTMLElement;

/** What the browser says in the user's language of a field that has to have a value. */
function missingMessage(): string {
    const field = document.createElement('input');
    field.required = true;
    return field.validationMessage;
}

/**
 * An element that takes part in forms as the browser's own fields do.
 *
 * Its content attributes `name`, `disabled`, `readonly` and `required` have the properties of those
 * fields. A class that extends it tells its value by `setForm`.
 */
export abstract class FormElement extends Base {
    static readonly formAssociated: boolean = true;
    protected readonly internals: ElementInternals;
    private isDisabledByForm = false;

    constructor() {
        super();
        this.internals = this.attachInternals();
    }

    /** What decides whether it takes input has changed. */
    abstract traitsDidChange(): void;

    /** The entries in a form's data, each with what follows the name, and what a history keeps. */
    protected setForm(entries: readonly (readonly [suffix: string, number])[], state: string): void {
        const [first] = entries;
        const isOne = entries.length === 1 && first?.[0] === '';
        const data = new FormData();
        for (const [suffix, number] of entries) data.append(`${this.name}${suffix}`, String(number));
        this.internals.setFormValue(isOne ? String(first[1]) : this.name === '' ? null : data, state);
    }

    protected setMissing(isMissing: boolean, focus: HTMLElement): void {
        this.internals.setValidity(isMissing ? { valueMissing: true } : {}, isMissing ? missingMessage() : undefined, focus);
    }

    formDisabledCallback(isDisabled: boolean): void {
        this.isDisabledByForm = isDisabled;
        this.traitsDidChange();
    }

    /** By its own attribute or by a field set around it. */
    protected get isDisabled(): boolean {
        return this.isDisabledByForm || this.disabled;
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

    get validationMessage(): string {
        return this.internals.validationMessage;
    }

    get willValidate(): boolean {
        return this.internals.willValidate;
    }

    checkValidity(): boolean {
        return this.internals.checkValidity();
    }

    reportValidity(): boolean {
        return this.internals.reportValidity();
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

    /** What the page calls it, by the same rules as for the browser's own fields. */
    protected get pageLabel(): string | null {
        const text = (node: Node | null): string => node?.textContent?.trim().replace(/\s+/g, ' ') ?? '';
        const root = this.getRootNode() as Document | ShadowRoot;
        const named = (this.getAttribute('aria-labelledby') ?? '').split(/\s+/).filter((id) => id !== '');
        const label =
            named
                .map((id) => text(root.getElementById(id)))
                .join(' ')
                .trim() ||
            (this.getAttribute('aria-label')?.trim() ?? '') ||
            [...this.internals.labels].map(text).join(' ');
        return label === '' ? null : label;
    }
}
