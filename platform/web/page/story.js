// The files of the story: where they lie on the server, fetching them when the engine asks and a little before.
import { progress, toast } from "./look.js";

const parallel = 4;

export class Story {
    constructor(description, folder) {
        this.list = description;
        this.files = new Map(Object.entries(description.files));
        this.base = new URL(folder + "../../", location.href);
        this.running = new Map();  // path -> promise of its bytes
        this.waiting = [];
        this.busy = 0;
        this.fetched = new Set();
        this.failed = 0;
    }

    static async load(folder) {
        const response = await fetch(new URL(folder + "story.json", location.href));
        if (!response.ok) throw new Error("story.json");
        return new Story(await response.json(), folder);
    }

    // The names of all files, for the engine; their bytes come later.
    prepare(fs, env) {
        this.fs = fs;
        const made = new Set(["/"]);
        let lengths = "";
        for (const [path, file] of this.files) {
            const folder = path.slice(0, path.lastIndexOf("/")) || "/";
            if (!made.has(folder)) {
                fs.mkdirTree(folder);
                made.add(folder);
            }
            fs.writeFile(path, new Uint8Array(0));
            if (file.s || file.f) lengths += (file.s || 0) + " " + (file.f || 0) + " " + path + "\n";
        }
        fs.writeFile("/lengths", lengths);
        fs.mkdirTree(this.list.root + "/saves");
        this.present = new Set();
    }

    async unpacked(response, packed) {
        if (!packed) return response.arrayBuffer();
        const bytes = await response.arrayBuffer();
        const head = new Uint8Array(bytes, 0, Math.min(2, bytes.byteLength));
        // A server may have unpacked it on its way.
        if (head[0] !== 0x1f || head[1] !== 0x8b) return bytes;
        return new Response(new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip"))).arrayBuffer();
    }

    async get(url, packed, tries = 3) {
        for (let i = 1; ; ++i) {
            try {
                const response = await fetch(new URL(url, this.base));
                if (!response.ok) throw new Error(response.status + " " + url);
                return new Uint8Array(await this.unpacked(response, packed));
            } catch (failure) {
                if (i >= tries) throw failure;
                await new Promise((resolve) => setTimeout(resolve, 300 * i));
            }
        }
    }

    // The bytes of a file as the page plays it. One request a file, however many ask.
    bytes(path) {
        const file = this.files.get(path);
        if (!file || !file.u) return Promise.reject(new Error(path));
        if (!this.running.has(path)) {
            const promise = this.get(file.u, file.z).then((bytes) => {
                this.fetched.add(path);
                return bytes;
            }).finally(() => this.running.delete(path));
            this.running.set(path, promise);
        }
        return this.running.get(path);
    }

    isMedia(file) { return file.s !== undefined || file.f !== undefined; }

    // Puts a file where the engine reads it. True if nothing is to be waited for.
    isNear(path) {
        const file = this.files.get(path);
        return !file || !file.u || this.present.has(path) || this.isMedia(file);
    }
    async bring(path) {
        if (this.isNear(path)) return;
        const bytes = await this.bytes(path);
        if (this.present.has(path)) return;
        this.fs.writeFile(path, bytes);
        this.present.add(path);
        this.ahead(path);
    }

    // Waits as long as it takes: without the file the story can't go on.
    async near(path) {
        const slow = setTimeout(() => progress("Wird geladen …", 0.3), 250);
        for (;;) {
            try {
                await this.bring(path);
                break;
            } catch (failure) {
                await this.lost();
            }
        }
        clearTimeout(slow);
        progress(null);
    }
    lost() {
        return new Promise((resolve) => {
            const again = () => { removeEventListener("online", again); note.remove(); resolve(); };
            const note = toast("Die Verbindung ist weg. Das Spiel wartet.", { stays: true, button: "Noch einmal", action: again });
            addEventListener("online", again);
        });
    }

    // --- ahead of the game

    // What a room shows comes with it, what the rooms behind its doors show after that.
    ahead(path) {
        const room = this.list.rooms[path];
        if (!room) return;
        this.queue(room.needs, true);
        for (const next of room.next) {
            this.queue([next]);
            if (this.list.rooms[next]) this.queue(this.list.rooms[next].needs);
        }
    }
    queue(paths, first = false) {
        const wanted = paths.filter((path) => !this.isNear(path) && !this.waiting.includes(path));
        if (first) this.waiting.unshift(...wanted);
        else this.waiting.push(...wanted);
        this.pump();
    }
    pump() {
        while (this.busy < parallel && this.waiting.length) {
            const path = this.waiting.shift();
            if (this.isNear(path)) continue;
            ++this.busy;
            this.bring(path).catch(() => {}).finally(() => { --this.busy; this.pump(); });
        }
    }

    // All the rest, one by one, so that the story plays without a network. Only into the worker's store.
    async keepAll() {
        if (!navigator.serviceWorker || !navigator.serviceWorker.controller) return;
        if (navigator.connection && navigator.connection.saveData) return;
        const store = await caches.open("data");
        const known = new Set((await store.keys()).map((request) => request.url));
        for (const file of this.files.values()) {
            if (!file.u) continue;
            const url = new URL(file.u, this.base).href;
            if (known.has(url)) continue;
            known.add(url);
            while (this.busy || this.running.size) await new Promise((resolve) => setTimeout(resolve, 500));
            try {
                await (await fetch(url)).arrayBuffer();
            } catch (failure) {
                return;
            }
        }
        document.documentElement.dataset.offline = "ready";
    }
}
