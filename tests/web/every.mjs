// Every element with a value of its own, and what its columns say to screen readers.
import { readFileSync } from 'node:fs';

/** `numbers` and `texts` of the columns; texts by language. */
export const table = JSON.parse(readFileSync(new URL('accessibility.json', import.meta.url), 'utf8'));

const icons = '<svg aria-label="one"></svg><svg aria-label="two"></svg>';
/** Attributes and content of each element. */
export const markup = {
    'gx-number-picker': ['value="42" aria-label="Repetitions"'],
    'gx-bpm-picker': ['value="140"'],
    'gx-calories-picker': ['value="420"'],
    'gx-distance-picker': ['value="5300"'],
    'gx-distance-and-duration-picker': ['distance="5300" duration="5100000"'],
    'gx-duration-picker': ['value="5100000"'],
    'gx-heart-rate-picker': ['average="142" maximum="171"'],
    'gx-height-picker': ['value="176"'],
    'gx-icon-picker': ['value="1"', icons],
    'gx-pace-picker': ['value="3.5087719298"'],
    'gx-speed-picker': ['value="3.5"'],
    'gx-temperature-picker': ['value="-5"'],
    'gx-weather-and-temperature-picker': ['weather="1" temperature="20"', icons],
    'gx-weight-picker': ['value="72.5" unit-selectable'],
    'gx-wheel': [''],
};

export const everyElement = (more = '') =>
    Object.entries(markup)
        .map(([name, [own, content = '']]) => `<${name} ${own} ${more}>${content}</${name}>`)
        .join('');
