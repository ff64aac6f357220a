// What the scripts of the browser's host, its tools and its tests are checked for: scripts/web lint
import eslint from '@eslint/js';
import { fileURLToPath } from 'node:url';
import typescript from 'typescript-eslint';

const folder = fileURLToPath(new URL('.', import.meta.url));

export default typescript.config(
    { ignores: ['**/node_modules/', 'build/'] },
    eslint.configs.recommended,
    {
        files: ['**/*.ts'],
        ignores: ['**/*.d.ts'],
        extends: [typescript.configs.strictTypeChecked, typescript.configs.stylisticTypeChecked],
        languageOptions: { parserOptions: { project: `${folder}tsconfig.json` } },
        rules: {
            // Elements of an array whose length is known.
            '@typescript-eslint/no-non-null-assertion': 'off',
            // A number in a text needs no conversion.
            '@typescript-eslint/restrict-template-expressions': ['error', { allowNumber: true }],
            // Calls that return nothing are handed on as they are.
            '@typescript-eslint/no-confusing-void-expression': 'off',
            // What a class may override, and what stands for a class where there is no DOM.
            '@typescript-eslint/no-empty-function': ['error', { allow: ['methods'] }],
            '@typescript-eslint/no-extraneous-class': ['error', { allowEmpty: true }],
            '@typescript-eslint/no-unused-vars': ['error', { argsIgnorePattern: '^_' }],
        },
    },
    {
        files: ['**/*.mjs', 'gallery/web/*.js'],
        languageOptions: {
            globals: Object.fromEntries(
                [
                    // Of node.
                    ...['process', 'console', 'URL', 'Buffer', 'setTimeout', 'clearTimeout', 'setInterval', 'performance', 'fetch'],
                    // Of the page, in functions that run there.
                    ...['document', 'window', 'location', 'history', 'navigator', 'customElements', 'getComputedStyle'],
                    ...['requestAnimationFrame', 'dispatchEvent', 'addEventListener', 'matchMedia', 'scrollTo', 'scrollY'],
                    ...['Event', 'CustomEvent', 'WheelEvent', 'PointerEvent', 'KeyboardEvent', 'FormData', 'FontFace'],
                    ...['MutationObserver', 'WebAssembly', 'Response', 'Node', 'URLSearchParams'],
                    // Of the gallery's page.
                    ...['localStorage', 'Blob', 'AudioContext', 'OscillatorNode', 'GainNode', 'Option'],
                ].map((name) => [name, 'readonly']),
            ),
        },
        rules: { eqeqeq: 'error', 'prefer-const': 'error', 'no-var': 'error' },
    },
);
