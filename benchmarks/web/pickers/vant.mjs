import { createApp, h, ref } from 'vue';
import { Picker } from 'vant';
import 'vant/es/style/base.css';
import 'vant/es/picker/index.css';
import './vant.css';
import { columns, first, names, report, stage, titles } from './asked.mjs';

const options = titles().map((title, row) => ({ text: title, value: row }));
const selected = ref(names.map(() => first));
createApp({
    render: () =>
        h(Picker, {
            columns: Array.from({ length: columns }, () => options),
            modelValue: selected.value,
            'onUpdate:modelValue': (values) => {
                selected.value = values;
                values.forEach((row, column) => report(column, row));
            },
            showToolbar: false,
            optionHeight: 40,
            visibleOptionNum: 5,
        }),
}).mount(stage);
