// Debian's Firefox for the tests, driven through its own automation protocol: messages of JSON over
// a socket, each after its length and a colon.
import { spawn } from 'node:child_process';
import { existsSync } from 'node:fs';
import { mkdtemp, readFile, rm, writeFile } from 'node:fs/promises';
import net from 'node:net';
import os from 'node:os';
import path from 'node:path';

const program = '/usr/bin/firefox-esr';
export const hasFirefox = existsSync(program);

const preferences = {
    'marionette.port': 0, // Any that is free.
    'app.update.enabled': false,
    'browser.shell.checkDefaultBrowser': false,
    'datareporting.policy.dataSubmissionEnabled': false,
    'toolkit.telemetry.reportingpolicy.firstRun': false,
    'dom.w3c_touch_events.enabled': 1,
    'network.captive-portal-service.enabled': false,
    'network.connectivity-service.enabled': false,
};

async function until(condition, what, seconds = 60) {
    for (const end = Date.now() + seconds * 1000; Date.now() < end;) {
        const value = await condition();
        if (value) return value;
        await new Promise((resolve) => setTimeout(resolve, 50));
    }
    throw new Error(`waited ${seconds} s for ${what}`);
}

/** One Firefox with a profile and a page of its own. */
export class Firefox {
    lastNumber = 0;
    waiting = new Map();
    received = Buffer.alloc(0);

    static async start() {
        const firefox = new Firefox();
        firefox.profile = await mkdtemp(path.join(os.tmpdir(), 'gx-firefox-'));
        const lines = Object.entries(preferences).map(([name, value]) => `user_pref(${JSON.stringify(name)}, ${JSON.stringify(value)});\n`);
        await writeFile(path.join(firefox.profile, 'user.js'), lines.join(''));
        firefox.process = spawn(
            program,
            ['--headless', '--marionette', '--remote-allow-system-access', '--no-remote', '--profile', firefox.profile],
            {
                stdio: 'ignore',
                env: { ...process.env, HOME: firefox.profile },
            },
        );
        try {
            const file = path.join(firefox.profile, 'MarionetteActivePort');
            const port = await until(async () => existsSync(file) && Number(await readFile(file, 'utf8')), 'Firefox');
            await firefox.connect(port);
        } catch (reason) {
            await firefox.stop();
            throw reason;
        }
        return firefox;
    }

    async connect(port) {
        this.socket = net.connect(port, '127.0.0.1');
        this.socket.on('data', (bytes) => this.receive(bytes));
        await new Promise((resolve, reject) => {
            this.greet = resolve;
            this.socket.once('error', reject);
        });
        await this.send('WebDriver:NewSession', { capabilities: {} });
        await this.send('WebDriver:SetWindowRect', { width: 800, height: 900 });
    }

    receive(bytes) {
        this.received = Buffer.concat([this.received, bytes]);
        for (;;) {
            const colon = this.received.indexOf(':');
            if (colon < 0) return;
            const end = colon + 1 + Number(this.received.subarray(0, colon).toString());
            if (this.received.length < end) return;
            const message = JSON.parse(this.received.subarray(colon + 1, end).toString());
            this.received = this.received.subarray(end);
            if (!Array.isArray(message)) {
                this.greet();
                continue;
            }
            const [, number, error, result] = message;
            const { resolve, reject } = this.waiting.get(number);
            this.waiting.delete(number);
            if (error) reject(new Error(`${error.error}: ${error.message}`));
            else resolve(result);
        }
    }

    send(name, parameters = {}) {
        this.lastNumber += 1;
        const text = JSON.stringify([0, this.lastNumber, name, parameters]);
        this.socket.write(`${Buffer.byteLength(text)}:${text}`);
        return new Promise((resolve, reject) => this.waiting.set(this.lastNumber, { resolve, reject }));
    }

    open(url) {
        return this.send('WebDriver:Navigate', { url });
    }

    /** Runs a function in the page, which may be asynchronous, and returns its result. */
    async run(work, ...values) {
        const script = `const done = arguments[arguments.length - 1];
            Promise.resolve((${work})(...Array.prototype.slice.call(arguments, 0, -1))).then(
                (value) => done({ value: value === undefined ? null : value }), (reason) => done({ thrown: String(reason) }));`;
        const { value } = await this.send('WebDriver:ExecuteAsyncScript', { script, args: values, sandbox: null, newSandbox: true });
        if (value.thrown) throw new Error(value.thrown);
        return value.value;
    }

    /** The browser's own zoom of the page. */
    async zoom(factor) {
        await this.send('Marionette:SetContext', { value: 'chrome' });
        const script = `window.gBrowser.selectedBrowser.browsingContext.fullZoom = arguments[0]`;
        await this.send('WebDriver:ExecuteScript', { script, args: [factor] });
        await this.send('Marionette:SetContext', { value: 'content' });
        // The page gets it later, and lays itself out in the frames after that.
        await this.run(async (ratio) => {
            const frame = () => new Promise((resolve) => requestAnimationFrame(resolve));
            while (Math.abs(globalThis.devicePixelRatio - ratio) > 0.01) await frame();
            for (let frames = 0; frames < 10; frames += 1) await frame();
        }, factor);
    }

    perform(...actions) {
        return this.send('WebDriver:PerformActions', {
            actions: actions.map((action, i) => ({ id: `${action.type} ${action.parameters?.pointerType} ${i}`, ...action })),
        });
    }

    /** Presses keys one after the other. */
    press(...keys) {
        return this.perform({
            type: 'key',
            actions: keys.flatMap((value) => [
                { type: 'keyDown', value },
                { type: 'keyUp', value },
            ]),
        });
    }

    /** The way of a finger or of the mouse from one place up by so much, slow at its end. */
    static drag(pointerType, { x, y }, up) {
        const move = (share, duration = 20) => ({ type: 'pointerMove', x: Math.round(x), y: Math.round(y - up * share), duration });
        return {
            type: 'pointer',
            parameters: { pointerType },
            actions: [
                move(0, 0),
                { type: 'pointerDown', button: 0 },
                ...[0.2, 0.4, 0.6, 0.8, 1].map((share) => move(share)),
                { type: 'pause', duration: 200 },
                move(1),
                { type: 'pointerUp', button: 0 },
            ],
        };
    }

    async stop() {
        if (this.socket) {
            await Promise.race([
                this.send('Marionette:Quit', { flags: ['eForceQuit'] }).catch(() => undefined),
                new Promise((resolve) => setTimeout(resolve, 5000)),
            ]);
            this.socket.destroy();
        }
        if (this.process.exitCode === null) {
            const end = new Promise((resolve) => this.process.once('exit', resolve));
            this.process.kill();
            await end;
        }
        await rm(this.profile, { recursive: true, force: true, maxRetries: 5 });
    }
}
