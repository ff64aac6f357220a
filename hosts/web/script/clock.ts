/**
 * Where time and frames come from. The page's own clock unless a test moves one by hand.
 */
export interface FrameClock {
    /** Seconds on one steady clock. */
    now(): number;
    /** The time of an event, in the same seconds. */
    timeOf(event: Event): number;
    /** Calls back once, with the time of the next frame. */
    requestFrame(callback: (time: number) => void): number;
    cancelFrame(request: number): void;
}

const pageClock: FrameClock = {
    now: () => performance.now() / 1000,
    timeOf: (event) => event.timeStamp / 1000,
    requestFrame: (callback) => requestAnimationFrame((time) => callback(time / 1000)),
    cancelFrame: (request) => cancelAnimationFrame(request),
};

let current = pageClock;

/** The clock of all elements. */
export const clock = (): FrameClock => current;

/** Whether time is the page's, by which its animations go too. */
export const isPageClock = (): boolean => current === pageClock;

/** Replaces the clock of all elements; without one, the page's own again. For tests. */
export function setFrameClock(replacement?: FrameClock): void {
    current = replacement ?? pageClock;
}

/** A clock that stands still until it is moved, for tests. */
export class HandClock implements FrameClock {
    private time: number;
    private last = 0;
    private readonly waiting = new Map<number, (time: number) => void>();

    constructor(time = 1000) {
        this.time = time;
    }

    now(): number {
        return this.time;
    }

    timeOf(): number {
        return this.time;
    }

    requestFrame(callback: (time: number) => void): number {
        this.last += 1;
        this.waiting.set(this.last, callback);
        return this.last;
    }

    cancelFrame(request: number): void {
        this.waiting.delete(request);
    }

    /** Whether a frame has been asked for. */
    get isWaiting(): boolean {
        return this.waiting.size > 0;
    }

    /** Lets time pass and calls back what waits for a frame, once. */
    step(seconds: number): void {
        this.stepTo(this.time + seconds);
    }

    /** The same, up to a time that is exactly this. */
    stepTo(time: number): void {
        this.time = time;
        const callbacks = [...this.waiting.values()];
        this.waiting.clear();
        for (const callback of callbacks) callback(this.time);
    }

    /** Steps of a frame each, until nothing waits or so many seconds have passed. */
    runUntilStill(frame = 1 / 60, limit = 60): number {
        const start = this.time;
        while (this.isWaiting && this.time - start < limit) this.step(frame);
        return this.time - start;
    }
}
