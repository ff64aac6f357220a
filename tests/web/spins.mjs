// Flicks by made-up pointers, and what a page shows of the spins that follow.
import { untilColumns } from './stage.mjs';

/** A page with a wheel of a thousand rows. */
export async function openWheel(stage, settings) {
    const opened = await stage.open('<gx-wheel></gx-wheel>', settings);
    await opened.page.evaluate(() => (document.querySelector('gx-wheel').columns = [{ rows: 1000 }, { rows: 1000 }]));
    await untilColumns(opened.page, 'gx-wheel');
    await opened.page.evaluate(provide);
    return opened;
}

/** A page with an element that spins by itself, and whose rows the compositor moves. */
export async function openGliding(stage) {
    const opened = await openWheel(stage);
    await opened.page.evaluate(async () => {
        const element = (globalThis.element = document.querySelector('gx-wheel'));
        globalThis.noted = [];
        for (const type of ['input', 'change']) element.addEventListener(type, () => globalThis.noted.push([type, element.rows?.[0]]));
        await globalThis.spins.flick(element);
        await globalThis.spins.until(() => globalThis.spins.isGliding(element));
    });
    return opened;
}

/** What a page needs for these tests, as `globalThis.spins`. */
export function provide() {
    const rows = (element) => [...element.shadowRoot.querySelectorAll('.text')];
    const { DOMMatrix } = globalThis;
    // Time that passes by itself, also while the page's is held.
    const wait = globalThis.setTimeout.bind(globalThis);
    let held;
    globalThis.spins = {
        animations: (element) => element.shadowRoot.querySelector('.surface').getAnimations({ subtree: true }),
        /** The rows with their places and opacities in `style`, and those of what moves them. */
        places(element, style) {
            const surface = element.shadowRoot.querySelector('.surface');
            const found = new Map();
            for (const node of rows(element).filter((row) => row.style.visibility !== 'hidden')) {
                const matrix = new DOMMatrix();
                let opacity = 1;
                for (let at = node; at !== surface; at = at.parentNode) {
                    matrix.preMultiplySelf(new DOMMatrix(style(at).transform || 'none'));
                    matrix.preMultiplySelf(new DOMMatrix([1, 0, 0, 1, at.offsetLeft, at.offsetTop]));
                    opacity *= Number(style(at).opacity || 1);
                }
                // What is beyond the surface is out of sight.
                const isInSight = matrix.f < surface.clientHeight && matrix.f + node.clientHeight * matrix.d > 0;
                if (isInSight) found.set(`${node.textContent}/${Math.round(matrix.e / 60)}`, { matrix, opacity });
            }
            return found;
        },
        /** Where the page has the rows that are shown. */
        boxes: (element) =>
            rows(element)
                .filter((node) => node.style.visibility !== 'hidden')
                .map((node) => node.getBoundingClientRect()),
        /** A finger's event on a column, so far above its middle; at this time if given. */
        point(element, type, { pointerId = 7, offset = 0, column = 0, time } = {}) {
            const node = element.shadowRoot.querySelectorAll('.column')[column];
            const box = node.getBoundingClientRect();
            const event = new PointerEvent(type, {
                pointerId,
                pointerType: 'touch',
                clientX: box.x + box.width / 2,
                clientY: box.y + box.height / 2 - offset,
                bubbles: true,
                composed: true,
            });
            if (time !== undefined) Object.defineProperty(event, 'timeStamp', { value: time });
            return { event, dispatch: () => node.dispatchEvent(event) };
        },
        /**
         * A flick of a column by made-up pointers; the times of its events. They lie as far apart
         * as a finger's, also where a busy machine delivers them late.
         */
        async flick(element, distance = 120, column = 0) {
            const times = [];
            const begin = performance.now();
            const send = (type, offset, after) => {
                times.push([type, offset, (begin + after) / 1000]);
                globalThis.spins.point(element, type, { offset, column, time: begin + after }).dispatch();
            };
            send('pointerdown', 0, 0);
            for (let step = 1; step <= 6; step += 1) {
                const left = begin + 14 * step - performance.now();
                if (held) held.pass(left);
                else await new Promise((resolve) => wait(resolve, Math.ceil(left)));
                send('pointermove', (distance * step) / 6, 14 * step);
            }
            send('pointerup', distance, 6 * 14);
            return times;
        },
        /**
         * From now on the page's time passes only by `pass`, and frames come only by `frame`: what
         * it shows does not depend on how busy the machine is.
         */
        holdTime() {
            let now = performance.now();
            let last = 0;
            const timers = new Map();
            const frames = new Map();
            const starts = new Map();
            performance.now = () => now;
            globalThis.setTimeout = (work, delay = 0) => {
                held.delays.push(delay);
                timers.set((last += 1), { at: now + delay, work });
                return last;
            };
            globalThis.clearTimeout = (timer) => timers.delete(timer);
            globalThis.requestAnimationFrame = (work) => {
                frames.set((last += 1), work);
                return last;
            };
            globalThis.cancelAnimationFrame = (frame) => frames.delete(frame);
            held = {
                /** Of all timers that were asked for. */
                delays: [],
                /** Milliseconds; timers that end meanwhile do so at their times. */
                pass(duration) {
                    const end = now + duration;
                    for (;;) {
                        const due = [...timers].filter(([, { at }]) => at <= end).sort(([, one], [, other]) => one.at - other.at);
                        if (due.length === 0) break;
                        const [timer, { at, work }] = due[0];
                        timers.delete(timer);
                        now = Math.max(now, at);
                        work();
                    }
                    now = end;
                },
                frame() {
                    const works = [...frames.values()];
                    frames.clear();
                    for (const work of works) work(now);
                },
                /** So many frames of a usual screen, until the condition holds if there is one. */
                play(count, isOver = () => false) {
                    for (let left = count; left > 0 && !isOver(); left -= 1) {
                        held.pass(1000 / 60);
                        held.frame();
                    }
                },
                /** Has the page's animations where they are at this time. */
                place(element) {
                    for (const animation of globalThis.spins.animations(element)) {
                        if (!starts.has(animation)) starts.set(animation, animation.startTime);
                        animation.pause();
                        animation.currentTime = now - starts.get(animation);
                    }
                },
            };
            return held;
        },
        isGliding: (element) => globalThis.spins.animations(element).length > 0,
        /** What is written to the rows, in the order of their places. */
        written: (element) =>
            rows(element)
                .filter((node) => node.style.visibility !== 'hidden')
                .map((node) => [node.textContent, node.style.transform, node.style.opacity].join(' '))
                .sort(),
        async until(condition) {
            for (let left = 600; !condition(); left -= 1) {
                if (left === 0) throw new Error(`waited for ${condition}`);
                await new Promise((resolve) => wait(resolve, 5));
            }
        },
    };
}
