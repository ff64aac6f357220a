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
    /** Nobody sees the page move any more. */
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
    document.fonts.addEventListener('loadingdone', () => {
        forgetLineHeights();
        loadedModule()?.calls.fontsDidLoad();
        tell((observer) => observer.fontsDidLoad());
    });
    document.addEventListener('visibilitychange', () => {
        if (document.visibilityState === 'hidden') tell((observer) => observer.pageDidHide());
    });
    for (const type of ['pagehide', 'beforeprint']) addEventListener(type, () => tell((observer) => observer.pageDidHide()));
}

let languages: MutationObserver | undefined;
const watchedRoots = new WeakSet<Node>();

/** Languages and directions of the elements around one, out to its document. */
function watchLanguages(element: Element): void {
    languages ??= new MutationObserver(() => tell((observer) => observer.languageDidChange()));
    let node: Element | undefined = element;
    while (node) {
        const root: Node = node.getRootNode();
        if (!watchedRoots.has(root)) {
            watchedRoots.add(root);
            languages.observe(root, { subtree: true, attributes: true, attributeFilter: ['lang', 'dir'] });
        }
        node = isShadowRoot(root) ? root.host : undefined;
    }
}

export function observePage(observer: PageObserver, element: Element): void {
    watch();
    watchLanguages(element);
    observers.add(observer);
}

export function forgetPage(observer: PageObserver): void {
    observers.delete(observer);
}

/** An element may be moved into a frame, where these classes are others. */
const isElement = (node: Node): node is Element => node.nodeType === Node.ELEMENT_NODE;
const isShadowRoot = (node: Node): node is ShadowRoot => 'host' in node && node.nodeType === Node.DOCUMENT_FRAGMENT_NODE;

/** The language of an element: its own, or that of the nearest element around it that has one. */
export function languageOf(element: Element): string {
    let node: Node | null = element;
    while (node) {
        const language: string | null = isElement(node) ? node.getAttribute('lang') : null;
        if (language !== null && language !== '') return language;
        node = isShadowRoot(node) ? node.host : node.parentNode;
    }
    return 'en';
}
