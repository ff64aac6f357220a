// Serves a folder on the loopback address until it is ended: node serve.mjs FOLDER [PORT]
import { startServer } from './server.mjs';

const [folder, first = '8080'] = process.argv.slice(2);
const triedPorts = 20;

for (let port = Number(first); ; port += 1) {
    try {
        const { address, stop } = await startServer({ folders: { '/': folder }, port });
        console.log(`\nOpen ${address}/ in a browser. Ctrl-C ends it.`);
        for (const signal of ['SIGINT', 'SIGTERM']) process.on(signal, () => stop().then(() => process.exit(0)));
        break;
    } catch (reason) {
        if (reason.code !== 'EADDRINUSE' || port >= Number(first) + triedPorts) throw reason;
        console.log(`Port ${port} is taken.`);
    }
}
