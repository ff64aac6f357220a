// The elements of this project.
import 'gxuipickers';
import { columns, first, report, rows, stage } from './asked.mjs';

const wheel = document.createElement('gx-wheel');
wheel.columns = Array.from({ length: columns }, () => ({ rows }));
wheel.rows = Array.from({ length: columns }, () => first);
wheel.addEventListener('change', () => wheel.rows.forEach((row, column) => report(column, row)));
stage.append(wheel);
