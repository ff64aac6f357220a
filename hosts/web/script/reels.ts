import { rounded } from './rects.js';
import type { Draw, Surface } from './surface.js';

/**
 * In seconds: how long the last frame stays. Chosen: longer than a timer is late, since animations
 * that end wake the page.
 */
const rest = 0.1;
/**
 * In heights of the surface, as it is to the most foreshortened row: how far apart rows of a reel
 * are. Chosen: more than one and a row, since the row that is in sight may be at the edge.
 */
const gap = 1.5;
/** Chosen: rows that are foreshortened more have a reel each, or others would be too far away. */
const leastScale = 0.25;
/**
 * How far a row is moved off the line between the frames before and after, as a share of how far it
 * is off. Chosen: between frames, rows then leave their curve to both sides, by half as much.
 */
const outwards = 1 / 8;
/** In pixels: how far down a row may be in a reel. Chosen: Chromium paints 4000 ahead. */
const mostDown = 3000;

/** Where a text or a picture is in one frame. */
export type Place = Pick<Draw, 'x' | 'y' | 'scaleX' | 'scaleY' | 'alpha'>;

/** One text or picture in the frames to come. */
export interface Track {
    readonly draw: Draw;
    readonly first: number;
    readonly places: Place[];
    isMoving: boolean;
}

/** An element whose rows are in sight one after the other, and its way by property. */
interface Reel {
    readonly node: HTMLElement;
    readonly offset: number[];
    readonly transform: string[];
    readonly opacity: number[];
    /** The frame in which its last row is out of sight. */
    end: number;
}

/** The place of a row in a frame on the line through the frames `far` and `near`. */
function placeBeyond({ first, places }: Track, times: readonly number[], frame: number, near: number, far: number): Place {
    const one = places[near - first]!;
    const other = places[far - first];
    if (!other) return one;
    const share = (times[frame]! - times[near]!) / (times[near]! - times[far]!);
    return { ...one, y: one.y + (one.y - other.y) * share, scaleY: one.scaleY + (one.scaleY - other.scaleY) * share };
}

/**
 * Has the compositor move rows, by animations.
 *
 * - Each animation costs time in each frame, also while its row is out of sight. So rows that pass
 *   one after the other hang in one element, a reel, too far apart to be in sight together. It
 *   jumps to the next row while it is transparent. A usual fling takes 6 reels for 22 rows.
 * - Rows in a reel are laid out, not moved, so that the page paints them as one layer. Several
 *   layers would be drawn into a picture first, since the reel is transparent as a whole.
 */
export class Reels {
    private readonly nodes: HTMLElement[] = [];
    private animations: Animation[] = [];

    constructor(private readonly surface: Surface) {}

    get areMoving(): boolean {
        return this.animations.length > 0;
    }

    stop(): void {
        for (const animation of this.animations) animation.cancel();
        this.animations = [];
        for (const node of this.nodes) this.surface.root.append(...node.childNodes);
    }

    /** Shows these in the frames of these times, the first of them now. */
    move(tracks: readonly Track[], times: readonly number[]): void {
        this.stop();
        const count = times.length;
        const begin = times[0]!;
        const duration = times.at(-1)! + rest - begin;
        const moving = tracks.filter(({ isMoving, places }) => isMoving || places.length < count);
        const least = Math.min(...moving.flatMap(({ places }) => places.map(({ scaleY }) => scaleY)));
        const distance = Math.ceil((gap * this.surface.height) / Math.max(least, leastScale));
        const reels: Reel[] = [];
        for (const track of moving) {
            const { draw, first, places } = track;
            const end = first + places.length;
            // A picture is cut at its sides, which makes it a layer.
            const isAlone = least < leastScale || draw.image >= 0;
            const isFree = (other: Reel): boolean => other.end < first && other.node.childElementCount * distance < mostDown;
            let reel = isAlone ? undefined : reels.find(isFree);
            if (!reel) reels.push((reel = { node: this.nodeAt(reels.length, distance), offset: [], transform: [], opacity: [], end }));
            const { node, offset, transform, opacity } = reel;
            const down = node.childElementCount * distance;
            const add = (time: number, { x, y, scaleX, scaleY, alpha }: Place, seen = alpha): void => {
                offset.push((time - begin) / duration);
                // All of one form, so that the page mixes them number by number, and of those forms
                // that Chromium reads fast.
                transform.push(`translate(${x}px,${rounded(y - down * scaleY)}px) scale3d(${scaleX},${scaleY},1)`);
                opacity.push(seen);
            };
            // Between two frames it comes into sight, or goes out of it, on its way.
            if (first > 0) {
                const coming = placeBeyond(track, times, first - 1, first, first + 1);
                if (down === 0) add(begin, coming, 0);
                add(times[first - 1]!, coming, 0);
            }
            places.forEach((place, k) => {
                const frame = first + k;
                const isBetween = k > 0 && k < places.length - 1;
                const { y } = isBetween ? placeBeyond(track, times, frame, frame + 1, frame - 1) : place;
                add(times[frame]!, { ...place, y: place.y + (place.y - y) * outwards });
            });
            if (end < count) add(times[end]!, placeBeyond(track, times, end, end - 1, end - 2), 0);
            reel.end = end;
            node.append(this.surface.nodeFor(draw, first > 0));
        }
        // After all writing, since an animation may look at the page's styles.
        this.animations = reels.map(({ node, offset, transform, opacity }) => {
            // Lists by property, which the page reads in half the time that keyframes take.
            const ways = { offset, transform, opacity };
            offset.push(1);
            transform.push(transform.at(-1)!);
            opacity.push(opacity.at(-1)!);
            const animation = node.animate(ways, { duration: duration * 1000, fill: 'both' });
            animation.startTime = begin * 1000;
            return animation;
        });
    }

    private nodeAt(index: number, distance: number): HTMLElement {
        const node = (this.nodes[index] ??= this.surface.root.appendChild(document.createElement('div')));
        node.className = 'reel';
        node.style.gridAutoRows = `${distance}px`;
        return node;
    }
}
