// Serves folders on the loopback address, for tests and for trying things:
// startServer({ folders: { '/': FOLDER } }).
import { createServer } from 'node:http';
import { readFile } from 'node:fs/promises';
import path from 'node:path';

const types = {
    '.html': 'text/html; charset=utf-8',
    '.js': 'text/javascript',
    '.mjs': 'text/javascript',
    '.wasm': 'application/wasm',
    '.css': 'text/css',
    '.json': 'application/json',
    '.map': 'application/json',
    '.svg': 'image/svg+xml',
};

/**
 * Returns its address and how to stop it. `headers` go with every response; `pages` are texts by
 * their paths.
 */
export async function startServer({ folders, pages = {}, headers = {}, port = 0 }) {
    const server = createServer(async (request, response) => {
        const url = new URL(request.url, 'http://localhost');
        const page = pages[url.pathname];
        try {
            if (page !== undefined) {
                const { body, headers: own = {} } = typeof page === 'string' ? { body: page } : page;
                response.writeHead(200, { 'content-type': types['.html'], ...headers, ...own });
                response.end(body);
                return;
            }
            const prefix = Object.keys(folders)
                .filter((name) => url.pathname.startsWith(name))
                .sort((one, other) => other.length - one.length)[0];
            if (prefix === undefined) throw new Error('no such folder');
            const folder = path.resolve(folders[prefix]);
            const file = path.resolve(folder, '.' + path.posix.normalize('/' + decodeURIComponent(url.pathname.slice(prefix.length))));
            if (file !== folder && !file.startsWith(folder + path.sep)) throw new Error('outside of the folder');
            const name = url.pathname.endsWith('/') ? path.join(file, 'index.html') : file;
            const body = await readFile(name);
            response.writeHead(200, {
                'content-type': types[path.extname(name)] ?? 'application/octet-stream',
                'cache-control': 'no-store',
                ...headers,
            });
            response.end(body);
        } catch {
            response.writeHead(404, { 'content-type': 'text/plain' });
            response.end('not found');
        }
    });
    await new Promise((resolve, reject) => {
        server.once('error', reject); // Such as a port that is taken.
        server.listen(port, '127.0.0.1', resolve);
    });
    return {
        address: `http://127.0.0.1:${server.address().port}`,
        stop: () =>
            new Promise((resolve) => {
                server.close(resolve);
                server.closeAllConnections();
            }),
    };
}
