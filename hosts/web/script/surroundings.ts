import { fontsOf, lineHeight, type Fonts } from './fonts.js';
import { languageOf } from './page.js';
import type { View } from './view.js';

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
    private size = { width: 0, height: 0 };
    private fontsKey = '';
    private languageKey = '';

    constructor(private readonly element: HTMLElement) {
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
        return fonts;
    }

    get language(): { name: string; isRightToLeft: boolean } {
        const language = { name: languageOf(this.element), isRightToLeft: getComputedStyle(this.element).direction === 'rtl' };
        this.languageKey = JSON.stringify(language);
        return language;
    }

    /** Passes changes on to this view from now on. */
    follow(view: View | undefined): void {
        this.view = view;
        this.size = { width: this.element.clientWidth, height: this.element.clientHeight };
        view?.setSize(this.size.width, this.size.height);
    }

    private sizeDidChange(): void {
        const size = { width: this.element.clientWidth, height: this.element.clientHeight };
        if (!this.view || (size.width === this.size.width && size.height === this.size.height)) return;
        this.size = size;
        // Nobody sees an element without a size: what moves arrives.
        if (size.width === 0 || size.height === 0) this.view.finish();
        else this.view.setSize(size.width, size.height);
    }

    fontsDidChange(): void {
        const key = this.fontsKey;
        const fonts = this.fonts;
        if (this.fontsKey !== key) this.view?.setFonts(fonts);
    }

    languageDidChange(): void {
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
