// The search: finds pages, headings, classes and members by their names, as one types.
'use strict';

const field = document.getElementById('search');
const found = document.getElementById('found');
const root = document.querySelector('script[data-root]').dataset.root;

/** The smaller, the better it fits; Infinity if it does not. */
function rank(name, typed) {
    const lower = name.toLowerCase();
    if (lower === typed) return 0;
    if (lower.startsWith(typed) || lower.startsWith('gx' + typed)) return 1 + name.length / 1000;
    const at = lower.indexOf(typed);
    return at < 0 ? Infinity : 2 + at / 100 + name.length / 1000;
}

function search() {
    const typed = field.value.trim().toLowerCase();
    found.replaceChildren();
    if (typed === '') {
        found.hidden = true;
        return;
    }
    const hits = (window.searchIndex || [])
        .map(([name, place, summary]) => ({ name, place, summary, rank: rank(name, typed) }))
        .filter((hit) => hit.rank < Infinity)
        .sort((one, other) => one.rank - other.rank)
        .slice(0, 12);
    for (const hit of hits) {
        const link = document.createElement('a');
        link.href = `${root}/${hit.place}`;
        const name = document.createElement('strong');
        name.textContent = hit.name;
        const summary = document.createElement('span');
        summary.textContent = hit.summary;
        link.append(name, summary);
        const item = document.createElement('li');
        item.append(link);
        found.append(item);
    }
    if (hits.length === 0) {
        const item = document.createElement('li');
        item.textContent = 'Nothing found';
        found.append(item);
    }
    found.hidden = false;
}

field.addEventListener('input', search);
field.form.addEventListener('submit', (event) => {
    event.preventDefault();
    found.querySelector('a')?.click();
});
document.addEventListener('keydown', (event) => {
    const links = [...found.querySelectorAll('a')];
    const at = links.indexOf(document.activeElement);
    if (event.key === 'Escape') {
        found.hidden = true;
    } else if (event.key === '/' && !/^(INPUT|TEXTAREA)$/.test(document.activeElement.tagName)) {
        event.preventDefault();
        field.focus();
    } else if (event.key === 'ArrowDown' && !found.hidden && (at >= 0 || document.activeElement === field)) {
        event.preventDefault();
        links[Math.min(at + 1, links.length - 1)]?.focus();
    } else if (event.key === 'ArrowUp' && at >= 0) {
        event.preventDefault();
        (links[at - 1] ?? field).focus();
    }
});
document.addEventListener('click', (event) => {
    if (!field.form.contains(event.target)) found.hidden = true;
});

// On a narrow screen the list of pages is folded away.
const pages = document.querySelector('.side details');
if (pages && window.matchMedia('(max-width: 60rem)').matches) pages.open = false;
document.querySelector('.side [aria-current]')?.scrollIntoView({ block: 'center' });
window.scrollTo(0, window.location.hash ? window.scrollY : 0);
