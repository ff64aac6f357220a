import { createElement } from 'react';
import { createRoot } from 'react-dom/client';
import { WheelPicker, WheelPickerWrapper } from '@ncdai/react-wheel-picker';
import '@ncdai/react-wheel-picker/style.css';
import './react-wheel-picker.css';
import { first, names, report, stage, titles } from './asked.mjs';

const options = titles().map((label, value) => ({ label, value }));
const wheel = (name, column) =>
    createElement(WheelPicker, {
        key: name,
        options,
        defaultValue: first,
        onValueChange: (row) => report(column, row),
        optionItemHeight: 40,
        // A ring of 16 rows is 203 high, the nearest to 216 that it offers.
        visibleCount: 16,
    });
createRoot(stage).render(createElement(WheelPickerWrapper, null, ...names.map(wheel)));
