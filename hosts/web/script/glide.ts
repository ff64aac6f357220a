import { clock, isPageClock } from './clock.js';
import type { Module } from './module.js';
import { transformOf, type Draw, type Surface } from './surface.js';

/**
 * In seconds, while a spin is fast and afterwards. Chosen: between two of them, a row leaves its
 * curve by a fifth of a pixel at most.
 */
const frameTimes = { fast: 1 / 60, slow: 1 / 30 };
/** Chosen: fewer are not worth it, and more make a long task. */
const frameCounts = { least: 16, most: 36 };
/** Chosen for the same reason; half of it are in sight at the start. */
const mostTracks = 40;
/** In frames: how long before the end of its last frame the compositor gets more. */
const reserve = 6;
/** In seconds. Chosen: longer than between two events of a hand that moves. */
const pause = 0.1;
/** In bytes. Chosen: copied in less than a millisecond. */
const mostMemory = 4 * 1024 * 1024;

/** One text or picture in the frames to come. */
interface Track {
    readonly draw: Draw;
    readonly first: number;
    readonly frames: Draw[];
    isMoving: boolean;
}

/** What the frames after a time draw, and when rows pass. */
interface Ahead {
    readonly tracks: readonly Track[];
    readonly count: number;
    readonly frameTime: number;
    readonly times: readonly number[];
}

const isSame = (one: Draw, other: Draw): boolean =>
    one.y === other.y && one.x === other.x && one.alpha === other.alpha && one.scaleY === other.scaleY && one.scaleX === other.scaleX;

/**
 * Hands the frames to come to the page's compositor, as animations of the rows. Script then runs
 * for rows that pass and for what happens, but not for each frame.
 *
 * The module is run ahead for it and set back, so nothing of its curves is written here.
 */
export class Glide {
    private animations: Animation[] = [];
    private timer: ReturnType<typeof setTimeout> | undefined;
    private heldUntil = 0;
    private notes = 0;
    /** The module runs ahead: what it tells has not happened yet. */
    isAhead = false;

    constructor(
        private readonly module: Module,
        private readonly number: number,
        private readonly surface: Surface,
    ) {}

    get isActive(): boolean {
        return this.animations.length > 0;
    }

    /** Something has happened, and more may follow. */
    hold(): void {
        this.heldUntil = clock().now() + pause;
    }

    /** The module has called back, for a time to come. */
    note(): void {
        this.notes += 1;
    }

    /**
     * The frame of this time has been drawn. Returns whether the compositor shows those that
     * follow. `wake` is called when a row passes, and when a frame is to be drawn.
     */
    begin(time: number, wake: (draws: boolean) => void): boolean {
        const isWanted = isPageClock() && time >= this.heldUntil && this.module.memorySize <= mostMemory;
        const ahead = isWanted ? this.look(time, this.isActive ? frameTimes.slow : frameTimes.fast) : undefined;
        const before = this.animations;
        this.animations = [];
        clearTimeout(this.timer);
        if (ahead && ahead.count >= frameCounts.least) {
            this.animate(ahead, time);
            this.wait(ahead.times, wake);
        } else if (isWanted) {
            // It stays so until something happens.
            this.heldUntil = Infinity;
        }
        for (const animation of before) animation.cancel();
        return this.isActive;
    }

    end(): void {
        clearTimeout(this.timer);
        for (const animation of this.animations) animation.cancel();
        this.animations = [];
    }

    private look(time: number, frameTime: number): Ahead | undefined {
        const { module, number, surface } = this;
        const tracks: Track[] = [];
        const last = new Map<string, Track>();
        const times: number[] = [];
        let count = 0;
        let isOver = false as boolean;
        let isClear = true as boolean;
        const add = (draw: Draw): void => {
            const key = `${draw.home}/${draw.font}/${draw.image}/${draw.text}`;
            let track = last.get(key);
            const length = track ? track.first + track.frames.length : -1;
            // Two alike cannot be told apart in the next frame.
            if (length > count) isClear = false;
            if (track && length === count) {
                const before = track.frames[track.frames.length - 1]!;
                const isStill = isSame(before, draw);
                track.isMoving ||= !isStill;
                track.frames.push(isStill ? before : { ...draw });
            } else {
                const copy = { ...draw };
                track = { draw: copy, first: count, frames: [copy], isMoving: count > 0 };
                last.set(key, track);
                tracks.push(track);
            }
        };
        surface.draws().forEach(add);
        this.isAhead = true;
        module.runAhead((calls) => {
            for (count = 1; isClear && count < frameCounts.most && tracks.length < mostTracks; count += 1) {
                const next = time + count * frameTime;
                const before = this.notes;
                isOver = calls.tick(number, next) === 0;
                if (isOver || this.notes > before) times.push(next);
                if (isOver) break;
                surface.sketch(() => module.draw(number)).forEach(add);
            }
        });
        this.isAhead = false;
        if (!isClear) return undefined;
        const end = time + (count - reserve) * frameTime;
        return { tracks, count, frameTime, times: isOver ? times : [...times.filter((row) => row < end), end] };
    }

    private animate({ tracks, count, frameTime }: Ahead, time: number): void {
        const end = count - 1;
        const moving = tracks.filter(({ isMoving, frames }) => isMoving || frames.length < count);
        // All writing first: an animation may look at the page's styles.
        const nodes = moving.map(({ draw, first }) => this.surface.nodeFor(draw, first > 0));
        moving.forEach(({ draw, first, frames }, i) => {
            const length = first + frames.length;
            const keys: Keyframe[] = [];
            const add = (place: number, frame: Draw, opacity = frame.alpha): void => {
                keys.push({ offset: Math.min(place / end, 1), transform: transformOf(frame), opacity });
            };
            if (first > 0) for (const place of [0, first - 1]) add(place, draw, 0);
            frames.forEach((frame, k) => add(first + k, frame));
            if (length < count) for (const place of [length, end]) add(place, frames[frames.length - 1]!, 0);
            const animation = nodes[i]!.animate(keys, { duration: end * frameTime * 1000, fill: 'both' });
            animation.startTime = time * 1000;
            this.animations.push(animation);
        });
    }

    private wait(times: readonly number[], wake: (draws: boolean) => void, next = 0): void {
        const isLast = next === times.length - 1;
        const rest = (times[next]! - clock().now()) * 1000;
        this.timer = setTimeout(
            () => {
                const { timer } = this;
                wake(isLast);
                // Unless something has happened meanwhile.
                if (!isLast && this.timer === timer) this.wait(times, wake, next + 1);
            },
            Math.max(rest, 0),
        );
    }
}
