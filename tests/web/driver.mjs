// Drives Chromium over its debugging pipe, without any package: pages, real input, pictures, what was asked of whom.
import { execFileSync, spawn } from "node:child_process";
import { mkdtempSync, rmSync } from "node:fs";
import os from "node:os";
import path from "node:path";

const wait = (milliseconds) => new Promise((resolve) => setTimeout(resolve, milliseconds));

// The first of these programs that is installed.
export function installed(programs) {
    return programs.find((name) => {
        try { return execFileSync("which", [name], { stdio: ["ignore", "pipe", "ignore"] }).length > 0; } catch { return false; }
    });
}
export const chromium = () => installed(["chromium", "chromium-browser", "google-chrome"]);

class Connection {
    constructor(child) {
        this.child = child;
        this.last = 0;
        this.asked = new Map();
        this.listeners = [];
        let rest = Buffer.alloc(0);
        child.stdio[4].on("data", (piece) => {
            rest = Buffer.concat([rest, piece]);
            for (let end; (end = rest.indexOf(0)) >= 0; rest = rest.subarray(end + 1)) this.take(JSON.parse(rest.subarray(0, end)));
        });
        child.on("exit", () => this.asked.forEach(({ reject }) => reject(new Error("the browser has ended"))));
    }
    take(message) {
        if (!message.id) return this.listeners.forEach((listener) => listener(message));
        const asked = this.asked.get(message.id);
        this.asked.delete(message.id);
        if (message.error) asked.reject(new Error(message.error.message));
        else asked.resolve(message.result);
    }
    send(method, params = {}, sessionId = undefined) {
        const id = ++this.last;
        this.child.stdio[3].write(JSON.stringify({ id, method, params, sessionId }) + "\0");
        return new Promise((resolve, reject) => {
            const patience = setTimeout(() => reject(new Error("no answer to " + method)), 120000);
            patience.unref();
            this.asked.set(id, { resolve, reject });
        });
    }
}

export class Browser {
    static async start({ program = chromium(), options = [] } = {}) {
        const browser = new Browser();
        browser.profile = mkdtempSync(path.join(os.tmpdir(), "zentrox-browser-"));
        const child = spawn(program, ["--headless=new", "--remote-debugging-pipe", "--no-sandbox", "--no-first-run",
            "--disable-gpu", "--mute-audio", "--disable-background-networking", "--disable-component-update",
            "--disable-dev-shm-usage", "--hide-scrollbars", "--user-data-dir=" + browser.profile, ...options, "about:blank"],
            { stdio: ["ignore", "ignore", "ignore", "pipe", "pipe"] });
        browser.child = child;
        browser.connection = new Connection(child);
        browser.pages = [];
        return browser;
    }
    // A page of its own; with `phone` a small touch screen.
    async page({ width = 1280, height = 800, ratio = 1, phone = false } = {}) {
        const { targetId } = await this.connection.send("Target.createTarget", { url: "about:blank" });
        const { sessionId } = await this.connection.send("Target.attachToTarget", { targetId, flatten: true });
        const page = new Page(this.connection, sessionId, targetId);
        await page.prepare(width, height, ratio, phone);
        this.pages.push(page);
        return page;
    }
    async stop() {
        this.connection.send("Browser.close").catch(() => {});
        await new Promise((resolve) => {
            const patience = setTimeout(() => { this.child.kill("SIGKILL"); resolve(); }, 5000);
            this.child.on("exit", () => { clearTimeout(patience); resolve(); });
        });
        rmSync(this.profile, { recursive: true, force: true, maxRetries: 3 });
    }
}

export class Page {
    constructor(connection, session, target) {
        Object.assign(this, { connection, session, target, complaints: [], requests: [], dialogs: [] });
        connection.listeners.push((message) => { if (message.sessionId === session) this.heard(message); });
    }
    send(method, params) { return this.connection.send(method, params, this.session); }
    async prepare(width, height, ratio, phone) {
        this.phone = phone;
        for (const domain of ["Page", "Runtime", "Network", "Log", "Performance"]) await this.send(domain + ".enable");
        await this.send("Emulation.setDeviceMetricsOverride", { width, height, deviceScaleFactor: ratio, mobile: phone });
        if (phone) await this.send("Emulation.setTouchEmulationEnabled", { enabled: true, maxTouchPoints: 2 });
    }
    heard({ method, params }) {
        if (method === "Runtime.exceptionThrown")
            this.complaints.push(params.exceptionDetails.exception?.description || params.exceptionDetails.text);
        if (method === "Runtime.consoleAPICalled" && ["error", "warning", "assert"].includes(params.type))
            this.complaints.push(params.args.map((arg) => arg.value ?? arg.description).join(" "));
        if (method === "Log.entryAdded" && params.entry.level === "error") this.complaints.push(params.entry.text + " " + (params.entry.url || ""));
        if (method === "Network.requestWillBeSent") this.requests.push(params.request.url);
        if (method === "Page.javascriptDialogOpening") {
            this.dialogs.push(params.type);
            this.send("Page.handleJavaScriptDialog", { accept: true });
        }
    }
    async open(url) { await this.send("Page.navigate", { url }); }
    async evaluate(expression) {
        const { result, exceptionDetails } = await this.send("Runtime.evaluate", { expression, awaitPromise: true, returnByValue: true });
        if (exceptionDetails) throw new Error(exceptionDetails.exception?.description || exceptionDetails.text);
        return result.value;
    }
    // Waits until an expression of the page is true.
    async until(expression, what = expression, patience = 30000) {
        const end = Date.now() + patience;
        for (;;) {
            const value = await this.evaluate(expression).catch(() => false);
            if (value) return value;
            if (Date.now() > end) throw new Error("waited in vain for " + what);
            await wait(40);
        }
    }
    async shot(file) {
        const { writeFileSync } = await import("node:fs");
        const { data } = await this.send("Page.captureScreenshot", { format: "png" });
        writeFileSync(file, Buffer.from(data, "base64"));
    }
    mouse(type, x, y, button = "none", clickCount = 0) {
        const buttons = { none: 0, left: 1, right: 2 }[type === "mouseReleased" ? "none" : button];
        return this.send("Input.dispatchMouseEvent", { type, x, y, button, buttons, clickCount });
    }
    async click(x, y, button = "left") {
        await this.mouse("mouseMoved", x, y);
        await this.mouse("mousePressed", x, y, button, 1);
        await this.mouse("mouseReleased", x, y, button, 1);
    }
    async drag(from, to) {
        await this.mouse("mouseMoved", ...from);
        await this.mouse("mousePressed", ...from, "left", 1);
        for (let i = 1; i <= 8; ++i) {
            await this.mouse("mouseMoved", from[0] + (to[0] - from[0]) * i / 8, from[1] + (to[1] - from[1]) * i / 8, "left");
            await wait(60);
        }
        await this.mouse("mouseReleased", ...to, "left", 1);
    }
    touch(type, points) { return this.send("Input.dispatchTouchEvent", { type, touchPoints: points.map(([x, y]) => ({ x, y })) }); }
    async tap(x, y, held = 30) {
        await this.touch("touchStart", [[x, y]]);
        await wait(held);
        await this.touch("touchEnd", []);
    }
    async slide(from, to) {
        await this.touch("touchStart", [from]);
        for (let i = 1; i <= 8; ++i) {
            await this.touch("touchMove", [[from[0] + (to[0] - from[0]) * i / 8, from[1] + (to[1] - from[1]) * i / 8]]);
            await wait(60);
        }
        await this.touch("touchEnd", []);
    }
    async key(code, key, { text = "", down = true, up = true } = {}) {
        const fields = { windowsVirtualKeyCode: code, key, code: key };
        if (down) await this.send("Input.dispatchKeyEvent", { type: text ? "keyDown" : "rawKeyDown", text, ...fields });
        if (down && up) await wait(40);
        if (up) await this.send("Input.dispatchKeyEvent", { type: "keyUp", ...fields });
    }
    async close() { await this.connection.send("Target.closeTarget", { targetId: this.target }); }
}

export { wait };
