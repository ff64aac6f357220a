// Packs a file as gzip does, but smaller: node pack.mjs FILE PACKED
// What is packed within a script no server can pack better afterwards.
import { readFileSync, writeFileSync } from 'node:fs';
import zopfli from '@gfx/zopfli';

const [file, packed] = process.argv.slice(2);
// Chosen: further rounds save a few bytes only.
writeFileSync(packed, await zopfli.gzipAsync(readFileSync(file), { numiterations: 5 }));
