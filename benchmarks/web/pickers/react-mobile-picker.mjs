import { createElement, useState } from 'react';
import { createRoot } from 'react-dom/client';
import Picker from 'react-mobile-picker';
import { first, names, report, stage, titles } from './asked.mjs';

const items = titles().map((title, row) => createElement(Picker.Item, { key: row, value: row }, title));

function Wheels() {
    const [value, setValue] = useState(Object.fromEntries(names.map((name) => [name, first])));
    const change = (values) => {
        setValue(values);
        names.forEach((name, column) => report(column, values[name]));
    };
    return createElement(
        Picker,
        { value, onChange: change, height: 216, itemHeight: 40 },
        ...names.map((name) => createElement(Picker.Column, { key: name, name }, items)),
    );
}
createRoot(stage).render(createElement(Wheels));
