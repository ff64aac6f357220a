import type { Calls } from './calls.js';
import { clock } from './clock.js';
import { Glide } from './glide.js';
import type { Module } from './module.js';
import type { Surface } from './surface.js';

/** What frames ask of their view. */
export interface FramesOwner {
    /** Calls the module, and tells afterwards what it has called back. */
    read<Result>(work: (calls: Calls) => Result, otherwise: Result): Result;
    /** Whether rows may be handed to the compositor: no finger holds them. */
    mayGlide(): boolean;
    /** Nothing moves, and the last frame is on the screen. */
    didRest(): void;
}

/**
 * The frames of one view: asks for them while anything moves, and draws them or hands those to come
 * to the compositor.
 */
export class Frames {
    readonly glide: Glide;
    private request: number | undefined;
    private isFirstPictureNew = false;
    private isWaking = false;
    private lastTick = 0;
    private isStopped = false;

    constructor(
        private readonly module: Module,
        private readonly number: number,
        private readonly surface: Surface,
        private readonly owner: FramesOwner,
    ) {
        this.glide = new Glide(module, number, surface);
    }

    /** Asks for a frame, unless the compositor shows those to come. */
    need(): void {
        if (this.glide.isAhead || this.isWaking || this.isStopped) return;
        this.request ??= clock().requestFrame((time) => this.frame(time));
    }

    stop(): void {
        this.isStopped = true;
        this.cancel();
        this.glide.end();
    }

    private cancel(): void {
        if (this.request !== undefined) clock().cancelFrame(this.request);
        this.request = undefined;
    }

    private frame(time: number): void {
        this.request = undefined;
        const draws = this.tick(time);
        const isFirstPictureNew = this.isFirstPictureNew;
        this.isFirstPictureNew = false;
        if (draws || this.glide.isActive) {
            this.draw();
            if (this.beginGlide(time)) this.cancel();
            else this.need();
        } else if (isFirstPictureNew) {
            // The page shows the first picture at the end of this frame: nothing may hold it up.
            this.need();
        } else {
            this.owner.didRest();
        }
    }

    private tick(time: number): boolean {
        this.lastTick = time;
        return this.owner.read((calls) => calls.tick(this.number, time) === 1, false);
    }

    private beginGlide(time: number): boolean {
        if (!this.owner.mayGlide()) {
            this.glide.end();
            return false;
        }
        return this.owner.read(() => this.glide.begin(time, (draws) => (draws ? this.need() : this.wake())), false);
    }

    /** A row passes that the compositor shows. */
    private wake(): void {
        this.owner.read(() => {
            this.isWaking = true;
            this.tick(clock().now());
            this.isWaking = false;
        }, undefined);
    }

    /** Takes the frames back from the compositor, as they are at this time. */
    settle(time: number): void {
        if (!this.glide.isActive) return;
        this.tick(Math.max(time, this.lastTick));
        this.draw();
        this.glide.end();
        this.need();
    }

    /** Shows the first picture at once. */
    showNow(): void {
        this.isFirstPictureNew = true;
        this.tick(clock().now());
        this.draw();
    }

    private draw(): void {
        this.surface.begin();
        this.owner.read(() => this.module.draw(this.number), undefined);
        this.surface.end();
    }
}
