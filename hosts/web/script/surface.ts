import { lineHeight } from './fonts.js';
import type { Drawing } from './calls.js';
import { rounded, Rects, type Shape } from './rects.js';

/** A text or a picture of a frame. Numbers are rounded to what the page is given. */
export interface Draw {
    /** The text; of a picture, its size. */
    text: string;
    /** The handle of a picture; −1 for a text. */
    image: number;
    font: number;
    size: number;
    isRow: boolean;
    scaleX: number;
    scaleY: number;
    x: number;
    y: number;
    alpha: number;
    home: number;
}

/** A text or a picture on the page, and what was last written to it. */
interface Item extends Draw {
    readonly node: HTMLElement;
    /** In which frame it was last drawn. */
    frame: number;
    /** Whether its font or its picture is to be written again. */
    isOld: boolean;
    isShown: boolean;
}

/** The parts by which a page's style sheet reaches what is drawn. */
const enum Part {
    Row = 'row',
    Separator = 'separator',
    Label = 'label',
}

export const transformOf = ({ scaleX, scaleY, x, y }: Draw): string =>
    x === 0 && y === 0 ? 'none' : scaleX === 1 && scaleY === 1 ? `translate(${x}px,${y}px)` : `matrix(${scaleX},0,0,${scaleY},${x},${y})`;

const nothing: Draw = { text: '', image: -1, font: -1, size: 0, isRow: false, scaleX: 1, scaleY: 1, x: NaN, y: NaN, alpha: NaN, home: 0 };

/**
 * Shows the frames of an element: each row in sight is an element of its own, moved by its
 * transform.
 *
 * In steady motion nothing is made or removed and no layout is read: an item that goes out of sight
 * is the next one that comes into it. All writing is done at the end of a frame, in one pass.
 */
export class Surface implements Drawing {
    readonly root: HTMLElement;
    private readonly items: Item[] = [];
    private readonly rects: Rects;
    private readonly images = new Map<number, HTMLElement>();
    private readonly drawn: Draw[] = [];
    private drawCount = 0;
    private frame = 0;
    private isSketching = false;
    private readonly open: Draw[] = [];
    /** Of the element, in the module's points. */
    height = 0;
    /** The font of labels, by which they are told from separators. */
    labelFont = -1;

    constructor() {
        this.root = document.createElement('div');
        this.root.className = 'surface';
        this.root.setAttribute('aria-hidden', 'true');
        this.rects = new Rects(this.root);
    }

    /** The picture that a handle stands for is copied for each row that shows it. */
    setImages(images: readonly HTMLElement[]): void {
        this.images.clear();
        images.forEach((image, handle) => this.images.set(handle, image));
        for (const item of this.items) if (item.image >= 0) item.isOld = true;
    }

    begin(): void {
        this.frame += 1;
        this.rects.begin();
        this.drawCount = 0;
    }

    fillRect(shape: Shape, x: number, y: number, width: number, height: number, radius: number, alpha: number): void {
        if (!this.isSketching) this.rects.fill(shape, x, y, width, height, radius, alpha);
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
        this.add(text, -1, font, size, isRow, scaleX, scaleY, x, y, alpha, home);
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
        this.add(`${width}/${height}`, image, -1, 0, true, scaleX, scaleY, x, y, alpha, home);
    }

    private add(
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
        home: number,
    ): void {
        const draw = (this.drawn[this.drawCount] ??= { ...nothing });
        this.drawCount += 1;
        draw.text = text;
        draw.image = image;
        draw.font = font;
        draw.size = size;
        draw.isRow = isRow;
        draw.scaleX = rounded(scaleX);
        draw.scaleY = rounded(scaleY);
        draw.x = rounded(x);
        draw.y = rounded(y);
        draw.alpha = rounded(alpha);
        draw.home = rounded(home);
    }

    end(): void {
        this.rects.end();
        // What is shown already keeps its item; the others take those that are left.
        this.open.length = 0;
        let next = 0;
        for (let i = 0; i < this.drawCount; i += 1) {
            const draw = this.drawn[i]!;
            const place = this.placeOf(draw, next);
            if (place < 0) {
                this.open.push(draw);
            } else {
                this.write(this.items[place]!, draw);
                next = place + 1;
            }
        }
        for (const draw of this.open) {
            const isImage = draw.image >= 0;
            const item = this.items.find((free) => free.frame !== this.frame && isImage === free.image >= 0);
            this.write(item ?? this.addItem(isImage), draw);
        }
        for (const item of this.items) {
            if (item.frame === this.frame || !item.isShown) continue;
            item.isShown = false;
            item.node.style.visibility = 'hidden';
        }
    }

    /**
     * Where the item is that shows this already. Frames draw nearly the same in the same order, so
     * it mostly is the next one.
     */
    private placeOf(draw: Draw, next: number): number {
        const count = this.items.length;
        for (let i = 0; i < count; i += 1) {
            const place = (next + i) % count;
            const item = this.items[place]!;
            if (item.frame === this.frame || item.home !== draw.home || item.image !== draw.image) continue;
            if (draw.image >= 0 || (item.font === draw.font && item.text === draw.text)) return place;
        }
        return -1;
    }

    /** The texts and pictures of the last frame, until the next one. */
    draws(): readonly Draw[] {
        return this.drawn.slice(0, this.drawCount);
    }

    /** Those that `work` draws; the page stays as it is. */
    sketch(work: () => void): readonly Draw[] {
        this.drawCount = 0;
        this.isSketching = true;
        try {
            work();
        } finally {
            this.isSketching = false; // The element may be opened again after a failure.
        }
        return this.draws();
    }

    /**
     * The element that shows this in the last frame, or for a new one a free element. Until the
     * next frame it has no place of its own.
     */
    nodeFor(draw: Draw, isNew: boolean): HTMLElement {
        const isAlike = (item: Item): boolean =>
            isNew
                ? item.frame !== this.frame && item.image >= 0 === draw.image >= 0
                : item.frame === this.frame &&
                  item.home === draw.home &&
                  item.font === draw.font &&
                  item.image === draw.image &&
                  item.text === draw.text;
        const item = this.items.find(isAlike) ?? this.addItem(draw.image >= 0);
        this.write(item, { ...draw, x: 0, y: 0, scaleX: 1, scaleY: 1, alpha: 1 });
        return item.node;
    }

    private write(item: Item, draw: Draw): void {
        const style = item.node.style;
        item.frame = this.frame;
        item.home = draw.home;
        if (draw.image >= 0) {
            if (item.isOld || item.text !== draw.text || item.image !== draw.image) this.showImage(item, draw.image, draw.text);
        } else {
            if (item.text !== draw.text) item.node.textContent = draw.text;
            if (item.isOld || item.font !== draw.font || item.size !== draw.size || item.isRow !== draw.isRow) this.showFont(item, draw);
        }
        item.text = draw.text;
        item.image = draw.image;
        item.isOld = false;
        const { scaleX, scaleY, x, y, alpha } = draw;
        if (item.x !== x || item.y !== y || item.scaleX !== scaleX || item.scaleY !== scaleY) {
            item.x = x;
            item.y = y;
            item.scaleX = scaleX;
            item.scaleY = scaleY;
            style.transform = transformOf(draw);
        }
        if (item.alpha !== alpha) {
            item.alpha = alpha;
            style.opacity = String(alpha);
        }
        if (!item.isShown) {
            item.isShown = true;
            style.visibility = '';
        }
    }

    private showFont(item: Item, draw: Draw): void {
        item.font = draw.font;
        item.size = draw.size;
        item.isRow = draw.isRow;
        const part = draw.font === this.labelFont ? Part.Label : draw.isRow ? Part.Row : Part.Separator;
        item.node.part.value = part;
        item.node.className = `text ${part}`;
        item.node.style.fontSize = `${draw.size}px`;
        item.node.style.lineHeight = `${lineHeight(draw.font, draw.size)}px`;
    }

    private showImage(item: Item, image: number, size: string): void {
        const [width, height] = size.split('/');
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
        const item: Item = { ...nothing, node, image: isImage ? 0 : -1, frame: 0, isOld: true, isShown: true };
        this.items.push(item);
        return item;
    }

    /** After new fonts: sizes and line heights are written again. */
    forgetFonts(): void {
        for (const item of this.items) if (item.image < 0) item.isOld = true;
    }

    /** How many elements it has made, for tests. */
    get nodeCount(): number {
        return this.items.length + this.rects.count;
    }
}
