// A page with elements for one test file: the browser, the server, and what went wrong on the page.
import { before, after } from 'node:test';
import assert from 'node:assert/strict';
import { pageOf, startBrowser } from './browser.mjs';
import { packageFolder } from './places.mjs';
import { startServer } from '../../gallery/web/server.mjs';

/** Pages of one test file. Each is a new one; what it logs is in `logs`. */
export class Stage {
    pages = { '/favicon.ico': '' }; // Browsers ask for one.

    constructor() {
        before(async () => {
            this.server = await startServer({ folders: { '/package/': packageFolder }, pages: this.pages });
            this.chromium = await startBrowser();
        });
        after(async () => {
            await this.chromium?.stop();
            await this.server?.stop();
        });
    }

    /** Opens a page with this body and waits until every picker on it shows itself. */
    async open(body, { options = {}, context = {}, headers, wait = true } = {}) {
        const address = `/${Object.keys(this.pages).length}.html`;
        this.pages[address] = headers ? { body: pageOf(body, options), headers } : pageOf(body, options);
        const opened = await this.chromium.browser.newContext({ viewport: { width: 800, height: 700 }, hasTouch: true, ...context });
        const page = await opened.newPage();
        const logs = [];
        page.on('console', (message) => {
            if (message.type() === 'warning' || message.type() === 'error') logs.push(`${message.type()}: ${message.text()}`);
        });
        page.on('pageerror', (error) => logs.push(`thrown: ${error.message}`));
        await page.goto(this.server.address + address);
        if (wait)
            await page.waitForFunction(() =>
                [...document.querySelectorAll('*')]
                    .filter((node) => node.localName.startsWith('gx-'))
                    .every((node) => node.shadowRoot?.querySelector('.surface.isReady')),
            );
        return { page, logs, close: () => opened.close() };
    }
}

/** Nothing was logged. */
export function assertQuiet(logs) {
    assert.deepEqual(logs, []);
}

/** The middle of a column of an element, on the page. */
export function columnPlace(page, selector, column = 0) {
    return page.evaluate(
        ([asked, index]) => {
            const box = document.querySelector(asked).shadowRoot.querySelectorAll('.column')[index].getBoundingClientRect();
            return { x: box.x + box.width / 2, y: box.y + box.height / 2 };
        },
        [selector, column],
    );
}

/** Waits until the columns have been told to screen readers, and are there to be touched. */
export function untilColumns(page, selector) {
    return page.waitForFunction((asked) => document.querySelector(asked).shadowRoot.querySelector('.column'), selector);
}

/** Notes the events of an element from now on, each with the element's value at that moment. */
export async function noteEvents(page, selector, property = 'value') {
    await page.evaluate(
        ([asked, name]) => {
            const element = document.querySelector(asked);
            globalThis.events = [];
            for (const type of ['input', 'change', 'gx-tick'])
                element.addEventListener(type, () => globalThis.events.push([type, element[name]]));
        },
        [selector, property],
    );
    return () => page.evaluate(() => globalThis.events);
}
