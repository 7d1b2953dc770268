// The page in a real browser: node browser.mjs DIR [PICTURES [GAMES WALKS]] plays what `./web` has made, by mouse, key
// and finger, and pages made of the data of tests/games and tests/walks.
// Exit status 77 where there is no Chromium or no page.
import { existsSync, mkdirSync, rmSync } from "node:fs";
import os from "node:os";
import path from "node:path";
import { execFileSync } from "node:child_process";
import { serve } from "../../scripts/serve.mjs";
import { Browser, chromium } from "./driver.mjs";
import { gamesRound } from "./games.mjs";
import { filmRound, lossRound, networkRound } from "./media.mjs";
import { check, colours, eventually, failures, fromStartToMenu, keepPictures, load, middleOf, save, shot, state, toIdle, toMenu, toRoom, toStart } from "./steps.mjs";

const [directory, pictures, games, walks] = process.argv.slice(2);
const found = chromium();
if (!found || !existsSync(path.join(directory, "index.html"))) {
    console.log(found ? "There is no page; ./web makes it." : "There is no Chromium.");
    process.exit(77);
}
if (pictures) mkdirSync(pictures, { recursive: true });
keepPictures(pictures && path.join(pictures, "/"));

async function desktopRound(browser, url, asked, downloads, transferred) {
    const page = await browser.page({ width: 1366, height: 768 });
    await toStart(page, url);
    await shot(page, "start");
    check("the start page names the story", (await page.evaluate(`document.querySelector("#start h1").textContent`)) === "Zentrox");
    const policy = await page.evaluate(`document.querySelector("meta[http-equiv]").content`);
    check("the policy lets nothing in from elsewhere", !/unsafe-inline|'unsafe-eval'|https?:|\*/.test(policy) && policy.startsWith("default-src 'none'"), policy);
    await page.evaluate(`(() => { const s = document.createElement("script"); s.textContent = "window.slipped = 1"; document.head.append(s); })()`);
    check("the policy holds", (await page.evaluate(`window.slipped === undefined`)));
    page.complaints.length = 0;  // the one about that script
    await fromStartToMenu(page);
    check("the menu stands within 2 MB of transfer", transferred() < 2e6, transferred());
    await shot(page, "menu");
    await toRoom(page);
    await shot(page, "room");
    await toIdle(page);
    check("a voice was fetched when it was asked for", page.requests.some((request) => request.endsWith(".mp3")));

    // Save, take it out of a fresh page, load.
    await save(page, "probe");

    // The saved game goes out as a file, and in again under another name.
    await page.evaluate(`document.getElementById("toolSaves").click()`);
    await page.send("Browser.setDownloadBehavior", { behavior: "allow", downloadPath: downloads }).catch(() => {});
    await page.evaluate(`document.querySelector("#savesList a").click()`);
    const file = path.join(downloads, "probe.xtc");
    check("a saved game comes out as a file", await eventually(() => existsSync(file)));
    await shot(page, "saves");
    if (existsSync(file)) {
        const { root } = await page.send("DOM.getDocument");
        const { nodeId } = await page.send("DOM.querySelector", { nodeId: root.nodeId, selector: "#savesFile" });
        const copy = path.join(downloads, "zurueck.xtc");
        execFileSync("cp", [file, copy]);
        await page.send("DOM.setFileInputFiles", { files: [copy], nodeId });
        await page.until(`[...document.querySelectorAll("#savesList span")].some((s) => s.textContent === "zurueck.xtc")`, "the file in the list")
            .then(() => check("and goes in again", true), () => check("and goes in again", false));
    }
    await page.evaluate(`document.getElementById("savesDone").click()`);
    await page.open(url);
    check("leaving the game asks first", await eventually(() => page.dialogs.includes("beforeunload")), page.dialogs);
    await page.until(state("ready"), "the page anew", 60000);
    await fromStartToMenu(page);
    await toRoom(page);
    await toIdle(page);
    await load(page, "probe");

    const second = await browser.page({ width: 1000, height: 700 });
    await toStart(second, url);
    check("a second tab is told", /läuft schon in einem anderen Tab/.test(await second.evaluate(`document.getElementById("startText").textContent`)));
    await second.close();

    check("nobody else is asked", asked(page.requests), page.requests.filter((request) => !asked([request])));
    check("no complaint in the console", page.complaints.length === 0, page.complaints);
    await page.close();
}

// The size of the picture, full screen, and the page as an app.
async function shellRound(browser, url) {
    const page = await browser.page({ width: 1366, height: 768, ratio: 1.5 });
    await toMenu(page, url);
    await toRoom(page);
    const scale = `(() => { const c = document.querySelector("#stage canvas"); return c.getBoundingClientRect().width * devicePixelRatio / c.width; })()`;
    const press = (id) => page.evaluate(`document.getElementById("${id}").click()`);
    const filling = await page.evaluate(scale);
    await press("toolScale");
    const whole = await page.evaluate(scale);
    check("the picture fills the window, or stands in whole multiples", filling > 2 && Math.abs(whole - Math.floor(filling)) < 0.01, [filling, whole]);
    await press("toolScale");
    await page.key(122, "F11");
    await page.until("document.fullscreenElement !== null", "full screen by a key");
    await page.key(122, "F11");
    await page.until("document.fullscreenElement === null", "the end of full screen");
    await page.click(...await middleOf(page, "toolFull"));
    await page.until("document.fullscreenElement !== null", "full screen by a button");
    check("full screen by a key and by a button", true);
    const { errors } = await page.send("Page.getAppManifest");
    const { installabilityErrors } = await page.send("Page.getInstallabilityErrors");
    check("it can be installed as an app", errors.length + installabilityErrors.length === 0, [errors, installabilityErrors]);
    await page.close();
}

async function phoneRound(browser, url) {
    const page = await browser.page({ width: 740, height: 360, ratio: 2, phone: true });
    await toStart(page, url);
    await shot(page, "phone-start");
    await toMenu(page, url);
    await shot(page, "phone-menu");
    await toRoom(page);
    await page.until(`!document.getElementById("bag").hidden`, "the bag");
    await shot(page, "phone-room");
    check("the bag is on the screen", true);
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
    await page.until(`document.documentElement.dataset.offline === "ready"`, "all of the story to be kept", 240000);
    server.close();
    server.closeAllConnections();
    await toMenu(page, url);
    await toRoom(page);
    check("it plays without a network", (await page.evaluate(colours)) > 200);
    await page.close();
}

const downloads = path.join(os.tmpdir(), "zentrox-downloads-" + process.pid);
mkdirSync(downloads);
let bytes = 0;
const server = await serve(directory, 0, (url, size) => { bytes += size; });
const url = `http://localhost:${server.address().port}/`;
const browser = await Browser.start({ program: found });
try {
    const asked = (requests) => requests.every((request) => /^(data|blob):/.test(request) || request.startsWith(url));
    await desktopRound(browser, url, asked, downloads, () => bytes);
    await shellRound(browser, url);
    await phoneRound(browser, url);
    for (const [made, rounds] of [[games, [gamesRound]], [walks, [filmRound, lossRound, networkRound]]]) {
        if (!made || !existsSync(path.join(made, "index.html"))) continue;
        const other = await serve(made);
        for (const round of rounds) await round(browser, other);
        other.close();
        other.closeAllConnections();
    }
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
