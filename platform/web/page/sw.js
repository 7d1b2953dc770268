// Keeps the page and what it has fetched, so that it plays without a network.
const version = "{{VERSION}}";
const shellCache = "shell-" + version;
const dataCache = "data";
const shell = ["./", "index.html", "manifest.webmanifest", "{{DATEIEN}}"];

// What is named by its content never changes.
const isData = (path) => /\/(data|engine)\/[0-9a-f]{16}\./.test(path);

self.addEventListener("install", (event) => {
    event.waitUntil((async () => {
        const cache = await caches.open(shellCache);
        const data = await caches.open(dataCache);
        await Promise.all(shell.map(async (url) => {
            const to = isData("/" + url) ? data : cache;
            if (to === data && await data.match(url)) return;
            // What the page has just fetched need not be fetched twice.
            const response = await fetch(url, isData("/" + url) || url.startsWith("app/") ? {} : { cache: "no-cache" });
            if (!response.ok) throw new Error(url);
            await to.put(url, response);
        }));
        await self.skipWaiting();
    })());
});

self.addEventListener("activate", (event) => {
    event.waitUntil((async () => {
        const story = await (await caches.match(shell.find((url) => url.endsWith("/story.json")))).json();
        const wanted = new Set(Object.values(story.files).map((file) => file.u).concat(story.engine.u));
        const data = await caches.open(dataCache);
        for (const request of await data.keys()) {
            const path = new URL(request.url).pathname;
            if (![...wanted].some((url) => url && path.endsWith("/" + url))) await data.delete(request);
        }
        for (const name of await caches.keys())
            if (name.startsWith("shell-") && name !== shellCache) await caches.delete(name);
        await self.clients.claim();
    })());
});

async function answer(event) {
    const { request } = event;
    const url = new URL(request.url);
    const known = await caches.match(request, { ignoreVary: true });
    const fixed = isData(url.pathname) || url.pathname.includes("/app/");
    if (known && fixed) return known;
    try {
        const response = await fetch(request);
        if (response.ok && response.status === 200) {
            const store = isData(url.pathname) ? dataCache : url.pathname.includes("/cd") ? null : shellCache;
            const copy = response.clone();
            if (store) event.waitUntil(caches.open(store).then((cache) => cache.put(request, copy)));
        }
        return response;
    } catch (failure) {
        if (known) return known;
        throw failure;
    }
}

self.addEventListener("fetch", (event) => {
    const url = new URL(event.request.url);
    if (event.request.method !== "GET" || url.origin !== location.origin || event.request.headers.has("range")) return;
    event.respondWith(answer(event));
});
