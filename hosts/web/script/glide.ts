import { clock, isPageClock } from './clock.js';
import type { Module } from './module.js';
import { Reels, type Place, type Track } from './reels.js';
import type { Draw, Surface } from './surface.js';

/**
 * In pixels, from frame to frame. Chosen: a row leaves its curve by a quarter of a pixel at most,
 * while it moves three of them or more in each of the screen's frames.
 */
const mostDistance = 14;
/**
 * In pixels: how far a row may leave its curve where its speed changes, after which frames lie less
 * far apart. Chosen: unseen.
 */
const mostError = 0.3;
/** In seconds, from frame to frame. Chosen: twice as many as most screens show. */
const leastStep = 1 / 120;
/** In seconds, from frame to frame. Chosen: the last rows then leave their curves by 0.2 pixels. */
const mostStep = 1 / 7;
/** In seconds. Chosen: how late a row that passes is reported, at most. */
const mostTick = 1 / 30;
/** In seconds, to the second frame, which tells how fast rows are. Chosen: they hardly move. */
const firstStep = 1 / 1000;
/** Chosen: enough for a usual fling; more make a long task. */
const mostFrames = 80;
/** Chosen for the same reason; half of it are in sight at the start. */
const mostTracks = 40;
/** In seconds. Chosen: what is shorter is not worth it. */
const leastTime = 0.1;
/** In frames: how long before the end of its last frame the compositor gets more. */
const reserve = 6;
/** In seconds. Chosen: longer than between two events of a hand that moves. */
const pause = 0.1;
/** In bytes. Chosen: copied in less than a millisecond. */
const mostMemory = 4 * 1024 * 1024;

/** What the frames at these times draw, the first of them now, and when rows pass. */
interface Ahead {
    readonly tracks: readonly Track[];
    readonly times: readonly number[];
    readonly wakes: readonly number[];
    /** Nothing moves after the last frame. */
    readonly isWhole: boolean;
}

const isSame = (one: Place, other: Place): boolean =>
    one.y === other.y && one.x === other.x && one.alpha === other.alpha && one.scaleY === other.scaleY && one.scaleX === other.scaleX;

const isAlike = (one: Draw, other: Draw): boolean =>
    one.text === other.text && one.home === other.home && one.font === other.font && one.image === other.image;

const placeOf = ({ x, y, scaleX, scaleY, alpha }: Place): Place => ({ x, y, scaleX, scaleY, alpha });

/**
 * Hands the frames to come to the page's compositor, as animations of the rows. Script then runs
 * for rows that pass and for what happens, but not for each frame.
 *
 * The module is run ahead for it and set back, so nothing of its curves is written here.
 */
export class Glide {
    private readonly reels: Reels;
    private timer: ReturnType<typeof setTimeout> | undefined;
    private heldUntil = 0;
    private notes = 0;
    /** The module runs ahead: what it tells has not happened yet. */
    isAhead = false;

    constructor(
        private readonly module: Module,
        private readonly number: number,
        private readonly surface: Surface,
    ) {
        this.reels = new Reels(surface);
    }

    get isActive(): boolean {
        return this.reels.areMoving;
    }

    /** Something has happened, and more may follow. */
    hold(): void {
        this.heldUntil = clock().now() + pause;
    }

    /** What has happened is over. */
    release(): void {
        this.heldUntil = 0;
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
        const ahead = isWanted ? this.look(time) : undefined;
        clearTimeout(this.timer);
        if (ahead && ahead.times.at(-1)! - time >= leastTime) {
            this.reels.move(ahead.tracks, ahead.times);
            this.wait(ahead.wakes, wake);
        } else {
            this.reels.stop();
        }
        // What is to come stays known until something happens.
        if (isWanted && (!this.isActive || ahead!.isWhole)) this.heldUntil = Infinity;
        return this.isActive;
    }

    end(): void {
        clearTimeout(this.timer);
        this.reels.stop();
    }

    private look(time: number): Ahead | undefined {
        const { module, number, surface } = this;
        const tracks: Track[] = [];
        // Those of the last frame and of this one, in the order in which they are drawn.
        let last: Track[] = [];
        let drawn: Track[] = [];
        let next = 0;
        const times = [time];
        const wakes: number[] = [];
        let distance = 0;
        let isOver = false as boolean;
        // Two alike in one frame cannot be told apart in the next.
        let isClear = true as boolean;
        const add = (draw: Draw): void => {
            const count = times.length - 1;
            // Frames draw nearly the same in the same order, so it mostly is the next one.
            let track = last[next];
            if (!track || !isAlike(track.draw, draw)) track = last.find((other) => isAlike(other.draw, draw));
            if (track) {
                if (track.first + track.places.length > count) isClear = false;
                const before = track.places[count - track.first - 1]!;
                if (isSame(before, draw)) {
                    track.places.push(before);
                } else {
                    distance = Math.max(distance, Math.abs(draw.y - before.y));
                    track.isMoving = true;
                    track.places.push(placeOf(draw));
                }
            } else {
                if (drawn.some((other) => isAlike(other.draw, draw))) isClear = false;
                track = { draw: { ...draw }, first: count, places: [placeOf(draw)], isMoving: count > 0 };
                tracks.push(track);
            }
            drawn.push(track);
            next = last.indexOf(track) + 1;
        };
        const addFrame = (draws: readonly Draw[]): void => {
            distance = 0;
            next = 0;
            draws.forEach(add);
            [last, drawn] = [drawn, last];
            drawn.length = 0;
        };
        addFrame(surface.draws());
        this.isAhead = true;
        module.runAhead((calls) => {
            let step = firstStep;
            let speed = NaN;
            let now = time;
            while (isClear && !isOver && times.length < mostFrames && tracks.length < mostTracks) {
                const ticks = Math.ceil(step / mostTick);
                for (let i = 0; i < ticks && !isOver; i += 1) {
                    const before = this.notes;
                    now += step / ticks;
                    isOver = calls.tick(number, now) === 0;
                    if (isOver || this.notes > before) wakes.push(now);
                }
                times.push(now);
                addFrame(surface.sketch(() => module.draw(number)));
                const before = speed;
                speed = distance / step;
                const change = Math.abs(speed - before) / step || 0;
                // Between two frames, a row that gets slower is ahead of the straight line.
                const wanted = Math.min(mostDistance / speed, Math.sqrt((8 * mostError) / change));
                step = Math.min(Math.max(wanted, leastStep), Math.max(2 * step, mostTick), mostStep);
            }
        });
        this.isAhead = false;
        if (!isClear) return undefined;
        const end = isOver || times.length <= reserve ? times.at(-1)! : times[times.length - reserve]!;
        return { tracks, times, wakes: [...wakes.filter((row) => row < end), end], isWhole: isOver };
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
            Math.max(Math.ceil(rest), 0),
        );
    }
}
