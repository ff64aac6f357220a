import { forgetLineHeights } from './fonts.js';
import { loadedModule } from './module.js';

/** What an element does when something of its page has changed. */
export interface PageObserver {
    /** Contrast, motion or colours of the system. */
    traitsDidChange(): void;
    /** The language or the direction of the page. */
    languageDidChange(): void;
    /** Fonts have come late. */
    fontsDidLoad(): void;
    /** Nobody sees the page any more. */
    pageDidHide(): void;
}

const observers = new Set<PageObserver>();
const queries = new Map<string, MediaQueryList>();
let isWatching = false;

const matches = (query: string): boolean => queries.get(query)?.matches ?? false;

const moreContrast = '(prefers-contrast: more)';
const forcedColors = '(forced-colors: active)';
const lessMotion = '(prefers-reduced-motion: reduce)';

export const isHighContrast = (): boolean => matches(moreContrast) || matches(forcedColors);
export const reducesMotion = (): boolean => matches(lessMotion);

function tell(call: (observer: PageObserver) => void): void {
    for (const observer of [...observers]) call(observer);
}

/** Watches the page once for all elements. */
function watch(): void {
    if (isWatching) return;
    isWatching = true;
    for (const query of [moreContrast, forcedColors, lessMotion]) {
        const list = matchMedia(query);
        queries.set(query, list);
        list.addEventListener('change', () => tell((observer) => observer.traitsDidChange()));
    }
    new MutationObserver(() => tell((observer) => observer.languageDidChange())).observe(document.documentElement, {
        attributes: true,
        attributeFilter: ['lang', 'dir'],
    });
    document.fonts.addEventListener('loadingdone', () => {
        forgetLineHeights();
        loadedModule()?.calls.fontsDidLoad();
        tell((observer) => observer.fontsDidLoad());
    });
    document.addEventListener('visibilitychange', () => {
        if (document.visibilityState === 'hidden') tell((observer) => observer.pageDidHide());
    });
    addEventListener('pagehide', () => tell((observer) => observer.pageDidHide()));
}

export function observePage(observer: PageObserver): void {
    watch();
    observers.add(observer);
}

export function forgetPage(observer: PageObserver): void {
    observers.delete(observer);
}

/** The language of an element: its own, or that of the nearest element around it that has one. */
export function languageOf(element: Element): string {
    let node: Node | null = element;
    while (node) {
        if (node instanceof Element) {
            const language = node.getAttribute('lang');
            if (language !== null && language !== '') return language;
        }
        node = node instanceof ShadowRoot ? node.host : node.parentNode;
    }
    return 'en';
}
