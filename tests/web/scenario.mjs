// Plays scenarios of tests/scenarios on a page. `playScenarios` is handed to the page as it is, so
// it uses nothing outside of itself.

/**
 * Returns for each scenario its states, as tests/scenarios/README.md describes them, or what went
 * wrong. The page has loaded the elements' script from the same address.
 */
export async function playScenarios({ scenarios, script }) {
    const { HandClock, setFrameClock } = await import(script);
    const start = 1000;
    const frameTime = 1 / 60;
    const values = {
        'distance-and-duration': ['unit', 'distance', 'duration'],
        'heart-rate': ['average', 'maximum'],
        'weather-and-temperature': ['unit', 'weather', 'temperature'],
        wheel: ['rows'],
    };
    const withUnit = ['distance', 'height', 'pace', 'speed', 'temperature', 'weight'];
    // The pause that ends a stroke is a timer; it goes by the same clock.
    const timers = new Map();
    const own = { setTimeout: globalThis.setTimeout, clearTimeout: globalThis.clearTimeout };

    class Run {
        constructor(scenario) {
            this.scenario = scenario;
            this.names = values[scenario.picker] ?? (withUnit.includes(scenario.picker) ? ['unit', 'value'] : ['value']);
            this.clock = new HandClock(start);
            setFrameClock(this.clock);
            let last = 0;
            globalThis.setTimeout = (callback, milliseconds = 0) => {
                last += 1;
                timers.set(last, { callback, time: this.clock.now() + milliseconds / 1000 });
                return last;
            };
            globalThis.clearTimeout = (timer) => timers.delete(timer);
            this.forget();
            this.make();
        }

        make() {
            const { picker, options = {}, size, language, direction } = this.scenario;
            const element = document.createElement(picker === 'wheel' ? 'gx-wheel' : `gx-${picker}-picker`);
            element.style.width = `${size[0]}px`;
            element.style.height = `${size[1]}px`;
            element.setAttribute('name', 'picked');
            element.setAttribute('ticks', '');
            if (language) element.setAttribute('lang', language);
            if (direction) element.setAttribute('dir', direction);
            for (const label of options.icons ?? []) {
                const icon = document.createElementNS('http://www.w3.org/2000/svg', 'svg');
                icon.setAttribute('aria-label', label);
                element.append(icon);
            }
            for (const [name, value] of Object.entries(options)) {
                if (name === 'columns' || name === 'rows') element[name] = value;
                else if (typeof value === 'boolean') element.toggleAttribute(name, value);
                else if (name !== 'icons') element.setAttribute(name, String(value));
            }
            let passed = 0;
            element.addEventListener('gx-tick', () => (passed += 1));
            element.addEventListener('input', () => {
                this.inputs += 1;
                this.rows += passed;
                this.moments += passed * (this.clock.now() - start);
                passed = 0;
            });
            element.addEventListener('change', () => this.changes.push([this.clock.now() - start, this.submitted()]));
            this.element = element;
            this.form = document.createElement('form');
            this.form.append(element);
            document.body.append(this.form);
        }

        forget() {
            this.inputs = 0;
            this.rows = 0;
            this.moments = 0;
            this.changes = [];
        }

        get columns() {
            return [...this.element.shadowRoot.querySelectorAll('.column')].filter((node) => node.style.display !== 'none');
        }

        /** What the form would send, which never is what only passes the indicator. */
        submitted() {
            const data = new FormData(this.form);
            const number = (name) => Number(data.get(this.names.length > 1 && !this.names.includes('value') ? `picked-${name}` : 'picked'));
            return Object.fromEntries(
                this.names.map((name) => [name, name === 'unit' || name === 'rows' ? this.element[name] : number(name)]),
            );
        }

        place(column, points) {
            const { style } = this.columns[column];
            const number = (name) => Number.parseFloat(style[name]);
            const box = this.element.getBoundingClientRect();
            return {
                clientX: box.left + Math.floor(number('left') + number('width') / 2),
                clientY: box.top + Math.floor(number('top') + number('height') / 2) + points,
            };
        }

        dispatch(column, event) {
            this.columns[column].dispatchEvent(event);
        }

        touch(type, finger, column, points) {
            const init = {
                pointerId: finger,
                pointerType: 'touch',
                bubbles: true,
                composed: true,
                cancelable: true,
                ...this.place(column, points),
            };
            this.dispatch(column, new PointerEvent(type, init));
        }

        frame(seconds) {
            this.clock.step(seconds);
            for (const [timer, { callback, time }] of [...timers]) {
                // Timers count milliseconds, and the clock's sums are off by a little.
                if (time > this.clock.now() + 1e-9) continue;
                timers.delete(timer);
                callback();
            }
        }

        wait(seconds) {
            const end = this.clock.now() + seconds;
            while (this.clock.now() + frameTime < end) this.frame(frameTime);
            this.frame(end - this.clock.now());
        }

        key(init) {
            const target = this.element.shadowRoot.activeElement ?? this.columns[0];
            target.dispatchEvent(new KeyboardEvent('keydown', { bubbles: true, composed: true, cancelable: true, ...init }));
        }

        step([name, ...given]) {
            switch (name) {
                case 'down':
                case 'move':
                case 'up':
                    return this.touch(`pointer${name}`, ...given);
                case 'cancel':
                    return this.touch('pointercancel', given[0], 0, 0);
                case 'glide': {
                    const [finger, column, from, to, parts, time] = given;
                    for (let i = 1; i <= parts; i += 1) {
                        this.wait(time);
                        this.touch('pointermove', finger, column, from + ((to - from) * i) / parts);
                    }
                    return undefined;
                }
                case 'notches': {
                    const lines = given[1] * 3;
                    return this.dispatch(
                        given[0],
                        new WheelEvent('wheel', {
                            deltaY: lines,
                            deltaMode: WheelEvent.DOM_DELTA_LINE,
                            bubbles: true,
                            composed: true,
                            cancelable: true,
                            ...this.place(given[0], 0),
                        }),
                    );
                }
                case 'points':
                    this.dispatch(
                        given[0],
                        new WheelEvent('wheel', {
                            deltaY: given[1],
                            bubbles: true,
                            composed: true,
                            cancelable: true,
                            ...this.place(given[0], 0),
                        }),
                    );
                    return this.wait(0.12);
                case 'key':
                    return this.key({ key: given[0], repeat: given[1] === 'repeat' });
                case 'type':
                    for (const key of given[0]) {
                        this.key({ key });
                        this.frame(frameTime);
                    }
                    return undefined;
                case 'focus':
                    return this.columns[given[0]].focus({ focusVisible: true });
                case 'set': {
                    const property = given[0].replace(/-([a-z])/g, (_, letter) => letter.toUpperCase());
                    this.element[property] = given[1];
                    return undefined;
                }
                case 'finish':
                    return dispatchEvent(new Event('pagehide'));
                case 'wait':
                    return this.wait(given[0]);
                case 'expect':
                    return undefined; // The results that the desktop has met it with are compared.
                default:
                    throw new Error(`no such step: ${name}`);
            }
        }

        state() {
            const numbers = (node) =>
                ['now', 'min', 'max'].map((part) =>
                    node.hasAttribute(`aria-value${part}`) ? Number(node.getAttribute(`aria-value${part}`)) : null,
                );
            const found = {
                values: Object.fromEntries(this.names.map((name) => [name, this.element[name]])),
                text: this.element.valueText,
                columns: this.columns.map((node) => [...numbers(node), node.getAttribute('aria-valuetext') ?? '']),
                inputs: [this.inputs, this.rows, this.moments],
                changes: this.changes,
            };
            if (JSON.stringify(this.submitted()) !== JSON.stringify(found.values))
                throw new Error(`the form has ${JSON.stringify(this.submitted())}`);
            if (this.clock.isWaiting) throw new Error('a state is one of rest: wait longer');
            this.forget();
            return found;
        }

        play() {
            const states = [];
            // The columns are told to screen readers after the first frame.
            this.clock.step(0);
            this.clock.step(0);
            for (const step of this.scenario.steps) {
                if (step[0] === 'state') states.push(this.state());
                else this.step(step);
            }
            return states;
        }

        end() {
            this.form.remove();
            timers.clear();
            Object.assign(globalThis, own);
        }
    }

    // An element in another language shows itself once its texts are there.
    for (const language of new Set(scenarios.map((scenario) => scenario.language ?? 'en'))) {
        const first = document.createElement('gx-distance-picker');
        first.setAttribute('lang', language);
        document.body.append(first);
        while (!first.shadowRoot.querySelector('.isReady')) await new Promise((resolve) => requestAnimationFrame(resolve));
        first.remove();
    }
    const played = [];
    for (const scenario of scenarios) {
        const run = new Run(scenario);
        try {
            played.push({ states: run.play() });
        } catch (error) {
            played.push({ error: `${error}` });
        } finally {
            run.end();
        }
    }
    setFrameClock();
    return played;
}
