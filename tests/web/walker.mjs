// Plays a walk on a page by real input: what the walk calls by name is asked of the engine, what it does goes through
// the browser.
import { wait } from "./driver.mjs";

const codes = {
    space: [32, " ", " "], enter: [13, "Enter", "\r"], escape: [27, "Escape"], up: [38, "ArrowUp"], down: [40, "ArrowDown"],
    left: [37, "ArrowLeft"], right: [39, "ArrowRight"], backspace: [8, "Backspace"], tab: [9, "Tab"],
    f1: [112, "F1"], f2: [113, "F2"], f7: [118, "F7"],
};
// Walks count on one course of chance, which on a page is never the same. Begun here at each choice, as none draws
// before the game that it leads to, the fight without a potion is lost and the quiz has its answer elsewhere.
const chance = "2";
const slow = 90000;  // real milliseconds that anything may take

const wordsOf = (line) => [...line.matchAll(/"((?:[^"\\]|\\.)*)"|(\S+)/g)].map((m) => m[1] ?? m[2]);

export class Walker {
    // With `touch` the pointer is a finger. `hurry` is how much faster than real time the page's clock runs.
    constructor(page, { touch = false, hurry = 1, tell = () => {} } = {}) {
        Object.assign(this, { page, touch, hurry, tell });
    }

    ask(what, name = "") {
        return this.page.evaluate(`zentroxAsk(${JSON.stringify(what)}, ${JSON.stringify(name)})`);
    }
    async yes(what, name) { return (await this.ask(what, name)) === "yes"; }
    async until(condition, what, patience = slow) {
        const end = Date.now() + patience;
        while (!(await condition())) {
            if (Date.now() > end) throw new Error(`line ${this.line}: waited in vain for ${what} (${await this.ask("why")})`);
            await wait(30);
        }
    }

    // --- places and hands

    // From pixels of the topmost window to those of the page.
    async onPage([x, y]) {
        return this.page.evaluate(`(() => {
            const canvas = document.querySelector("#stage .window:last-child canvas");
            const area = canvas.getBoundingClientRect();
            return [area.left + (${x} + 0.5) * area.width / canvas.width, area.top + (${y} + 0.5) * area.height / canvas.height];
        })()`);
    }
    async place(what, name) {
        let found = "";
        await this.until(async () => (found = await this.ask(what, name)) !== "", `${what} ${name}`, 20000);
        return found.split(" ").map(Number);
    }
    async click(at, button = "left") {
        const [x, y] = await this.onPage(at);
        if (this.touch) return this.page.tap(x, y, button === "right" ? 700 : 30);
        return this.page.click(x, y, button);
    }
    async key(name, options = {}) {
        if (codes[name]) {
            const [code, key, text = ""] = codes[name];
            return this.page.key(code, key, { text, ...options });
        }
        return this.page.key(name.toUpperCase().charCodeAt(0), name, { text: name, ...options });
    }
    async openBar() {
        if (await this.yes("bar")) return;
        if (this.touch) {
            const [x, y] = await this.page.evaluate(`(() => { const r = document.getElementById("bag").getBoundingClientRect(); return [r.x + r.width / 2, r.y + r.height / 2]; })()`);
            await this.page.tap(x, y);
        } else {
            await this.key("space");
        }
        await this.until(() => this.yes("bar"), "the bar", 20000);
    }
    async free() {
        await this.until(async () => (await this.yes("idle")) || (await this.ask("window")) !== "Form1", "a free hand");
    }

    // --- texts

    async pass() {
        await this.key("space");
        await wait(60);
    }
    // Reads on until the condition holds.
    async reading(condition, what, patience) {
        await this.until(async () => {
            if (await condition()) return true;
            if (await this.yes("stands")) await this.pass();
            return false;
        }, what, patience);
    }

    async holds([kind, ...rest]) {
        if (kind === "not") return !(await this.holds(rest));
        if (kind === "window") return (await this.ask("window")) === rest[0];
        if (kind === "idle" || kind === "choice") return this.yes(kind);
        if (kind === "ended") return this.page.evaluate(`document.documentElement.dataset.state === "ended"`);
        return this.yes(kind, rest[0]);
    }

    async command(verb, words) {
        const { page } = this;
        switch (verb) {
            case "until": {
                const limit = /^\d+$/.test(words[words.length - 1]) && words.length > 1 ? Number(words.pop()) : 60000;
                return this.until(() => this.holds(words), words.join(" "), Math.max(slow, limit * 1.5 / this.hurry));
            }
            case "expect":
                if (!(await this.holds(words))) throw new Error(`line ${this.line}: expected ${words.join(" ")}`);
                return;
            case "wait": return wait(Number(words[0]) / this.hurry);
            case "key": return this.key(words[0]);
            case "down": return this.key(words[0], { up: false });
            case "up": return this.key(words[0], { down: false });
            case "type":
                for (const letter of words[0]) await this.key(letter);
                return;
            case "read": return this.reading(async () => (await this.yes("idle")) || (await this.yes("choice")) || (await this.ask("window")) !== "Form1", "the end of the text");
            case "use":
            case "look":
                await this.free();
                return this.click(await this.place("object", words[0]), verb === "use" ? "left" : "right");
            case "click": return this.click(words.slice(-2).map(Number), words.length > 2 ? words[0] : "left");
            case "choose":
                await this.until(() => this.yes("choice"), "a choice");
                await this.ask("seed", chance);
                return this.click(await this.place("option", words[0]));
            case "combine":
            case "give": {
                await this.free();
                await this.openBar();
                const from = await this.onPage(await this.place("slot", words[0]));
                if (verb === "combine") {
                    const to = await this.onPage(await this.place("slot", words[1]));
                    return this.touch ? page.slide(from, to) : page.drag(from, to);
                }
                return this.give(from, words[1]);
            }
            case "close": return page.evaluate(`(document.querySelector("#stage .window:last-child header button") || document.getElementById("toolClose")).click()`);
            default: return;  // pictures and reports are the probe's
        }
    }

    // The bar closes as soon as the item has left it; only then the whole room can be reached.
    async give(from, object) {
        const { page } = this;
        const above = await this.onPage(await this.place("above"));
        const go = this.touch ? (at) => page.touch("touchMove", [at]) : (at) => page.mouse("mouseMoved", at[0], at[1], "left");
        if (this.touch) await page.touch("touchStart", [from]);
        else {
            await page.mouse("mouseMoved", ...from);
            await page.mouse("mousePressed", ...from, "left", 1);
        }
        await go([from[0], from[1] - 12]);
        await go(above);
        await this.until(async () => !(await this.yes("bar")) && (await this.ask("object", object)) !== "", "the bar closed", 20000);
        const to = await this.onPage(await this.place("object", object));
        await go(to);
        await wait(60);
        if (this.touch) await page.touch("touchEnd", []);
        else await page.mouse("mouseReleased", ...to, "left", 1);
    }

    async play(text) {
        const lines = text.split("\n");
        for (let i = 0; i < lines.length; ++i) {
            this.line = i + 1;
            const words = wordsOf(lines[i].replace(/(^|\s)#.*/, ""));
            if (!words.length) continue;
            this.tell(`${i + 1} ${lines[i]}`);
            await this.command(words[0], words.slice(1));
        }
    }
}
