// A small server for the folder of a page: node scripts/serve.mjs DIR [PORT]. Prints the address.
import { createReadStream, promises } from "node:fs";
import { createServer } from "node:http";
import path from "node:path";

const types = {
    ".html": "text/html; charset=utf-8", ".js": "text/javascript; charset=utf-8", ".mjs": "text/javascript; charset=utf-8",
    ".css": "text/css; charset=utf-8", ".json": "application/json", ".webmanifest": "application/manifest+json",
    ".svg": "image/svg+xml", ".png": "image/png", ".jpg": "image/jpeg", ".mp3": "audio/mpeg", ".wav": "audio/wav",
    ".webm": "video/webm", ".bin": "application/octet-stream",
};

// The file for a request below the first of these directories that has one.
async function fileFor(roots, url) {
    for (const root of roots) {
        let file = path.join(root, path.normalize(decodeURIComponent(new URL(url, "http://x").pathname)));
        if (!(file + path.sep).startsWith(root + path.sep)) continue;
        try {
            if ((await promises.stat(file)).isDirectory()) file = path.join(file, "index.html");
            return { file, size: (await promises.stat(file)).size };
        } catch {
            continue;
        }
    }
    throw new Error("not found");
}

// Resolves to the server once it listens; `onRequest(url, bytes)` is told of each file sent. Several directories lie one
// over the other, the first on top.
export function serve(directories, port = 0, onRequest = () => {}) {
    const roots = [directories].flat().map((directory) => path.resolve(directory));
    const server = createServer(async (request, response) => {
        try {
            const { file, size } = await fileFor(roots, request.url);
            onRequest(request.url, size);
            response.writeHead(200, {
                "Content-Type": types[path.extname(file).toLowerCase()] || "application/octet-stream",
                "Content-Length": size,
                "Cache-Control": /\/(data|engine|app)\//.test(request.url) ? "max-age=31536000, immutable" : "no-cache",
                "X-Content-Type-Options": "nosniff",
            });
            if (request.method === "HEAD") response.end();
            else createReadStream(file).pipe(response);
        } catch {
            response.writeHead(404).end();
        }
    });
    return new Promise((resolve, reject) => {
        server.on("error", reject);
        server.listen(port, "127.0.0.1", () => resolve(server));
    });
}

if (process.argv[1] === new URL(import.meta.url).pathname) {
    const server = await serve(process.argv[2], Number(process.argv[3] || 8000)).catch(() => serve(process.argv[2]));
    console.log(`http://localhost:${server.address().port}/`);
}
