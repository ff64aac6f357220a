// What Chromium's processes have taken of the processor and the memory, from /proc.
import { readdirSync, readFileSync } from 'node:fs';

const read = (file) => {
    try {
        return readFileSync(file, 'utf8');
    } catch {
        return ''; // It has ended meanwhile.
    }
};

/** The children of a process, and theirs, with the type that Chromium gives each. */
function processesBelow(pid) {
    const found = [];
    for (const thread of readdirSync(`/proc/${pid}/task`)) {
        for (const child of read(`/proc/${pid}/task/${thread}/children`).split(' ').filter(Boolean).map(Number)) {
            found.push({ pid: child, type: /--type=([a-z-]+)/.exec(read(`/proc/${child}/cmdline`))?.[1] ?? 'browser' });
            found.push(...processesBelow(child));
        }
    }
    return found;
}

/** In milliseconds; finer than the ticks of /proc/PID/stat. */
const timeOfThread = (pid, thread) => Number(read(`/proc/${pid}/task/${thread}/schedstat`).split(' ')[0]) / 1e6;

/**
 * The time on a processor until now: of all threads and of the main one, by process.
 */
export function processTimes(browserPid) {
    const times = new Map();
    for (const { pid, type } of processesBelow(browserPid)) {
        let all = 0;
        try {
            for (const thread of readdirSync(`/proc/${pid}/task`)) all += timeOfThread(pid, thread);
        } catch {
            continue;
        }
        times.set(pid, { type, all, main: timeOfThread(pid, pid) });
    }
    return times;
}

/** What of a process's memory is its own alone, in MiB. */
export function privateMemory(pid) {
    const lines = read(`/proc/${pid}/smaps_rollup`);
    const sum = [...lines.matchAll(/^Private_(?:Clean|Dirty):\s+(\d+) kB/gm)].reduce((kib, [, part]) => kib + Number(part), 0);
    return sum / 1024;
}

/** The browser's own process, by the protocol. */
export async function processOfBrowser(browser) {
    const client = await browser.newBrowserCDPSession();
    const { processInfo } = await client.send('SystemInfo.getProcessInfo');
    await client.detach();
    return processInfo.find(({ type }) => type === 'browser').id;
}
