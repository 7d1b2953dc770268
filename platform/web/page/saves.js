// Saved games: kept in the browser, brought out as files and back in, and watched over in other tabs.
import { complain, toast } from "./look.js";

const shop = "saves";

function request(asked) {
    return new Promise((resolve, reject) => {
        asked.onsuccess = () => resolve(asked.result);
        asked.onerror = () => reject(asked.error);
    });
}

export class Saves {
    constructor(title) {
        this.base = "zentrox " + location.pathname.replace(/[^/]*$/, "") + " " + title;
        this.known = new Map();  // name -> bytes as kept
        this.others = "BroadcastChannel" in self ? new BroadcastChannel(this.base) : null;
        if (this.others) this.others.onmessage = () => this.take().catch(() => {});
    }

    async open() {
        const asked = indexedDB.open(this.base, 1);
        asked.onupgradeneeded = () => asked.result.createObjectStore(shop);
        this.store = await request(asked);
        if (navigator.storage && navigator.storage.persist) navigator.storage.persist().catch(() => {});
    }
    objects(mode) { return this.store.transaction(shop, mode).objectStore(shop); }

    // True if no other tab plays this story. The lock goes with the tab.
    async alone() {
        if (!navigator.locks) return true;
        return new Promise((resolve) => {
            navigator.locks.request(this.base, { ifAvailable: true }, (lock) => {
                resolve(lock !== null);
                return lock ? new Promise(() => {}) : null;
            }).catch(() => resolve(true));
        });
    }

    // Hands what is kept to the engine.
    async give(fs, directory) {
        this.fs = fs;
        this.directory = directory;
        await this.take();
    }
    async take() {
        if (!this.store) return;
        const names = await request(this.objects("readonly").getAllKeys());
        const all = await request(this.objects("readonly").getAll());
        names.forEach((name, i) => {
            this.known.set(name, all[i]);
            if (this.fs) this.fs.writeFile(this.directory + "/" + name, all[i]);
        });
        for (const name of [...this.known.keys()])
            if (!names.includes(name)) this.drop(name);
    }
    drop(name) {
        this.known.delete(name);
        if (this.fs && this.fs.analyzePath(this.directory + "/" + name).exists) this.fs.unlink(this.directory + "/" + name);
    }

    // Keeps what the engine has written since it was asked last.
    keep() {
        if (!this.fs) return;
        for (const name of this.fs.readdir(this.directory)) {
            if (name.startsWith(".")) continue;
            const path = this.directory + "/" + name;
            if (!this.fs.isFile(this.fs.stat(path).mode)) continue;
            const bytes = this.fs.readFile(path);
            const known = this.known.get(name);
            if (known && known.length === bytes.length && known.every((byte, i) => byte === bytes[i])) continue;
            this.put(name, bytes.slice());
        }
    }
    async put(name, bytes) {
        this.known.set(name, bytes);
        try {
            if (!this.store) throw new Error("no store");
            await request(this.objects("readwrite").put(bytes, name));
            document.documentElement.dataset.kept = name;
            if (this.others) this.others.postMessage("");
        } catch (failure) {
            complain("Der Browser behält den Spielstand nicht; unter „Spielstände“ kann er als Datei gespeichert werden.");
        }
    }
    async remove(name) {
        this.drop(name);
        if (!this.store) return;
        await request(this.objects("readwrite").delete(name));
        if (this.others) this.others.postMessage("");
    }

    // --- the list

    show() {
        const dialog = document.getElementById("savesDialog");
        this.keep();
        this.list();
        dialog.showModal();
        document.getElementById("savesDone").onclick = () => dialog.close();
        const chooser = document.getElementById("savesFile");
        document.getElementById("savesAdd").onclick = () => chooser.click();
        chooser.onchange = () => this.add(chooser.files).then(() => { chooser.value = ""; });
    }
    list() {
        const list = document.getElementById("savesList");
        list.textContent = "";
        if (!this.known.size) list.textContent = "Noch keine. Im Spiel speichert F2 und lädt F1.";
        for (const [name, bytes] of [...this.known].sort()) {
            const item = document.createElement("li");
            const label = document.createElement("span");
            label.textContent = name;
            const out = document.createElement("a");
            out.href = URL.createObjectURL(new Blob([bytes], { type: "application/octet-stream" }));
            out.download = name;
            out.textContent = "Herunterladen";
            const away = document.createElement("button");
            away.textContent = "Löschen";
            away.onclick = () => {
                if (away.dataset.sure) return this.remove(name).then(() => this.list());
                away.dataset.sure = "1";
                away.textContent = "Wirklich löschen?";
            };
            item.append(label, out, away);
            list.append(item);
        }
    }
    async add(files) {
        for (const file of files) {
            const bytes = new Uint8Array(await file.arrayBuffer());
            const head = new TextDecoder("latin1").decode(bytes.subarray(0, 13));
            if (head !== "eXTenCion-Fil") {
                toast(file.name + " ist kein Spielstand.");
                continue;
            }
            const name = file.name.replace(/[*?/\\|<>]/g, "_").replace(/(\.xtc)?$/i, ".xtc");
            if (this.fs) this.fs.writeFile(this.directory + "/" + name, bytes);
            await this.put(name, bytes);
        }
        this.list();
    }
}
