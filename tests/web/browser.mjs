// The page in a real browser: node browser.mjs DIR [PICTURES [GAMES]] plays what `./web` has made, by mouse, key and
// finger, and the games of a page made of tests/games.
// Exit status 77 where there is no Chromium or no page.
import { existsSync, mkdirSync, writeFileSync, rmSync } from "node:fs";
import os from "node:os";
import path from "node:path";
import { execFileSync } from "node:child_process";
import { serve } from "../../scripts/serve.mjs";
import { Browser, wait } from "./driver.mjs";

const [directory, pictures, games] = process.argv.slice(2);
const found = ["chromium", "chromium-browser", "google-chrome"].find((name) => {
    try { return execFileSync("which", [name], { stdio: ["ignore", "pipe", "ignore"] }).length > 0; } catch { return false; }
});
if (!found || !existsSync(path.join(directory, "index.html"))) {
    console.log(found ? "There is no page; ./web makes it." : "There is no Chromium.");
    process.exit(77);
}
if (pictures) mkdirSync(pictures, { recursive: true });

let failures = 0;
function check(name, good, seen = "") {
    console.log((good ? "ok      " : "FAILED  ") + name + (good || seen === "" ? "" : ": " + JSON.stringify(seen)));
    if (!good) ++failures;
}
const shot = (page, name) => (pictures ? page.shot(path.join(pictures, name + ".png")) : null);
const state = (name) => `document.documentElement.dataset.state === "${name}"`;
const topWindow = (name) => `document.documentElement.dataset.window === "${name}"`;

// How many colours stand in the topmost window: a picture has many, an empty canvas one.
const colours = `(() => {
    const canvas = document.querySelector("#stage .window:last-child canvas");
    const data = new Uint32Array(canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data.buffer);
    return new Set(data).size;
})()`;

async function toMenu(page, url) {
    await page.open(url);
    await page.until(state("ready"), "the page to be ready", 60000);
    await page.evaluate(`document.getElementById("begin").focus()`);
    const [x, y] = await page.evaluate(`(() => { const r = document.getElementById("begin").getBoundingClientRect(); return [r.x + r.width / 2, r.y + r.height / 2]; })()`);
    if (page.phone) await page.tap(x, y);
    else await page.click(x, y);
    await page.until(topWindow("Menu"), "the menu");
    await page.until(colours + " > 30", "a picture of the menu");
}
async function toRoom(page) {
    if (page.phone) await page.tap(...await middleOf(page, 0.2, 0.45));  // a little below the line
    else await page.key(13, "Enter", { text: "\r" });
    await page.until(topWindow("Form1"), "the room");
    await page.until(colours + " > 200", "a picture of the room");
}
// A point of the topmost window by its parts.
const middleOf = (page, x, y) => page.evaluate(`(() => {
    const r = document.querySelector("#stage .window:last-child canvas").getBoundingClientRect();
    return [r.x + r.width * ${x}, r.y + r.height * ${y}];
})()`);
// Through the texts of the opening; afterwards the same key opens and closes the bag, which does no harm.
async function toIdle(page) {
    for (let i = 0; i < 50; ++i) {
        await page.key(32, " ", { text: " " });
        await wait(300);
    }
    await wait(2000);
}

async function desktopRound(browser, url, asked, downloads) {
    const page = await browser.page({ width: 1366, height: 768 });
    await page.open(url);
    await page.until(state("ready"), "the page to be ready", 60000);
    await shot(page, "start");
    check("the start page names the story", (await page.evaluate(`document.querySelector("#start h1").textContent`)) === "Zentrox");
    const policy = await page.evaluate(`document.querySelector("meta[http-equiv]").content`);
    check("the policy lets nothing in from elsewhere", !/unsafe-inline|'unsafe-eval'|https?:|\*/.test(policy) && policy.startsWith("default-src 'none'"), policy);
    await page.evaluate(`(() => { const s = document.createElement("script"); s.textContent = "window.slipped = 1"; document.head.append(s); })()`);
    check("the policy holds", (await page.evaluate(`window.slipped === undefined`)));
    page.complaints.length = 0;  // the one about that script
    await toMenu(page, url);
    await shot(page, "menu");
    await toRoom(page);
    await shot(page, "room");
    await toIdle(page);
    check("a voice was fetched when it was asked for", page.requests.some((request) => request.endsWith(".mp3")));

    // Save, take it out of a fresh page, load.
    await page.key(113, "F2");
    await page.until(topWindow("Dialog"), "the dialog");
    await page.evaluate(`1`);
    for (const letter of "probe") await page.key(letter.toUpperCase().charCodeAt(0), letter, { text: letter });
    await wait(200);
    await shot(page, "dialog");
    await page.key(13, "Enter", { text: "\r" });
    await page.until(topWindow("MsgBox"), "the answer to saving");
    await shot(page, "saved");
    check("the game says that it has saved", /erfolgreich/.test(await page.evaluate(`document.documentElement.dataset.box`)));
    await page.key(13, "Enter", { text: "\r" });
    await page.until(`document.documentElement.dataset.kept !== undefined`, "the saved game to be kept");

    // The saved game goes out as a file, and in again under another name.
    await page.evaluate(`document.getElementById("toolSaves").click()`);
    await page.send("Browser.setDownloadBehavior", { behavior: "allow", downloadPath: downloads }).catch(() => {});
    await page.evaluate(`document.querySelector("#savesList a").click()`);
    await wait(1500);
    await shot(page, "saves");
    const file = path.join(downloads, "probe.xtc");
    check("a saved game comes out as a file", existsSync(file));
    if (existsSync(file)) {
        const { root } = await page.send("DOM.getDocument");
        const { nodeId } = await page.send("DOM.querySelector", { nodeId: root.nodeId, selector: "#savesFile" });
        const copy = path.join(downloads, "zurueck.xtc");
        execFileSync("cp", [file, copy]);
        await page.send("DOM.setFileInputFiles", { files: [copy], nodeId });
        await page.until(`[...document.querySelectorAll("#savesList span")].some((s) => s.textContent === "zurueck.xtc")`, "the file in the list", 5000)
            .then(() => check("and goes in again", true), () => check("and goes in again", false));
    }
    await page.evaluate(`document.getElementById("savesDone").click()`);
    await page.open(url);
    await wait(500);
    check("leaving the game asks first", page.dialogs.includes("beforeunload"), page.dialogs);
    await toMenu(page, url);
    await toRoom(page);
    await toIdle(page);
    await page.key(112, "F1");
    await page.until(topWindow("Dialog"), "the dialog for loading");
    await shot(page, "load");
    for (const letter of "probe") await page.key(letter.toUpperCase().charCodeAt(0), letter, { text: letter });
    await page.key(13, "Enter", { text: "\r" });
    await page.until(topWindow("Form1"), "the loaded room");
    check("a saved game outlasts the page and is loaded", (await page.evaluate(colours)) > 200);

    const second = await browser.page({ width: 1000, height: 700 });
    await second.open(url);
    await second.until(state("ready"), "the second tab", 60000);
    check("a second tab is told", (await second.evaluate(`document.documentElement.dataset.alone`)) === "no");
    await second.close();

    check("nobody else is asked", asked(page.requests), page.requests.filter((request) => !asked([request])));
    check("no complaint in the console", page.complaints.length === 0, page.complaints);
    await page.close();
}

async function phoneRound(browser, url) {
    const page = await browser.page({ width: 740, height: 360, ratio: 2, phone: true });
    await page.open(url);
    await page.until(state("ready"), "the page on a phone", 60000);
    await shot(page, "phone-start");
    await toMenu(page, url);
    await shot(page, "phone-menu");
    await toRoom(page);
    await wait(1500);
    await shot(page, "phone-room");
    check("the bag is on the screen", await page.evaluate(`!document.getElementById("bag").hidden`));
    check("no complaint on the phone", page.complaints.length === 0, page.complaints);
    await page.close();
}

async function offlineRound(browser, url, server) {
    const page = await browser.page();
    await page.open(url);
    await page.until(state("ready"), "the page before the network goes", 60000);
    await page.until(`navigator.serviceWorker.controller !== null`, "the worker", 30000);
    await toMenu(page, url);
    await toRoom(page);
    await wait(3000);
    server.close();
    server.closeAllConnections();
    await toMenu(page, url);
    await toRoom(page);
    check("it plays without a network", (await page.evaluate(colours)) > 200);
    await page.close();
}

// Each mini-game, from a room that begins with it.
async function gamesRound(browser, games) {
    const gamesServer = await serve(games);
    for (const [room, name, many] of [["jump", "Jump", 20], ["pong", "Pong", 8], ["memory", "Memory", 20], ["pi", "PISpiel", 4], ["quiz", "HDW", 8], ["riddle", "Form2", 4], ["fight", "Prügel", 20]]) {
        const page = await browser.page({ width: 1024, height: 768 });
        await page.open(`http://localhost:${gamesServer.address().port}/#${room}.lsd`);
        await page.until(state("ready"), "the page of " + name, 60000);
        await page.evaluate(`document.getElementById("begin").click()`);
        if (room !== "jump") {  // a click on the only thing in the room
            await page.until(topWindow("Form1"), "the room of " + name);
            await wait(1500);
            await page.click(...await middleOf(page, 0.5, 0.5));
        }
        await page.until(topWindow(name), name, 60000).catch(() => {});
        await wait(2500);
        await shot(page, "game-" + room);
        const seen = await page.evaluate(colours).catch(() => 0);
        check(name + " begins", seen >= many && (await page.evaluate(topWindow(name))), seen);
        check(name + " without a complaint", page.complaints.length === 0, page.complaints);
        await page.close();
    }
    gamesServer.close();
    gamesServer.closeAllConnections();
}

const downloads = path.join(os.tmpdir(), "zentrox-downloads-" + process.pid);
mkdirSync(downloads);
const server = await serve(directory);
const url = `http://localhost:${server.address().port}/`;
const browser = await Browser.start({ program: found });
try {
    const asked = (requests) => requests.every((request) => /^(data|blob):/.test(request) || request.startsWith(url));
    await desktopRound(browser, url, asked, downloads);
    await phoneRound(browser, url);
    if (games && existsSync(path.join(games, "index.html"))) await gamesRound(browser, games);
    await offlineRound(browser, url, server);
} catch (failure) {
    check(failure.message, false);
    const last = browser.pages[browser.pages.length - 1];
    if (last && pictures) await last.shot(path.join(pictures, "failure.png")).catch(() => {});
    if (last) console.log(last.complaints.slice(0, 5).join("\n"));
} finally {
    await browser.stop();
    server.close();
    rmSync(downloads, { recursive: true, force: true });
}
process.exit(failures ? 1 : 0);
