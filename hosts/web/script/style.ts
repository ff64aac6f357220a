/** The style sheet of every element's shadow tree, made once a document. */
const sheets = new WeakMap<Document, CSSStyleSheet>();

/**
 * Without comments, since a page loads it as it stands:
 *
 * - The font is that of rows: 22 px where the root has 16. Rows are 40 high then, and five are in
 *   sight.
 * - On paper the value is shown alone, since a page has another width there than on the screen.
 * - In forced colours, texts have no plates behind them, which would hide the mark of the focus.
 */
const css = `
:host {
    display: block;
    position: relative;
    box-sizing: border-box;
    font-size: 1.375rem;
    height: calc(216em / 22);
    min-width: 0;
    overflow: clip;
    -webkit-tap-highlight-color: transparent;
    -webkit-user-select: none;
    user-select: none;
}
:host([hidden]) { display: none; }
:host(:disabled) { opacity: 0.45; }
.surface, .columns { position: absolute; left: 0; top: 0; width: 100%; height: 100%; transform-origin: 0 0; direction: ltr; }
.surface { contain: strict; pointer-events: none; }
.surface > * { position: absolute; left: 0; top: 0; transform-origin: 0 0; }
.reel { display: grid; place-items: start; }
.text { white-space: pre; font-variant-numeric: inherit; text-align: left; }
.image { display: grid; place-items: center; overflow: hidden; }
.image > * { width: 100%; height: 100%; object-fit: contain; }
.row, .separator { font-weight: 500; color: var(--gx-row-color, inherit); }
.label { font-weight: 400; color: var(--gx-label-color, color-mix(in srgb, currentColor 64%, transparent)); }
.indicator {
    box-sizing: border-box;
    background: var(--gx-indicator-color, color-mix(in srgb, currentColor 12%, transparent));
    border-radius: var(--gx-indicator-radius, 8px);
}
.outline { background: currentColor; }
.focus { background: var(--gx-focus-color, AccentColor); }
.column {
    position: absolute;
    margin: 0;
    outline: none;
    touch-action: pan-x;
    cursor: ns-resize;
}
:host(:disabled) .column, :host([readonly]) .column { touch-action: auto; cursor: default; }
.probe { position: absolute; visibility: hidden; white-space: pre; pointer-events: none; left: 0; top: 0; }
.isReady ~ slot { display: none; }
@media print {
    :host { height: auto; }
    .surface, .column { display: none; }
    .columns { position: static; width: auto !important; transform: none !important; direction: inherit; }
    .columns::after { content: attr(data-value); }
}
@media (prefers-contrast: more) {
    .label { color: var(--gx-label-color, inherit); }
}
@media (forced-colors: active) {
    .indicator { border: 1px solid CanvasText; background: transparent; }
    .focus { forced-color-adjust: none; background: Highlight; }
    .outline { display: none; }
    .text { forced-color-adjust: none; }
    .row, .separator, .label { color: CanvasText !important; }
    :host(:disabled) { opacity: 1; }
    :host(:disabled) .text { color: GrayText !important; }
}
`;

/**
 * Gives a shadow tree its style sheet: a constructed one, which every content security policy
 * allows.
 */
export function adoptStyle(root: ShadowRoot): void {
    const page = root.ownerDocument;
    let sheet = sheets.get(page);
    if (!sheet) {
        // A document takes only sheets of its own window; one without a window shows nothing.
        const Sheet = page.defaultView?.CSSStyleSheet ?? CSSStyleSheet;
        sheet = new Sheet();
        sheet.replaceSync(css);
        sheets.set(page, sheet);
    }
    root.adoptedStyleSheets = [sheet];
}
