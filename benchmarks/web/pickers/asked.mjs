// What a page shows, by its address: ?columns=3&rows=100. Rows are the numbers from 0, and the
// middle one is selected at the start. `report(column, row)` notes a selected row for the driver.
const query = new URLSearchParams(location.search);

export const columns = Number(query.get('columns') ?? 3);
export const rows = Number(query.get('rows') ?? 100);
export const first = Math.floor(rows / 2);
export const stage = document.getElementById('stage');
export const titles = () => Array.from({ length: rows }, (_, row) => String(row));
export const names = Array.from({ length: columns }, (_, column) => `column${column}`);

globalThis.selectedRows = Array.from({ length: columns }, () => first);
export const report = (column, row) => (globalThis.selectedRows[column] = Number(row));
