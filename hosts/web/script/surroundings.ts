import { fontsOf, lineHeight, type Fonts } from './fonts.js';
import { loadLanguage } from './languages.js';
import { languageOf } from './page.js';
import type { View } from './view.js';

/** The size at which rows are as high as they are on a phone, in CSS pixels. */
const usualRowSize = 22;
/** Those of the style sheet in the module: below, a row is too low for a finger. */
const scaleLimits = { least: 0.8, most: 3 };
/** What feet, inches and units need side by side at the usual size, with margins; measured. */
const usualWidth = 190;

/**
 * What the page decides for one element by where it stands and by its style sheets: size, fonts,
 * language and direction.
 *
 * Passes each change on to the view, and nothing that has stayed as it was.
 */
export class Surroundings {
    private readonly rowProbe = probe('row');
    private readonly labelProbe = probe('label');
    private readonly sizes: ResizeObserver;
    private view: View | undefined;
    /** By the fonts, and what there is room for of it. */
    private wantedScale = 1;
    private scale = 1;
    private size = { width: 0, height: 0 };
    private fontsKey = '';
    private languageKey = '';

    /** `scalesWhole`: its rows have one size; in other fonts it is drawn in that and scaled. */
    constructor(
        private readonly element: HTMLElement,
        private readonly scalesWhole: boolean,
    ) {
        this.sizes = new ResizeObserver((entries) => {
            if (entries.some((entry) => entry.target === element)) this.sizeDidChange();
            if (entries.some((entry) => entry.target !== element)) this.fontsDidChange();
        });
    }

    /** What has to be in the element's shadow tree. */
    get nodes(): readonly HTMLElement[] {
        return [this.rowProbe, this.labelProbe];
    }

    observe(): void {
        for (const node of [this.element, ...this.nodes]) this.sizes.observe(node);
    }

    stop(): void {
        this.sizes.disconnect();
    }

    /** What can be measured while the module is still on its way. */
    measureAhead(): void {
        const { row, rowSize, label, labelSize } = fontsOf(this.rowProbe, this.labelProbe);
        lineHeight(row, rowSize);
        lineHeight(label, labelSize);
    }

    /** Those that a view is opened with; only later changes are passed on. */
    get fonts(): Fonts {
        const fonts = fontsOf(this.rowProbe, this.labelProbe);
        this.fontsKey = JSON.stringify(fonts);
        if (!this.scalesWhole) return fonts;
        this.wantedScale = Math.min(Math.max(fonts.rowSize / usualRowSize, scaleLimits.least), scaleLimits.most);
        return { ...fonts, rowSize: usualRowSize, labelSize: (fonts.labelSize * usualRowSize) / fonts.rowSize };
    }

    get language(): { name: string; isRightToLeft: boolean } {
        const language = { name: languageOf(this.element), isRightToLeft: getComputedStyle(this.element).direction === 'rtl' };
        this.languageKey = JSON.stringify(language);
        return language;
    }

    /** Passes changes on to this view from now on. */
    follow(view: View | undefined): void {
        this.view = view;
        if (!view) return;
        this.size = { width: this.element.clientWidth, height: this.element.clientHeight };
        this.applySize(view);
    }

    private applySize(view: View): void {
        if (this.scalesWhole) {
            this.scale = Math.min(this.wantedScale, Math.max(this.size.width / usualWidth, 1));
            for (const node of this.element.shadowRoot?.querySelectorAll<HTMLElement>('.surface, .columns') ?? []) {
                node.style.transform = this.scale === 1 ? '' : `scale(${this.scale})`;
                node.style.width = node.style.height = `${100 / this.scale}%`;
            }
        }
        view.setSize(this.size.width / this.scale, this.size.height / this.scale);
    }

    private sizeDidChange(): void {
        const size = { width: this.element.clientWidth, height: this.element.clientHeight };
        if (!this.view || (size.width === this.size.width && size.height === this.size.height)) return;
        this.size = size;
        // Nobody sees an element without a size: what moves arrives.
        if (size.width === 0 || size.height === 0) this.view.finish();
        else this.applySize(this.view);
    }

    fontsDidChange(): void {
        const key = this.fontsKey;
        const fonts = this.fonts;
        if (!this.view || this.fontsKey === key) return;
        this.view.setFonts(fonts);
        if (this.scalesWhole) this.applySize(this.view);
    }

    /** When the element's language has arrived; nothing if there is nothing to wait for. */
    loadLanguage(): Promise<void> | undefined {
        return loadLanguage(languageOf(this.element));
    }

    /** The language was not there when the view was opened with it. */
    languageDidArrive(): void {
        this.languageKey = '';
        this.languageDidChange();
    }

    languageDidChange(): void {
        const loading = this.loadLanguage();
        if (loading) {
            // What is shown stays until the other language is there.
            void loading.then(() => this.languageDidChange());
            return;
        }
        const key = this.languageKey;
        const { name, isRightToLeft } = this.language;
        if (this.languageKey !== key) this.view?.setLanguage(name, isRightToLeft);
    }
}

/** An invisible text in the font of a part, whose size tells of another font. */
function probe(part: string): HTMLElement {
    const node = document.createElement('span');
    node.className = `probe ${part}`;
    node.part.value = part;
    node.setAttribute('aria-hidden', 'true');
    node.textContent = '0123456789';
    return node;
}
