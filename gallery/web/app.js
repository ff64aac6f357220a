// "Add workout" on a page: the pickers of the package, and what an application does with them.
import './gxuipickers/asset.js';

const all = (selector, root = document) => [...root.querySelectorAll(selector)];
const one = (selector, root = document) => root.querySelector(selector);
const load = async (file) => (await fetch(file)).json();

/** A new element with these properties, and what is in it. */
function make(name, properties = {}, ...content) {
    const element = Object.assign(document.createElement(name), properties);
    element.append(...content);
    return element;
}

/** What is kept for the next visit, after `value` if there is one. A browser may forbid it. */
function kept(key, value) {
    try {
        if (value) localStorage.setItem(key, JSON.stringify(value));
        return JSON.parse(localStorage.getItem(key)) ?? {};
    } catch {
        return {};
    }
}

// The workout: each row is a picker, which knows its value, its limits and how it is written.
const weathers = 'clear partly-cloudy cloudy overcast fog drizzle rain showers thunderstorm sleet snow wind'.split(' ');
const icons = weathers.map((name) => make('img', { width: 48, height: 48, src: `weather.svg#${name}`, alt: name.replace('-', ' ') }));
one('gx-weather-and-temperature-picker').append(...icons);
const pickers = all('[data-file]');
for (const picker of pickers) {
    const title = make('span', { textContent: picker.ariaLabel });
    title.dataset.text = '';
    const value = make('span', { className: 'value' });
    const row = make('details', { name: 'row', open: picker === pickers[0] }, make('summary', {}, title, value));
    picker.replaceWith(row);
    row.append(picker);
    // A picker tells when its text is another: by the user, a unit, or a language that has arrived.
    const show = () => (value.textContent = picker.valueText);
    picker.addEventListener('gx-text', show);
    show();
}

// Languages: the page is in English, and its texts are the keys of the others.
const languages = await load('texts/index.json');
const places = [
    ...all('[data-text]').map((node) => [node, 'textContent']),
    ...all('main [aria-label]').map((node) => [node, 'ariaLabel']),
    ...icons.map((icon) => [icon, 'alt']),
].map(([node, property]) => [node, property, node[property]]);
let texts = {};
/** The language that was chosen last, and the one that is shown, which follows it. */
let chosenLanguage, shownLanguage;
const text = (english, name = '') => (texts[english] ?? english).replace('{0}', name);

async function showLanguage(language) {
    chosenLanguage = language;
    if (language === shownLanguage) return;
    const loaded = await load(`texts/${language}.json`);
    if (language !== chosenLanguage) return; // Another one was chosen meanwhile.
    texts = loaded;
    shownLanguage = document.documentElement.lang = language;
    document.documentElement.dir = ['ar', 'he'].includes(language) ? 'rtl' : 'ltr';
    for (const [node, property, english] of places) node[property] = text(english);
    one('#place').replaceChildren(); // Its months and icons have names in another language.
    showPage();
}

/** Each number of a file: the picker and its property, its name, and its range unless a weather. */
const numbers = pickers.flatMap((picker) => picker.dataset.file.split(' ').map((entry) => [picker, ...entry.split(':')]));
const format = 'GXUIPickers workout';
const workout = () => {
    const values = numbers.map(([picker, property, name]) => [name, property === 'weather' ? weathers[picker.weather] : picker[property]]);
    return { format, version: 1, workout: Object.fromEntries(values) };
};

/** Shows a workout that has every number within its range; else throws why not, for the user. */
function showWorkout({ format: kind, version, workout: values }) {
    if (kind !== format) throw text('This file is no workout.');
    if (!Number.isInteger(version) || version < 1) throw text('This file is damaged.');
    if (version > 1) throw text('This workout was saved by a newer version of this application.');
    if (typeof values !== 'object' || !values || Array.isArray(values)) throw text('This file is damaged.');
    for (const [, , name, lowest, highest] of numbers.filter(([, property]) => property !== 'weather')) {
        if (typeof values[name] !== 'number') throw text('The file has no number for: {0}.', name);
        if (values[name] < lowest || values[name] > highest) throw text('A number in the file is out of range: {0}.', name);
    }
    if (!weathers.includes(values.weather)) throw text('The file names no weather that this application knows.');
    for (const [picker, property, name] of numbers)
        picker[property] = property === 'weather' ? weathers.indexOf(values.weather) : values[name];
}

one('.rows').addEventListener('change', () => kept('workout', workout()));
// In the wide layout one row is always open.
one('.rows').addEventListener('click', (event) => {
    const isWide = getComputedStyle(one('nav strong')).display !== 'none';
    if (isWide && event.target.closest('details[open] > summary')) event.preventDefault();
});

// Files: the same as those of the desktop's gallery.
one('#save').addEventListener('click', () => {
    const url = URL.createObjectURL(new Blob([`${JSON.stringify(workout(), null, 2)}\n`], { type: 'application/json' }));
    make('a', { href: url, download: 'workout.json' }).click();
    setTimeout(() => URL.revokeObjectURL(url), 60_000);
    one('#status').value = text('Saved: {0}', 'workout.json');
});
one('#open').addEventListener('click', () => one('#file').click());
one('#file').addEventListener('change', async ({ target }) => {
    const [file] = target.files;
    if (!file) return;
    try {
        if (file.size > 2 ** 20) throw text('This file is no workout.');
        const read = await file
            .text()
            .then(JSON.parse)
            .catch(() => Promise.reject(text('This file is damaged, or no workout.')));
        showWorkout(read ?? {});
        kept('workout', workout());
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
    const [sound, volume] = [new OscillatorNode(audio, { frequency: 1800 }), new GainNode(audio, { gain: 0.06 })];
    volume.gain.exponentialRampToValueAtTime(0.0001, audio.currentTime + 0.02);
    sound.connect(volume).connect(audio.destination);
    sound.start();
    sound.stop(audio.currentTime + 0.02);
}

const choices = one('#choices');
for (const code of languages) {
    const name = new Intl.DisplayNames(code, { type: 'language' }).of(code);
    choices.language.add(make('option', { value: code, lang: code }, name));
}
for (const picker of pickers) picker.addEventListener('gx-tick', click);

async function applySettings() {
    const { unit, weight, look, clicks, size, language } = Object.fromEntries(new FormData(choices));
    document.documentElement.style.colorScheme = look;
    document.documentElement.style.fontSize = choices.size.ariaValueText = `${size}%`;
    for (const picker of pickers) {
        if ('unit' in picker) picker.unit = picker.localName === 'gx-weight-picker' ? weight : unit;
        picker.toggleAttribute('ticks', clicks === 'on');
    }
    await showLanguage(language);
}
choices.addEventListener('input', () => {
    kept('settings', Object.fromEntries(new FormData(choices)));
    applySettings();
});

// All pickers, with every option that the package's manifest lists.
const { modules } = await load('gxuipickers/custom-elements.json');
const { declarations } = modules[0];
const bench = one('#element');
for (const { tagName } of declarations) bench.add(new Option(tagName));

function controlOf({ type }) {
    const words = [...type.text.matchAll(/'([^']+)'/g)].map(([, word]) => new Option(word));
    if (words.length > 0) return make('select', {}, new Option(''), ...words);
    return make('input', type.text === 'boolean' ? { type: 'checkbox' } : { type: 'number', step: 'any' });
}

function showElement() {
    const { tagName, description, attributes } = declarations.find((each) => each.tagName === bench.value);
    const shown = make(tagName);
    if (/icon|weather/.test(tagName)) shown.append(...icons.map((icon) => icon.cloneNode()));
    const monthName = (month) => new Date(2000, month).toLocaleString(shownLanguage, { month: 'long' });
    const months = Array.from({ length: 12 }, (_, month) => monthName(month));
    if (tagName === 'gx-wheel')
        shown.columns = [
            { label: 'month', rows: months },
            { label: 'number', rows: 1e9 },
        ];
    shown.ariaLabel = tagName;
    const showMarkup = () => (one('#markup').textContent = shown.cloneNode().outerHTML.replace(/ aria-label="[^"]*"|=""/g, ''));

    const values = attributes
        .map(({ fieldName }) => fieldName)
        .filter((name) => /^(value|average|maximum|distance|duration|weather|temperature)$/.test(name));
    const note = ({ type }) => {
        const texts = (tagName === 'gx-wheel' ? ['rows'] : values).map((name) => `${name} = ${shown[name]}`);
        one('#log').prepend(make('li', { textContent: `${type}: ${texts.join(', ')}` }));
        one('#log li:nth-child(51)')?.remove();
    };
    for (const type of ['input', 'change', 'gx-tick']) shown.addEventListener(type, note);
    one('#log').replaceChildren(make('li', { textContent: text('Nothing yet: turn the wheel.'), dir: 'auto' }));

    const controls = attributes
        .filter(({ name }) => !['name', 'lang', 'aria-label'].includes(name))
        .map((attribute) => {
            const control = controlOf(attribute);
            control.addEventListener('input', () => {
                const value = control.type === 'checkbox' ? control.checked && '' : control.value || false;
                if (value === false) shown.removeAttribute(attribute.name);
                else shown.setAttribute(attribute.name, value);
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
    const sections = all('main > section');
    const asked = sections.find(({ id }) => location.hash === `#${id}`) ?? sections[0];
    for (const section of sections) section.hidden = section !== asked;
    for (const link of all('nav a')) link.ariaCurrent = link.hash === `#${asked.id}` ? 'page' : null;
    document.title = `${one('h1', asked).textContent} – GXUIPickers`;
    if (asked.id === 'pickers' && !one('#place').firstElementChild) showElement();
}
addEventListener('hashchange', () => {
    showPage();
    scrollTo(0, 0);
});

// The start: what was kept, or the browser's language.
const wanted = navigator.languages.map((tag) => languages.find((code) => code.split('-')[0] === tag.split('-')[0]));
for (const [name, value] of Object.entries({ language: wanted.find(Boolean) ?? 'en', ...kept('settings') })) choices[name].value = value;
await applySettings();
try {
    showWorkout(kept('workout'));
} catch {
    // There is none yet.
}
