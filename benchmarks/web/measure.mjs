// One visit of a page: how it starts, what a fling takes, and what it leaves in memory.
import { privateMemory, processTimes } from './processes.mjs';

const sleep = (milliseconds) => new Promise((resolve) => setTimeout(resolve, milliseconds));

/** In milliseconds. Chosen: longer than a user waits for a page. */
export const patience = 20_000;

/** A finger that goes up 120 pixels in 84 ms and leaves: a quick flick. */
const flick = { x: 85, y: 235, steps: 6, distance: 20, pause: 14 };

/** Waits until renderers and the GPU process have rested for a quarter of a second. */
async function untilIdle(pid, limit = 6000) {
    const pause = 125;
    const sum = (times) =>
        [...times.values()].reduce((all, { type, all: own }) => (type === 'renderer' || type === 'gpu-process' ? all + own : all), 0);
    let before = sum(processTimes(pid));
    let quiet = 0;
    for (let waited = 0; waited < limit && quiet < 2; waited += pause) {
        await sleep(pause);
        const now = sum(processTimes(pid));
        quiet = now - before < 1.5 ? quiet + 1 : 0;
        before = now;
    }
}

/**
 * Which process shows the page: it is asked to work, and found by that. A navigation may have
 * changed it.
 */
async function rendererOf({ page, pid }) {
    for (let tries = 0; tries < 10; tries += 1) {
        const before = processTimes(pid);
        await page.evaluate(() => {
            // Work, not time: on a busy machine little of a time is the page's.
            let sum = 0;
            for (let i = 0; i < 2e7; i += 1) sum += Math.sqrt(i);
            globalThis.worked = sum;
        });
        const worked = [...processTimes(pid)]
            .filter(([, { type }]) => type === 'renderer')
            .map(([renderer, { main }]) => ({ renderer, work: main - (before.get(renderer)?.main ?? 0) }));
        const [first, second] = worked.sort((one, other) => other.work - one.work);
        if (first.work > 10 && first.work > 3 * (second?.work ?? 0)) return first.renderer;
    }
    throw new Error('no process works for the page');
}

/** What was taken between two looks: main thread, renderer and GPU process, in milliseconds. */
function taken(before, after, renderer) {
    const gpu = [...after].find(([, { type }]) => type === 'gpu-process')?.[0];
    const of = (pid, which) => (after.get(pid)?.[which] ?? 0) - (before.get(pid)?.[which] ?? 0);
    return { main: of(renderer, 'main'), renderer: of(renderer, 'all'), gpu: gpu === undefined ? 0 : of(gpu, 'all') };
}

/** A page in a context of its own that has shown an empty page already. */
export async function openPage({ browser, pid, address }) {
    const context = await browser.newContext({ viewport: { width: 390, height: 420 }, hasTouch: true });
    const page = await context.newPage();
    page.setDefaultTimeout(patience);
    const errors = [];
    page.on('pageerror', (error) => errors.push(error.message));
    await page.goto(`${address}/empty.html`);
    return { browser, pid, address, context, page, errors, client: await context.newCDPSession(page) };
}

/** Goes to a picker's page; false if its first picture took too long. */
async function load({ page, pid, address }, name, columns, rows) {
    try {
        await page.goto(`${address}/${name}/index.html?columns=${columns}&rows=${rows}`, { waitUntil: 'load' });
        await page.waitForFunction(() => performance.getEntriesByName('first-contentful-paint').length > 0, undefined, { polling: 50 });
    } catch (error) {
        if (error.name === 'TimeoutError') return false;
        throw error;
    }
    await untilIdle(pid);
    return true;
}

/**
 * Goes to a picker's page. Returns when its first picture was there and what the renderer has taken
 * until it rested; nothing if it took too long.
 */
export async function start(opened, name, columns, rows) {
    const { page, pid } = opened;
    await untilIdle(pid);
    const before = processTimes(pid);
    if (!(await load(opened, name, columns, rows))) return undefined;
    const after = processTimes(pid);
    opened.renderer = await rendererOf(opened);
    const work = taken(before, after, opened.renderer);
    const paint = await page.evaluate(() => {
        const entry = performance.getEntriesByName('first-contentful-paint')[0];
        return entry.paintTime ?? entry.startTime;
    });
    return { paint, work };
}

async function flickOnce({ client }) {
    // None waits for the one before, so that a busy machine does not make it a slow drag.
    const sent = [];
    const send = (type, points, timestamp) => sent.push(client.send('Input.dispatchTouchEvent', { type, touchPoints: points, timestamp }));
    const begin = Date.now();
    const place = (step) => [{ x: flick.x, y: flick.y - step * flick.distance, id: 0 }];
    send('touchStart', place(0), begin / 1000);
    for (let step = 1; step <= flick.steps; step += 1) {
        // Some pickers go by the time at which a touch reaches them, so it is sent at its own time.
        await sleep(Math.max(0, begin + step * flick.pause - Date.now()));
        send('touchMove', place(step), (begin + step * flick.pause) / 1000);
    }
    send('touchEnd', [], (begin + flick.steps * flick.pause) / 1000);
    await Promise.all(sent);
}

const events = async (browser) => JSON.parse(await browser.stopTracing()).traceEvents;

/** A fling from the finger's leaving until rest: time a frame, how many frames, and where. */
export async function fling(opened) {
    const { browser, page, pid, renderer } = opened;
    await untilIdle(pid);
    await browser.startTracing(page, { categories: ['-*', 'disabled-by-default-devtools.timeline.frame'] });
    await untilIdle(pid);
    await flickOnce(opened);
    const before = processTimes(pid);
    const begin = process.hrtime.bigint();
    await untilIdle(pid);
    const after = processTimes(pid);
    const traced = await events(browser);
    const drawn = traced.filter((event) => event.name === 'DrawFrame' && event.pid === renderer);
    const since = Number(begin / 1000n);
    const frames = drawn.filter((event) => event.ts >= since).length;
    const rows = await page.evaluate(() => globalThis.selectedRows);
    return { frames, ...taken(before, after, renderer), row: rows[0], rows };
}

/** The longest task of the main thread, in milliseconds: at the start, and in a fling. */
export async function longestTasks(opened, name, columns, rows) {
    const { browser, page, pid } = opened;
    await untilIdle(pid);
    const traced = async (work) => {
        await browser.startTracing(page, { categories: ['-*', 'toplevel'] });
        await work();
        return events(browser);
    };
    const starting = await traced(() => load(opened, name, columns, rows));
    const flinging = await traced(async () => {
        await flickOnce(opened);
        await untilIdle(pid);
    });
    opened.renderer = await rendererOf(opened);
    const longest = (all) => {
        const tasks = all.filter(
            ({ ph, pid: owner, tid, name: what }) => ph === 'X' && owner === opened.renderer && tid === owner && what.endsWith('RunTask'),
        );
        return Math.max(0, ...tasks.map((event) => (event.tdur ?? event.dur) / 1000));
    };
    const atStart = longest(starting);
    const inFling = longest(flinging);
    return { atStart, inFling };
}

/** What it leaves in memory, and how many elements it has on the page. */
export async function footprint(opened) {
    const { client, page, renderer } = opened;
    await client.send('HeapProfiler.collectGarbage');
    await client.send('HeapProfiler.collectGarbage');
    await sleep(50);
    const { usedSize } = await client.send('Runtime.getHeapUsage');
    const elements = await page.evaluate(() => {
        const count = (root) =>
            [...root.querySelectorAll('*')].reduce((sum, node) => sum + 1 + (node.shadowRoot ? count(node.shadowRoot) : 0), 0);
        return count(document.getElementById('stage'));
    });
    return { memory: privateMemory(renderer), heap: usedSize / 2 ** 20, elements };
}
