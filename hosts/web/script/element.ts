import { loadedModule, whenLoaded } from './module.js';
import { forgetPage, isHighContrast, observePage, reducesMotion, type PageObserver } from './page.js';
import { Kind } from './properties.js';
import { adoptStyle } from './style.js';
import { Surface } from './surface.js';
import { Surroundings } from './surroundings.js';
import { ValueElement } from './values.js';
import { View } from './view.js';

/**
 * How long an element waits for its language at the start, in milliseconds. Chosen: a round
 * trip on a slow line. Beyond that, numbers with English words are better than none.
 */
const languagePatience = 1500;

const pause = (milliseconds: number): Promise<void> => new Promise((resolve) => setTimeout(resolve, milliseconds));

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
 * @fires {CustomEvent} gx-text - `valueText` is another, for whatever reason; does not bubble.
 *
 * @slot - Shown while there is no picker, such as an `<input type="number">`; and icons.
 *
 * @csspart row - The text of a row.
 * @csspart image - The picture of a row.
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
export abstract class PickerElement extends ValueElement implements PageObserver {
    private readonly surface: Surface;
    private readonly shadow: ShadowRoot;
    private readonly surroundings: Surroundings;
    private stopWaiting: (() => void) | undefined;
    private traitsKey = '';
    private hasAwaitedLanguage = false;

    constructor() {
        super();
        this.shadow = this.attachShadow({ mode: 'open', delegatesFocus: true });
        adoptStyle(this.shadow);
        this.surface = new Surface();
        this.surroundings = new Surroundings(this, this.kind === Kind.Height);
        this.shadow.append(...this.surroundings.nodes, this.surface.root, document.createElement('slot'));
        // Labels change without notice; a screen reader that comes here reads the present one.
        this.addEventListener('focusin', () => this.labelDidChange());
    }

    protected override get shown(): HTMLElement {
        return this.surface.root;
    }

    /** The value as it is shown, such as "5.3 km". */
    get valueText(): string {
        return this.view?.valueText ?? '';
    }

    // The life of an element

    connectedCallback(): void {
        this.takeOverProperties();
        observePage(this, this);
        this.surroundings.observe();
        if (loadedModule()) {
            this.open();
        } else {
            this.stopWaiting = whenLoaded(() => this.open());
            void this.surroundings.loadLanguage();
            this.surroundings.measureAhead();
        }
    }

    disconnectedCallback(): void {
        this.stopWaiting?.();
        this.surroundings.stop();
        forgetPage(this);
        this.close();
    }

    /** Another document does not take the style sheet along. */
    adoptedCallback(): void {
        adoptStyle(this.shadow);
    }

    private open(): void {
        const module = loadedModule();
        if (!module || this.view || !this.isConnected) return;
        const loading = this.surroundings.loadLanguage();
        if (loading && !this.hasAwaitedLanguage) {
            void Promise.race([loading, pause(languagePatience)]).then(() => {
                this.hasAwaitedLanguage = true;
                this.open();
            });
            return;
        }
        const owner = {
            didPassRows: (count: number) => this.didPassRows(count),
            didChange: () => this.didChange(),
            didChangeText: () => void this.dispatchEvent(new CustomEvent('gx-text')),
            didFail: (reason: unknown) => this.didFail(reason),
            didLoseModule: () => this.didLoseModule(),
            rowTitle: (column: number, row: number) => this.rowTitle(column, row),
            mayRunAhead: () => this.mayRunAhead(),
        };
        const view = new View(module, owner, this.surface, this.shadow as unknown as HTMLElement);
        const { name, isRightToLeft } = this.surroundings.language;
        if (!view.open(this.kind, this.surroundings.fonts, name, isRightToLeft)) return;
        this.begin(view);
        // It is in English meanwhile.
        void loading?.then(() => this.surroundings.languageDidArrive());
    }

    private begin(view: View): void {
        this.options.view = view;
        this.surface.root.classList.add('isReady');
        this.didOpen(view);
        for (const option of this.options.all) this.options.apply(option);
        view.setLabel(this.pageLabel);
        this.traitsKey = '';
        this.traitsDidChange();
        this.surroundings.follow(view);
        this.didSet();
        view.showNow();
    }

    /** For what a picker needs besides its options. */
    protected didOpen(_view: View): void {}

    protected rowTitle(_column: number, _row: number): string | null {
        return null;
    }

    /** Whether no function of the page's gives titles. */
    protected mayRunAhead(): boolean {
        return true;
    }

    private close(): void {
        const view = this.view;
        if (!view) return;
        view.finish();
        this.keepChoice();
        this.options.view = undefined;
        this.surroundings.follow(undefined);
        view.close();
        this.surface.root.classList.remove('isReady');
    }

    private didFail(reason: unknown): void {
        this.options.view = undefined;
        this.surface.root.classList.remove('isReady');
        this.surface.begin();
        this.surface.end();
        console.error(`<${this.localName}> has stopped; its content is shown instead.`, reason);
    }

    /** Another element has failed, and with it the module: this one opens again as it was. */
    private didLoseModule(): void {
        const isFocused = this.shadow.activeElement !== null;
        this.options.view = undefined;
        this.surroundings.follow(undefined);
        this.surface.root.classList.remove('isReady');
        this.open();
        if (isFocused) this.focus({ preventScroll: true });
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
        if (this.takeUsersChange()) this.dispatchEvent(new Event('change', { bubbles: true }));
    }

    override focus(options?: FocusOptions): void {
        this.view?.focus(options);
    }

    // What surrounds it

    traitsDidChange(): void {
        const traits = {
            isDisabled: this.isDisabled,
            isReadOnly: this.readOnly,
            isRequired: this.required,
            isInvalid: !this.internals.validity.valid,
            isHighContrast: isHighContrast(),
            reducesMotion: reducesMotion(),
        };
        const key = JSON.stringify(traits);
        if (!this.view || key === this.traitsKey) return;
        this.traitsKey = key;
        this.view.setTraits(traits);
    }

    languageDidChange(): void {
        this.surroundings.languageDidChange();
    }

    private labelDidChange(): void {
        this.view?.setLabel(this.pageLabel);
    }

    fontsDidLoad(): void {
        this.view?.reload();
    }

    pageDidHide(): void {
        this.view?.finish();
    }

    /**
     * Reads everything again that the page's style sheets decide, where no change can be noticed.
     */
    refresh(): void {
        this.surroundings.fontsDidChange();
        this.languageDidChange();
        this.traitsDidChange();
        this.labelDidChange();
    }
}
