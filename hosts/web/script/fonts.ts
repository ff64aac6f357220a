/** A font of the page: what stands before and after the size in CSS's `font`. */
interface Font {
    readonly before: string;
    readonly after: string;
}

const fonts: Font[] = [];
const numbers = new Map<string, number>();
let contextFont = '';
let context: CanvasRenderingContext2D | OffscreenCanvasRenderingContext2D | null | undefined;

/** The number by which the module knows the font of an element. */
export function numberOfFont(style: CSSStyleDeclaration): number {
    const before = `${style.fontStyle} ${style.fontWeight}`;
    const after = style.fontFamily;
    const key = `${before}/${after}`;
    let number = numbers.get(key);
    if (number === undefined) {
        number = fonts.push({ before, after }) - 1;
        numbers.set(key, number);
    }
    return number;
}

/** The fonts of rows and labels, as the module knows them. */
export interface Fonts {
    row: number;
    rowSize: number;
    label: number;
    labelSize: number;
}

/** The fonts that two elements are shown in. */
export function fontsOf(row: Element, label: Element): Fonts {
    const rowStyle = getComputedStyle(row);
    const labelStyle = getComputedStyle(label);
    return {
        row: numberOfFont(rowStyle),
        rowSize: parseFloat(rowStyle.fontSize),
        label: numberOfFont(labelStyle),
        labelSize: parseFloat(labelStyle.fontSize),
    };
}

/** The advance width and the line height of a text, in CSS pixels. */
export function measure(font: number, size: number, text: string): [number, number] {
    if (context === undefined) {
        context =
            typeof OffscreenCanvas === 'function'
                ? new OffscreenCanvas(1, 1).getContext('2d')
                : document.createElement('canvas').getContext('2d');
    }
    const known = fonts[font];
    if (!context || !known) return [text.length * size * 0.6, size * 1.2];
    const css = `${known.before} ${size}px ${known.after}`;
    if (css !== contextFont) {
        context.font = css;
        contextFont = css;
    }
    const metrics = context.measureText(text);
    return [metrics.width, metrics.fontBoundingBoxAscent + metrics.fontBoundingBoxDescent];
}

const lineHeights = new Map<string, number>();

/** The line height of a font, kept. */
export function lineHeight(font: number, size: number): number {
    const key = `${font}/${size}`;
    let height = lineHeights.get(key);
    if (height === undefined) {
        height = measure(font, size, '0')[1];
        lineHeights.set(key, height);
    }
    return height;
}

/** Forgets what was measured, for fonts that have come late. */
export function forgetLineHeights(): void {
    lineHeights.clear();
}
