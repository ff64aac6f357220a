/** What a rectangle is for (`WebShape`). */
export const enum Shape {
    Indicator = 0,
    Outline = 1,
    Mark = 2,
}

/** A rectangle on the page, and what was last written to it. */
interface Rect {
    readonly node: HTMLElement;
    shape: Shape | undefined;
    x: number;
    y: number;
    width: number;
    height: number;
    radius: number;
    alpha: number;
    isShown: boolean;
}

/** A thousandth of a pixel is less than anyone sees. */
export const rounded = (value: number): number => Math.round(value * 1000) / 1000;

const partOf = (shape: Shape): string => (shape === Shape.Indicator ? 'indicator' : shape === Shape.Outline ? 'outline' : 'focus');

/**
 * The rectangles of a surface, below its texts and in the order of drawing.
 *
 * Only what has changed is written: the indicator of a wheel that turns stays as it is.
 */
export class Rects {
    private readonly rects: Rect[] = [];
    private used = 0;

    constructor(private readonly root: HTMLElement) {}

    get count(): number {
        return this.rects.length;
    }

    begin(): void {
        this.used = 0;
    }

    fill(shape: Shape, x: number, y: number, width: number, height: number, radius: number, alpha: number): void {
        const rect = this.rects[this.used] ?? this.add();
        const style = rect.node.style;
        this.used += 1;
        if (rect.shape !== shape) {
            rect.shape = shape;
            rect.radius = NaN;
            rect.node.part.value = partOf(shape);
            rect.node.className = partOf(shape);
        }
        if (rect.x !== x || rect.y !== y) {
            rect.x = x;
            rect.y = y;
            style.transform = `translate(${rounded(x)}px,${rounded(y)}px)`;
        }
        if (rect.width !== width || rect.height !== height) {
            rect.width = width;
            rect.height = height;
            style.width = `${rounded(width)}px`;
            style.height = `${rounded(height)}px`;
        }
        if (rect.radius !== radius) {
            rect.radius = radius;
            // The page says how round the indicator is.
            style.borderRadius = shape === Shape.Indicator ? '' : `${radius}px`;
        }
        if (rect.alpha !== alpha) {
            rect.alpha = alpha;
            style.opacity = String(rounded(alpha));
        }
        if (!rect.isShown) style.display = '';
        rect.isShown = true;
    }

    /** Hides those that this frame has not drawn. */
    end(): void {
        for (let i = this.used; i < this.rects.length; i += 1) {
            const rect = this.rects[i]!;
            if (rect.isShown) rect.node.style.display = 'none';
            rect.isShown = false;
        }
    }

    private add(): Rect {
        const node = document.createElement('div');
        const last = this.rects[this.rects.length - 1];
        if (last) last.node.after(node);
        else this.root.prepend(node);
        const rect: Rect = { node, shape: undefined, x: NaN, y: NaN, width: NaN, height: NaN, radius: NaN, alpha: NaN, isShown: true };
        this.rects.push(rect);
        return rect;
    }
}
