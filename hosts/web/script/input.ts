import { clock } from './clock.js';

/** The codes of keys (`UIKey::Code`). */
const enum Code {
    None = 0,
    Character,
    Left,
    Right,
    Up,
    Down,
    PageUp,
    PageDown,
    Home,
    End,
    Tab,
    BackTab,
    Return,
    Escape,
    Space,
}

const codes: Readonly<Record<string, Code>> = {
    ArrowLeft: Code.Left,
    ArrowRight: Code.Right,
    ArrowUp: Code.Up,
    ArrowDown: Code.Down,
    PageUp: Code.PageUp,
    PageDown: Code.PageDown,
    Home: Code.Home,
    End: Code.End,
    Enter: Code.Return,
    Escape: Code.Escape,
    ' ': Code.Space,
};

/** The phases of a touch, as the module numbers them. */
const enum Phase {
    Began = 0,
    Moved = 1,
    Ended = 2,
    Cancelled = 3,
}

/** What input asks of its element. Results say whether the module took it. */
export interface InputTarget {
    touch(phase: number, finger: number, x: number, y: number, time: number): boolean;
    pointer(isInside: boolean, x: number, y: number): void;
    scroll(isNotches: boolean, deltaX: number, deltaY: number, x: number, y: number, time: number, isFinished: boolean): boolean;
    key(code: number, text: string, modifiers: number, isRepeat: boolean, time: number): boolean;
}

/** A mouse wheel's notch in the old unit, which Chromium and WebKit still tell. */
const unitsOfNotch = 120;
/** Lines a notch, as Firefox counts them. */
const linesOfNotch = 3;
/** In milliseconds. Chosen: longer than between two events of a trackpad's glide. */
const strokePause = 120;

/** The mouse with its button held, as the module numbers it (`UITouch::pointerIdentifier`). */
const pointerFinger = -1;

/** Whether a key types; all others have names of several letters. */
const isOneCharacter = (key: string): boolean => key.length === (key.codePointAt(0)! > 0xffff ? 2 : 1);

const fingerOf = (event: PointerEvent): number => (event.pointerType === 'mouse' ? pointerFinger : event.pointerId);

/** Takes the pointers, wheels and keys of one element to the module. */
export class Input {
    /** The fingers that are down, by the numbers of their pointers. */
    private readonly pointers = new Map<number, number>();
    private strokeEnd: ReturnType<typeof setTimeout> | undefined;

    constructor(
        private readonly surface: HTMLElement,
        private readonly target: InputTarget,
    ) {
        surface.addEventListener('pointerdown', (event) => this.down(event));
        surface.addEventListener('pointermove', (event) => this.move(event));
        surface.addEventListener('pointerup', (event) => this.end(event, Phase.Ended));
        surface.addEventListener('pointercancel', (event) => this.end(event, Phase.Cancelled));
        surface.addEventListener('lostpointercapture', (event) => this.end(event, Phase.Cancelled));
        surface.addEventListener('pointerleave', (event) => {
            if (event.pointerType === 'mouse') target.pointer(false, 0, 0);
        });
        surface.addEventListener('wheel', (event) => this.wheel(event), { passive: false });
        surface.addEventListener('keydown', (event) => this.key(event));
    }

    private place(event: MouseEvent): [number, number] {
        const box = this.surface.getBoundingClientRect();
        // The page may scale the element; the module counts in the element's own pixels.
        const scaleX = box.width > 0 ? this.surface.offsetWidth / box.width : 1;
        const scaleY = box.height > 0 ? this.surface.offsetHeight / box.height : 1;
        return [(event.clientX - box.left) * scaleX, (event.clientY - box.top) * scaleY];
    }

    private down(event: PointerEvent): void {
        if (event.pointerType === 'mouse' && event.button !== 0) return;
        const [x, y] = this.place(event);
        if (!this.target.touch(Phase.Began, fingerOf(event), x, y, clock().timeOf(event))) return;
        this.pointers.set(event.pointerId, fingerOf(event));
        // A pointer that a test makes up cannot be captured.
        try {
            this.surface.setPointerCapture(event.pointerId);
        } catch {
            // It goes on as long as it stays within the element.
        }
    }

    private move(event: PointerEvent): void {
        if (event.pointerType === 'mouse') this.target.pointer(true, ...this.place(event));
        if (!this.pointers.has(event.pointerId)) return;
        const events = 'getCoalescedEvents' in event ? event.getCoalescedEvents() : [];
        for (const part of events.length > 0 ? events : [event]) {
            const [x, y] = this.place(part);
            this.target.touch(Phase.Moved, fingerOf(event), x, y, clock().timeOf(part));
        }
    }

    private end(event: PointerEvent, phase: Phase): void {
        if (!this.pointers.delete(event.pointerId)) return;
        const [x, y] = this.place(event);
        this.target.touch(phase, fingerOf(event), x, y, clock().timeOf(event));
    }

    get hasFingers(): boolean {
        return this.pointers.size > 0;
    }

    /** Takes all fingers away, as for an element that is disabled or removed. */
    cancelAll(): void {
        const time = clock().now();
        for (const finger of this.pointers.values()) this.target.touch(Phase.Cancelled, finger, 0, 0, time);
        this.pointers.clear();
        if (this.strokeEnd !== undefined) clearTimeout(this.strokeEnd);
        this.strokeEnd = undefined;
    }

    private wheel(event: WheelEvent): void {
        if (event.ctrlKey) return; // The page's zoom.
        const time = clock().timeOf(event);
        const [x, y] = this.place(event);
        const units = (event as WheelEvent & { wheelDeltaY?: number }).wheelDeltaY;
        const isInLines = event.deltaMode !== WheelEvent.DOM_DELTA_PIXEL;
        const isWheel = isInLines || (event.deltaX === 0 && units !== undefined && units !== 0 && units % unitsOfNotch === 0);
        let isTaken: boolean;
        if (isWheel) {
            // In lines or pages; a page is a notch.
            const ofNotch = event.deltaMode === WheelEvent.DOM_DELTA_LINE ? linesOfNotch : 1;
            const notches = isInLines ? event.deltaY / ofNotch : -(units ?? 0) / unitsOfNotch;
            isTaken = this.target.scroll(true, isInLines ? event.deltaX / ofNotch : 0, notches, x, y, time, false);
        } else {
            isTaken = this.target.scroll(false, event.deltaX, event.deltaY, x, y, time, false);
            if (isTaken) this.awaitStrokeEnd(x, y);
        }
        if (isTaken) event.preventDefault();
    }

    private awaitStrokeEnd(x: number, y: number): void {
        if (this.strokeEnd !== undefined) clearTimeout(this.strokeEnd);
        this.strokeEnd = setTimeout(() => {
            this.strokeEnd = undefined;
            this.target.scroll(false, 0, 0, x, y, clock().now(), true);
        }, strokePause);
    }

    private key(event: KeyboardEvent): void {
        if (event.isComposing || event.defaultPrevented) return;
        const isTyped = isOneCharacter(event.key) && event.key !== ' ';
        const code = isTyped ? Code.Character : (codes[event.key] ?? Code.None);
        if (code === Code.None) return; // Tab among them: each column takes the focus of itself.
        // What AltGr types is no command.
        const types = isTyped && event.getModifierState('AltGraph');
        const held = (isHeld: boolean, bit: number): number => (isHeld && !types ? bit : 0);
        const modifiers = (event.shiftKey ? 1 : 0) | held(event.ctrlKey, 2) | held(event.altKey, 4) | held(event.metaKey, 8);
        if (this.target.key(code, isTyped ? event.key : '', modifiers, event.repeat, clock().timeOf(event))) event.preventDefault();
    }
}
