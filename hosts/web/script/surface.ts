import { lineHeight } from './fonts.js';
import type { Drawing } from './module.js';

/** What a rectangle is for (`WebShape`). */
const enum Shape {
    Indicator = 0,
    Outline = 1,
    Mark = 2,
}

/** A text or a picture on the page, and what was last written to it. */
interface Item {
    readonly node: HTMLElement;
    key: string;
    text: string;
    font: number;
    size: number;
    isRow: boolean;
    transform: string;
    opacity: string;
    isShown: boolean;
}

/** The parts by which a page's style sheet reaches what is drawn. */
const enum Part {
    Row = 'row',
    Separator = 'separator',
    Label = 'label',
}

const rounded = (value: number): number => Math.round(value * 1000) / 1000;

/**
 * Shows the frames of an element: each row in sight is an element of its own, moved by its
 * transform.
 *
 * In steady motion nothing is made or removed and no layout is read: an item that goes out of sight
 * is the next one that comes into it. All writing is done at the end of a frame, in one pass.
 */
export class Surface implements Drawing {
    readonly root: HTMLElement;
    private items: Item[] = [];
    private readonly byKey = new Map<string, Item>();
    private readonly rects: HTMLElement[] = [];
    private readonly images = new Map<number, HTMLElement>();
    private rectCount = 0;
    private draws: {
        key: string;
        text: string;
        image: number;
        font: number;
        size: number;
        isRow: boolean;
        transform: string;
        opacity: string;
    }[] = [];
    private drawCount = 0;
    /** The font of labels, by which they are told from separators. */
    labelFont = -1;

    constructor() {
        this.root = document.createElement('div');
        this.root.className = 'surface';
        this.root.setAttribute('aria-hidden', 'true');
    }

    /** The picture that a handle stands for is copied for each row that shows it. */
    setImages(images: readonly HTMLElement[]): void {
        this.images.clear();
        images.forEach((image, handle) => this.images.set(handle, image));
        for (const item of this.items) if (item.font < 0) item.text = '';
    }

    begin(): void {
        this.rectCount = 0;
        this.drawCount = 0;
    }

    fillRect(shape: Shape, x: number, y: number, width: number, height: number, radius: number, alpha: number): void {
        const node = this.rects[this.rectCount] ?? this.addRect();
        this.rectCount += 1;
        const part = shape === Shape.Indicator ? 'indicator' : shape === Shape.Outline ? 'outline' : 'focus';
        if (node.part.value !== part) node.part.value = part;
        if (node.className !== part) node.className = part;
        const style = node.style;
        set(style, 'transform', `translate(${rounded(x)}px,${rounded(y)}px)`);
        set(style, 'width', `${rounded(width)}px`);
        set(style, 'height', `${rounded(height)}px`);
        // The page says how round the indicator is.
        set(style, 'borderRadius', shape === Shape.Indicator ? '' : `${radius}px`);
        set(style, 'opacity', String(rounded(alpha)));
        set(style, 'display', '');
    }

    drawText(
        isRow: boolean,
        font: number,
        size: number,
        text: string,
        scaleX: number,
        scaleY: number,
        x: number,
        y: number,
        alpha: number,
        home: number,
    ): void {
        this.add(`${rounded(home)}/${font}/${text}`, text, -1, font, size, isRow, scaleX, scaleY, x, y, alpha);
    }

    drawImage(
        image: number,
        scaleX: number,
        scaleY: number,
        x: number,
        y: number,
        width: number,
        height: number,
        alpha: number,
        home: number,
    ): void {
        this.add(`${rounded(home)}/image/${image}`, `${width}/${height}`, image, -1, 0, true, scaleX, scaleY, x, y, alpha);
    }

    private add(
        key: string,
        text: string,
        image: number,
        font: number,
        size: number,
        isRow: boolean,
        scaleX: number,
        scaleY: number,
        x: number,
        y: number,
        alpha: number,
    ): void {
        const transform =
            scaleX === 1 && scaleY === 1
                ? `translate(${rounded(x)}px,${rounded(y)}px)`
                : `matrix(${rounded(scaleX)},0,0,${rounded(scaleY)},${rounded(x)},${rounded(y)})`;
        const opacity = String(rounded(alpha));
        const draw = this.draws[this.drawCount];
        if (draw) Object.assign(draw, { key, text, image, font, size, isRow, transform, opacity });
        else this.draws.push({ key, text, image, font, size, isRow, transform, opacity });
        this.drawCount += 1;
    }

    end(): void {
        for (let i = this.rectCount; i < this.rects.length; i += 1) set(this.rects[i]!.style, 'display', 'none');
        const taken = new Set<Item>();
        const open: number[] = [];
        // What is shown already keeps its item; the others take those that are left.
        for (let i = 0; i < this.drawCount; i += 1) {
            const item = this.byKey.get(this.draws[i]!.key);
            if (item && !taken.has(item)) {
                taken.add(item);
                this.write(item, i);
            } else {
                open.push(i);
            }
        }
        const free = this.items.filter((item) => !taken.has(item));
        for (const i of open) {
            const draw = this.draws[i]!;
            const isImage = draw.image >= 0;
            const place = free.findIndex((item) => isImage === item.font < 0);
            const item = place >= 0 ? free.splice(place, 1)[0]! : this.addItem(isImage);
            if (this.byKey.get(item.key) === item) this.byKey.delete(item.key);
            item.key = draw.key;
            this.byKey.set(draw.key, item);
            this.write(item, i);
        }
        for (const item of free) {
            if (!item.isShown) continue;
            item.isShown = false;
            item.node.style.visibility = 'hidden';
        }
    }

    private write(item: Item, index: number): void {
        const draw = this.draws[index]!;
        const style = item.node.style;
        if (item.text !== draw.text || (draw.image >= 0 && item.font !== -2 - draw.image)) {
            item.text = draw.text;
            if (draw.image >= 0) this.showImage(item, draw.image, draw.text);
            else item.node.textContent = draw.text;
        }
        if (draw.image < 0 && (item.font !== draw.font || item.size !== draw.size || item.isRow !== draw.isRow)) {
            item.font = draw.font;
            item.size = draw.size;
            item.isRow = draw.isRow;
            const part = draw.font === this.labelFont ? Part.Label : draw.isRow ? Part.Row : Part.Separator;
            item.node.part.value = part;
            item.node.className = `text ${part}`;
            style.fontSize = `${draw.size}px`;
            style.lineHeight = `${lineHeight(draw.font, draw.size)}px`;
        }
        if (item.transform !== draw.transform) {
            item.transform = draw.transform;
            style.transform = draw.transform;
        }
        if (item.opacity !== draw.opacity) {
            item.opacity = draw.opacity;
            style.opacity = draw.opacity;
        }
        if (!item.isShown) {
            item.isShown = true;
            style.visibility = '';
        }
    }

    private showImage(item: Item, image: number, size: string): void {
        const [width, height] = size.split('/');
        item.font = -2 - image;
        const copy = this.images.get(image)?.cloneNode(true) as HTMLElement | undefined;
        copy?.removeAttribute('id');
        copy?.removeAttribute('slot');
        item.node.replaceChildren(...(copy ? [copy] : []));
        item.node.style.width = `${width}px`;
        item.node.style.height = `${height}px`;
    }

    private addItem(isImage: boolean): Item {
        const node = document.createElement('div');
        node.className = isImage ? 'image' : 'text';
        if (isImage) node.part.value = 'image';
        this.root.append(node);
        const item: Item = {
            node,
            key: '',
            text: '',
            font: isImage ? -1 : NaN,
            size: 0,
            isRow: false,
            transform: '',
            opacity: '',
            isShown: true,
        };
        this.items.push(item);
        return item;
    }

    private addRect(): HTMLElement {
        const node = document.createElement('div');
        // Below all texts, in the order of drawing.
        const last = this.rects[this.rects.length - 1];
        if (last) last.after(node);
        else this.root.prepend(node);
        this.rects.push(node);
        return node;
    }

    /** After new fonts: sizes and line heights are written again. */
    forgetFonts(): void {
        for (const item of this.items) if (item.font >= 0) item.font = NaN;
    }

    /** How many elements it has made, for tests. */
    get nodeCount(): number {
        return this.items.length + this.rects.length;
    }
}

type Writable = 'transform' | 'width' | 'height' | 'borderRadius' | 'opacity' | 'display';

function set(style: CSSStyleDeclaration, name: Writable, value: string): void {
    if (style[name] !== value) style[name] = value;
}
