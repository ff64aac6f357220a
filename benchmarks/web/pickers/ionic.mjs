import { initialize } from '@ionic/core/components';
import { defineCustomElement as definePicker } from '@ionic/core/components/ion-picker.js';
import { defineCustomElement as defineColumn } from '@ionic/core/components/ion-picker-column.js';
import { defineCustomElement as defineOption } from '@ionic/core/components/ion-picker-column-option.js';
import '@ionic/core/css/core.css';
import './ionic.css';
import { first, names, report, stage, titles } from './asked.mjs';

initialize({ mode: 'ios' });
definePicker();
defineColumn();
defineOption();
const picker = document.createElement('ion-picker');
const all = titles();
names.forEach((_, index) => {
    const column = document.createElement('ion-picker-column');
    column.value = first;
    column.append(
        ...all.map((title, row) => {
            const option = document.createElement('ion-picker-column-option');
            option.value = row;
            option.textContent = title;
            return option;
        }),
    );
    column.addEventListener('ionChange', (event) => report(index, event.detail.value));
    picker.append(column);
});
stage.append(picker);
