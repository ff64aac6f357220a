// Chromium for the tests, and what they do in it.
import { readFile } from 'node:fs/promises';
import { tools } from './places.mjs';

const { chromium } = tools('playwright-core');

const flags = [
    '--no-sandbox',
    '--disable-gpu',
    '--disable-quic',
    '--no-first-run',
    '--disable-background-networking',
    '--disable-component-update',
    '--disable-sync',
    '--font-render-hinting=none',
];

/** A browser with a profile of its own, which goes with it. */
export async function startBrowser() {
    const browser = await chromium.launch({ executablePath: '/usr/bin/chromium', headless: true, args: flags });
    return { browser, stop: () => browser.close() };
}

/** The text of a page with this body and the elements' script. */
export function pageOf(body, { head = '', lang = 'en', script = '/package/gxuipickers.js' } = {}) {
    return `<!doctype html><html lang="${lang}"><head><meta charset="utf-8"><meta name="viewport" content="width=device-width">${head}<script type="module" src="${script}"></script></head><body>${body}</body></html>`;
}

/** Touches by the protocol, which needs no window in front. */
export async function touches(page) {
    const client = await page.context().newCDPSession(page);
    const send = (type, points, timestamp) =>
        client.send('Input.dispatchTouchEvent', {
            type,
            touchPoints: points.map(({ x, y, id = 0 }) => ({ x, y, id })),
            ...(timestamp === undefined ? {} : { timestamp }),
        });
    return {
        start: (points, time) => send('touchStart', points, time),
        move: (points, time) => send('touchMove', points, time),
        end: (points = [], time = undefined) => send('touchEnd', points, time),
        /**
         * Down, an even way, up; slow enough to have no speed at the end if `rest` is given.
         *
         * Without, events have times of their own: a flick is as fast on a busy machine.
         */
        async drag(from, to, { steps = 10, rest = 150 } = {}) {
            const began = Date.now() / 1000;
            const time = (step) => (rest > 0 ? undefined : began + step * 0.008);
            await send('touchStart', [from], time(0));
            for (let i = 1; i <= steps; i += 1) {
                const share = i / steps;
                await send('touchMove', [{ x: from.x + (to.x - from.x) * share, y: from.y + (to.y - from.y) * share }], time(i));
                await new Promise((resolve) => setTimeout(resolve, 8));
            }
            if (rest > 0) {
                await new Promise((resolve) => setTimeout(resolve, rest));
                await send('touchMove', [{ x: to.x, y: to.y }]);
            }
            await send('touchEnd', [], time(steps));
        },
    };
}

/** What a checker of accessibility finds on the page, and how many of its rules have passed. */
export async function checkAccessibility(page) {
    const isThere = await page.evaluate(() => 'axe' in globalThis);
    if (!isThere) await page.evaluate(await readFile(tools.resolve('axe-core/axe.min.js'), 'utf8'));
    return page.evaluate(async () => {
        // Of the rules that pass, it need not describe every node.
        const { violations, passes } = await globalThis.axe.run({ resultTypes: ['violations'] });
        return {
            violations: violations.map(
                ({ id, nodes }) => `${id}: ${nodes.map((node) => `${node.target} ${node.failureSummary}`).join(' ')}`,
            ),
            passed: passes.length,
        };
    });
}

/**
 * Waits until nothing of the element has moved for a third of a second: what settles moves unseen.
 */
export function untilStill(page, selector) {
    return page.evaluate(async (asked) => {
        const surface = document.querySelector(asked).shadowRoot.querySelector('.surface');
        const look = () => [...surface.querySelectorAll('*')].map((node) => node.style.cssText).join('\n');
        let before = look();
        for (let still = 0; still < 20;) {
            await new Promise((resolve) => requestAnimationFrame(resolve));
            const now = look();
            const isMoving = surface.getAnimations({ subtree: true }).length > 0;
            still = now === before && !isMoving ? still + 1 : 0;
            before = now;
        }
    }, selector);
}
