// The scenarios of tests/scenarios through real elements, on a clock that the test moves. The
// desktop's results are in results.jsonl there; what the elements end in is compared with them,
// number by number.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { readdirSync, readFileSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { assertQuiet, Stage } from './stage.mjs';
import { playScenarios } from './scenario.mjs';

const folder = path.join(path.dirname(fileURLToPath(import.meta.url)), '../scenarios');
const scenarios = readdirSync(path.join(folder, 'lists')).flatMap((name) =>
    JSON.parse(readFileSync(path.join(folder, 'lists', name), 'utf8')),
);
const results = new Map(
    readFileSync(path.join(folder, 'results.jsonl'), 'utf8')
        .trim()
        .split('\n')
        .map((line) => JSON.parse(line))
        .map((result) => [result.name, result.states]),
);
const stage = new Stage();
const most = 10;

test('every scenario has a result of the desktop', () => {
    assert.ok(scenarios.length > 0);
    assert.deepEqual(scenarios.map(({ name }) => name).toSorted(), [...results.keys()].toSorted());
});

for (const reducedMotion of [false, true]) {
    const asked = scenarios.filter((scenario) => Boolean(scenario.reducedMotion) === reducedMotion);
    test(`${asked.length} scenarios end as on the desktop${reducedMotion ? ', with reduced motion' : ''}`, async () => {
        const context = { reducedMotion: reducedMotion ? 'reduce' : 'no-preference' };
        const { page, logs, close } = await stage.open('', { context });
        const played = await page.evaluate(playScenarios, { scenarios: asked, script: '/package/gxuipickers.js' });
        assert.equal(played.length, asked.length);
        const differing = [];
        for (const [i, { name }] of asked.entries()) {
            try {
                assert.equal(played[i].error, undefined);
                assert.deepEqual(played[i].states, results.get(name));
            } catch (error) {
                differing.push(`${name}\n${error.message}`);
            }
        }
        assert.equal(differing.length, 0, `${differing.length} of ${asked.length} differ:\n${differing.slice(0, most).join('\n')}`);
        assertQuiet(logs);
        await close();
    });
}
