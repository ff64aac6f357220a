// Where the tests find the sources, the built package and the tools that npm has installed.
import { createRequire } from 'node:module';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

export const root = fileURLToPath(new URL('../..', import.meta.url));

/** GX_WEB_PACKAGE names another build than that of `scripts/web build`. */
export const packageFolder = process.env.GX_WEB_PACKAGE ?? path.join(root, 'build/web/package');

/** Loads what is installed in hosts/web, such as `tools('playwright-core')`. */
export const tools = createRequire(path.join(root, 'hosts/web/package.json'));
