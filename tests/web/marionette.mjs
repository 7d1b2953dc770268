// Drives Firefox over its own remote control, Marionette, without any package: the pages of driver.mjs with what the
// shorter round needs.
import { spawn } from "node:child_process";
import { existsSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import net from "node:net";
import os from "node:os";
import path from "node:path";
import { wait } from "./driver.mjs";

// Nothing of the browser's own shall ask anybody anything.
const settings = {
    "marionette.port": 0, "app.update.enabled": false, "browser.shell.checkDefaultBrowser": false,
    "browser.startup.homepage": "about:blank", "browser.startup.page": 0, "datareporting.policy.dataSubmissionEnabled": false,
    "dom.disable_beforeunload": false, "media.volume_scale": "0.0", "network.captive-portal-service.enabled": false,
    "network.connectivity-service.enabled": false, "toolkit.telemetry.enabled": false,
};
const keyNames = { Enter: "\uE007", Escape: "\uE00C", F1: "\uE031", F2: "\uE032", ArrowRight: "\uE014", " ": " " };

// Messages have their length in front: 12:[0,1,"name",{}].
class Connection {
    constructor(socket) {
        Object.assign(this, { socket, last: 0, asked: new Map() });
        let rest = Buffer.alloc(0);
        socket.on("data", (piece) => {
            rest = Buffer.concat([rest, piece]);
            for (let colon; (colon = rest.indexOf(":")) >= 0;) {
                const end = colon + 1 + Number(rest.subarray(0, colon));
                if (rest.length < end) return;
                this.take(JSON.parse(rest.subarray(colon + 1, end)));
                rest = rest.subarray(end);
            }
        });
        socket.on("close", () => this.asked.forEach(({ reject }) => reject(new Error("the browser has ended"))));
    }
    take(message) {
        if (!Array.isArray(message)) return;  // its greeting
        const [, id, failure, result] = message;
        const asked = this.asked.get(id);
        this.asked.delete(id);
        if (failure) asked.reject(new Error(failure.message));
        else asked.resolve(result);
    }
    send(name, parameters = {}) {
        const id = ++this.last;
        const text = Buffer.from(JSON.stringify([0, id, name, parameters]));
        this.socket.write(text.length + ":");
        this.socket.write(text);
        return new Promise((resolve, reject) => this.asked.set(id, { resolve, reject }));
    }
}

export class Firefox {
    static async start({ program = "firefox-esr" } = {}) {
        const browser = new Firefox();
        browser.profile = mkdtempSync(path.join(os.tmpdir(), "zentrox-firefox-"));
        writeFileSync(path.join(browser.profile, "user.js"),
            Object.entries(settings).map(([name, value]) => `user_pref(${JSON.stringify(name)}, ${JSON.stringify(value)});\n`).join(""));
        browser.child = spawn(program, ["--headless", "--no-remote", "--marionette", "--remote-allow-system-access", "--profile", browser.profile],
            { stdio: "ignore", env: { ...process.env, HOME: browser.profile } });
        const told = path.join(browser.profile, "MarionetteActivePort");
        for (let tries = 0; !existsSync(told) || !readFileSync(told, "utf8"); ++tries) {
            if (tries > 600) throw new Error("Firefox does not begin");
            await wait(100);
        }
        const socket = net.connect(Number(readFileSync(told, "utf8")), "127.0.0.1");
        await new Promise((resolve, reject) => socket.once("connect", resolve).once("error", reject));
        browser.connection = new Connection(socket);
        await browser.connection.send("WebDriver:NewSession", { unhandledPromptBehavior: "accept" });
        return browser;
    }
    // The one page there is, in this size.
    async page({ width = 1280, height = 800 } = {}) {
        await this.connection.send("WebDriver:SetWindowRect", { width, height: height + 90 });
        return new FirefoxPage(this.connection);
    }
    async stop() {
        this.connection.send("Marionette:Quit", { flags: ["eForceQuit"] }).catch(() => {});
        await new Promise((resolve) => {
            const patience = setTimeout(() => { this.child.kill("SIGKILL"); resolve(); }, 8000);
            this.child.on("exit", () => { clearTimeout(patience); resolve(); });
        });
        rmSync(this.profile, { recursive: true, force: true, maxRetries: 5, retryDelay: 200 });
    }
}

class FirefoxPage {
    constructor(connection) { this.connection = connection; }
    send(name, parameters) { return this.connection.send(name, parameters); }
    open(url) { return this.send("WebDriver:Navigate", { url }); }
    // In a sandbox over the page, which the page's policy does not bind.
    async evaluate(expression) {
        const script = `const done = arguments[arguments.length - 1];
            try { Promise.resolve(${expression}).then((value) => done({ value }), (failure) => done({ failure: String(failure) })); }
            catch (failure) { done({ failure: String(failure) }); }`;
        const { value } = await this.send("WebDriver:ExecuteAsyncScript", { script, args: [] });
        if (value.failure) throw new Error(value.failure);
        return value.value;
    }
    async until(expression, what = expression, patience = 60000) {
        const end = Date.now() + patience;
        for (;;) {
            const value = await this.evaluate(expression).catch(() => false);
            if (value) return value;
            if (Date.now() > end) throw new Error("waited in vain for " + what);
            await wait(60);
        }
    }
    async shot(file) {
        const { value } = await this.send("WebDriver:TakeScreenshot", { full: false, hash: false });
        writeFileSync(file, Buffer.from(value, "base64"));
    }
    perform(type, id, actions, parameters) {
        return this.send("WebDriver:PerformActions", { actions: [{ type, id, actions, ...(parameters ? { parameters } : {}) }] });
    }
    click(x, y, button = "left") {
        const number = { left: 0, right: 2 }[button];
        return this.perform("pointer", "mouse", [
            { type: "pointerMove", x: Math.round(x), y: Math.round(y), duration: 0 },
            { type: "pointerDown", button: number }, { type: "pause", duration: 30 }, { type: "pointerUp", button: number },
        ], { pointerType: "mouse" });
    }
    key(code, key) {
        const value = keyNames[key] || key;
        return this.perform("key", "keys", [{ type: "keyDown", value }, { type: "pause", duration: 40 }, { type: "keyUp", value }]);
    }
    async close() {}
    // What the browser's console has of errors that name this server.
    async complaintsOf(server) {
        await this.send("Marionette:SetContext", { value: "chrome" });
        const { value } = await this.send("WebDriver:ExecuteScript", {
            script: `return Services.console.getMessageArray().filter((message) => message instanceof Ci.nsIScriptError
                && !(message.flags & 1) && String(message.sourceName).startsWith(arguments[0])).map((message) => message.errorMessage);`,
            args: [`http://localhost:${server.address().port}/`],
        });
        await this.send("Marionette:SetContext", { value: "content" });
        return value;
    }
}
