// "Add workout" on a page: the pickers of the package, and what an application does with them.
import './gxuipickers/asset.js';

const all = (selector, root = document) => [...root.querySelectorAll(selector)];
const one = (selector, root = document) => root.querySelector(selector);
const rightToLeft = ['ar', 'he'];

// What stays when the page is left; a browser may forbid it.
const keep = (key, value) => {
    try {
        localStorage.setItem(key, JSON.stringify(value));
    } catch {
        // Then it does not stay.
    }
};
const kept = (key) => {
    try {
        return JSON.parse(localStorage.getItem(key)) ?? {};
    } catch {
        return {};
    }
};

// Texts: the English one is the key.
const languages = await (await fetch('texts/index.json')).json();
let texts = {};
/** The language that was chosen last, and the one that is shown, which follows it. */
let chosenLanguage, shownLanguage;
const text = (english, name = '') => (texts[english] ?? english).replace('{0}', name);

async function showLanguage(language) {
    chosenLanguage = language;
    if (language === shownLanguage) return;
    const loaded = await (await fetch(`texts/${language}.json`)).json();
    if (language !== chosenLanguage) return; // Another one was chosen meanwhile.
    texts = loaded;
    shownLanguage = language;
    document.documentElement.lang = language;
    document.documentElement.dir = rightToLeft.includes(language) ? 'rtl' : 'ltr';
    for (const node of all('[data-text]')) node.textContent = text(node.dataset.text);
    for (const image of all('img')) image.alt = text((image.dataset.alt ??= image.alt));
    for (const row of all('details')) picker(row).ariaLabel = text(one('[data-text]', row).dataset.text);
    one('#element').ariaLabel = text('All pickers');
    one('#file').ariaLabel = text('Open a workout');
}

/** A new element with these properties, and what is in it. */
const make = (name, properties = {}, ...content) => {
    const element = Object.assign(document.createElement(name), properties);
    element.append(...content);
    return element;
};
const named = (english) => {
    const span = make('span');
    span.dataset.text = english;
    return span;
};

// The workout: each row is a picker, which knows its value, its limits and how it is written.
const picker = (row) => row.lastElementChild;
const rows = all('[data-row]').map((element, i) => {
    const row = make('details', { name: 'row', open: i === 0 });
    element.replaceWith(row);
    row.append(make('summary', {}, named(element.dataset.row), make('span', { className: 'value' })), element);
    return row;
});
const weathers = 'clear partly-cloudy cloudy overcast fog drizzle rain showers thunderstorm sleet snow wind'.split(' ');
const icons = weathers.map((name) => make('img', { width: 48, height: 48, src: `weather.svg#${name}`, alt: name.replace('-', ' ') }));
one('gx-weather-and-temperature-picker').append(...icons);
const format = { format: 'GXUIPickers workout', version: 1 };

/** [name in a file, its element, its property] of each number. */
const numbers = rows.flatMap((row) => {
    const names = picker(row).dataset.file.split(' ');
    const properties = { averageHeartRate: 'average', maximumHeartRate: 'maximum' };
    return names.map((name) => [name, picker(row), names.length > 1 ? (properties[name] ?? name) : 'value']);
});

const workout = () =>
    Object.fromEntries(
        numbers.map(([name, element, property]) => [name, name === 'weather' ? weathers[element.weather] : element[property]]),
    );

/** Shows a workout whose every number is there; else says what is wrong and changes nothing. */
function showWorkout({ format: kind, version, workout: values }) {
    if (kind !== format.format) throw text('This file is no workout.');
    if (!(version >= 1)) throw text('This file is damaged.');
    if (version > format.version) throw text('This workout was saved by a newer version of this application.');
    if (typeof values !== 'object' || values === null) throw text('This file is damaged.');
    if (!weathers.includes(values.weather)) throw text('The file names no weather that this application knows.');
    for (const [name] of numbers)
        if (name !== 'weather' && typeof values[name] !== 'number') throw text('The file has no number for: {0}.', name);
    for (const [name, element, property] of numbers)
        element[property] = name === 'weather' ? weathers.indexOf(values.weather) : values[name];
}

// A picker tells when its text is another: by the user, a unit, or a language that has arrived.
for (const row of rows) {
    const show = () => (one('.value', row).textContent = picker(row).valueText);
    picker(row).addEventListener('gx-text', show);
    show();
}
one('.rows').addEventListener('change', () => keep('workout', { ...format, workout: workout() }));

// In the wide layout one row is always open.
const isWide = () => getComputedStyle(one('nav strong')).display !== 'none';
for (const row of rows)
    one('summary', row).addEventListener('click', (event) => {
        if (row.open && isWide()) event.preventDefault();
    });

// Files: the same as those of the desktop's gallery.
one('#save').addEventListener('click', () => {
    const url = URL.createObjectURL(
        new Blob([`${JSON.stringify({ ...format, workout: workout() }, null, 2)}\n`], { type: 'application/json' }),
    );
    make('a', { href: url, download: 'workout.json' }).click();
    setTimeout(() => URL.revokeObjectURL(url), 60_000);
    one('#status').value = text('Saved: {0}', 'workout.json');
});
one('#open').addEventListener('click', () => one('#file').click());
one('#file').addEventListener('change', async ({ target }) => {
    const [file] = target.files;
    if (!file) return;
    try {
        const read = await file
            .text()
            .then(JSON.parse)
            .catch(() => Promise.reject(text('This file is damaged, or no workout.')));
        showWorkout(read ?? {});
        keep('workout', { ...format, workout: workout() });
        one('#status').value = text('Opened: {0}', file.name);
    } catch (reason) {
        one('#status').value = String(reason);
    }
    target.value = '';
});

// Settings
let audio;
function click() {
    audio ??= new AudioContext();
    const [sound, volume] = [audio.createOscillator(), audio.createGain()];
    sound.frequency.value = 1800;
    volume.gain.setValueAtTime(0.06, audio.currentTime);
    volume.gain.exponentialRampToValueAtTime(0.0001, audio.currentTime + 0.02);
    sound.connect(volume).connect(audio.destination);
    sound.start();
    sound.stop(audio.currentTime + 0.02);
}

/** [a setting's text, its name, the texts of its values]; the first one holds at the start. */
const settings = [
    ['Units', 'unit', { metric: 'Metric', imperial: 'Imperial' }],
    ['Weight', 'weight', { kg: 'Kilograms', lb: 'Pounds', st: 'Stones' }],
    ['Look', 'look', { 'light dark': 'System', light: 'Light', dark: 'Dark' }],
    ['Wheel clicks', 'clicks', { on: 'On', off: 'Off' }],
];
const choices = one('#choices');
choices.prepend(
    ...settings.map(([title, name, values]) =>
        make(
            'fieldset',
            {},
            make('legend', {}, named(title)),
            ...Object.entries(values).map(([value, label], i) =>
                make('label', {}, make('input', { type: 'radio', name, value, checked: i === 0 }), named(label)),
            ),
        ),
    ),
);
for (const code of languages) choices.language.add(new Option(new Intl.DisplayNames(code, { type: 'language' }).of(code), code));
for (const element of rows.map(picker)) element.addEventListener('gx-tick', click);

async function applySettings() {
    const { unit, weight, look, clicks, size, language } = Object.fromEntries(new FormData(choices));
    document.documentElement.style.colorScheme = look;
    document.documentElement.style.fontSize = `${size}%`;
    for (const element of rows.map(picker)) {
        if ('unit' in element) element.unit = element.localName === 'gx-weight-picker' ? weight : unit;
        element.toggleAttribute('ticks', clicks === 'on');
    }
    await showLanguage(language);
}
choices.addEventListener('input', () => {
    keep('settings', Object.fromEntries(new FormData(choices)));
    applySettings();
});

// All pickers, with every option that the package's manifest lists.
const { modules } = await (await fetch('gxuipickers/custom-elements.json')).json();
const declarations = modules[0].declarations;
const bench = one('#element');
for (const { tagName } of declarations) bench.add(new Option(tagName));

function controlOf({ type }) {
    const words = [...type.text.matchAll(/'([^']+)'/g)].map(([, word]) => word);
    if (words.length > 0) return make('select', {}, ...['', ...words].map((word) => new Option(word)));
    return make('input', type.text === 'boolean' ? { type: 'checkbox' } : { type: 'number', step: 'any' });
}

function showElement() {
    const { tagName, description, attributes } = declarations.find((each) => each.tagName === bench.value);
    const shown = make(tagName, { ariaLabel: tagName });
    if (/icon|weather/.test(tagName)) shown.append(...icons.map((icon) => icon.cloneNode()));
    if (tagName === 'gx-wheel')
        shown.columns = [
            {
                label: 'month',
                rows: Array.from({ length: 12 }, (_, month) =>
                    new Date(2000, month).toLocaleString(document.documentElement.lang, { month: 'long' }),
                ),
            },
            { label: 'number', rows: 1e9 },
        ];
    const note = (event) => {
        const values = attributes.filter(({ name }) =>
            ['value', 'average', 'maximum', 'distance', 'duration', 'weather', 'temperature'].includes(name),
        );
        const texts =
            tagName === 'gx-wheel' ? [`rows = ${shown.rows}`] : values.map(({ fieldName }) => `${fieldName} = ${shown[fieldName]}`);
        const line = make('li', { textContent: `${event.type}: ${texts.join(', ')}` });
        one('#log').prepend(line);
        for (const old of all('#log li').slice(50)) old.remove();
    };
    for (const type of ['input', 'change', 'gx-tick']) shown.addEventListener(type, note);
    one('#log').replaceChildren(make('li', { textContent: text('Nothing yet: turn the wheel.'), dir: 'auto' }));

    const showMarkup = () => {
        const shell = shown.cloneNode();
        shell.removeAttribute('aria-label');
        one('#markup').textContent = shell.outerHTML.replaceAll('=""', '');
    };
    const controls = attributes
        .filter(({ name }) => !['name', 'lang', 'aria-label'].includes(name))
        .map((attribute) => {
            const control = controlOf(attribute);
            control.addEventListener('input', () => {
                if (control.type === 'checkbox') shown.toggleAttribute(attribute.name, control.checked);
                else if (control.value === '') shown.removeAttribute(attribute.name);
                else shown.setAttribute(attribute.name, control.value);
                showMarkup();
            });
            const about = make('small', {}, attribute.description.replaceAll('`', ''));
            return make('label', {}, make('code', {}, attribute.name), control, about);
        });
    one('#attributes').replaceChildren(make('p', {}, description.replaceAll('`', '')), ...controls);
    one('#place').replaceChildren(shown);
    showMarkup();
}
bench.addEventListener('change', showElement);

// Pages
function showPage() {
    const asked = one('main > section' + (location.hash || '#workout')) ?? one('#workout');
    for (const section of all('main > section')) section.hidden = section !== asked;
    for (const link of all('nav a')) {
        if (link.hash === `#${asked.id}`) link.setAttribute('aria-current', 'page');
        else link.removeAttribute('aria-current');
    }
    document.title = `${one('h1', asked).textContent} – GXUIPickers`;
    if (asked.id === 'pickers' && !one('#place').firstElementChild) showElement();
    scrollTo(0, 0);
}
addEventListener('hashchange', showPage);

// The start: what was kept, or the browser's language.
const wanted = navigator.languages.map((tag) => languages.find((code) => code.split('-')[0] === tag.split('-')[0]));
for (const [name, value] of Object.entries({ language: wanted.find(Boolean) ?? 'en', clicks: 'off', ...kept('settings') }))
    choices[name].value = value;
await applySettings();
try {
    showWorkout(kept('workout'));
} catch {
    // There is none yet.
}
showPage();
