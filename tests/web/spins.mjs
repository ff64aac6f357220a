// Flicks by made-up pointers, and what a page shows of the spins that follow.

/** What a page needs for these tests, as `globalThis.spins`. */
export function provide() {
    const rows = (element) => [...element.shadowRoot.querySelectorAll('.text')];
    const { DOMMatrix } = globalThis;
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
        /**
         * A flick of a column by made-up pointers; the times of its events. They lie as far apart
         * as a finger's, also where a busy machine delivers them late.
         */
        async flick(element, distance = 120, column = 0) {
            const node = element.shadowRoot.querySelectorAll('.column')[column];
            const box = node.getBoundingClientRect();
            const times = [];
            const begin = performance.now();
            const send = (type, offset, after) => {
                const event = new PointerEvent(type, {
                    pointerId: 7,
                    pointerType: 'touch',
                    clientX: box.x + box.width / 2,
                    clientY: box.y + box.height / 2 - offset,
                    bubbles: true,
                    composed: true,
                });
                Object.defineProperty(event, 'timeStamp', { value: begin + after });
                times.push([type, offset, event.timeStamp / 1000]);
                node.dispatchEvent(event);
            };
            send('pointerdown', 0, 0);
            for (let step = 1; step <= 6; step += 1) {
                await new Promise((resolve) => setTimeout(resolve, Math.ceil(begin + 14 * step - performance.now())));
                send('pointermove', (distance * step) / 6, 14 * step);
            }
            send('pointerup', distance, 6 * 14);
            return times;
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
                await new Promise((resolve) => setTimeout(resolve, 5));
            }
        },
    };
}
