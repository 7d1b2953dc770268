// The shorter round in Firefox: node firefox.mjs DIR [PICTURES [GAMES WALKS]], as browser.mjs has it.
// Exit status 77 where there is no Firefox or no page.
import { existsSync, mkdirSync } from "node:fs";
import path from "node:path";
import { serve } from "../../scripts/serve.mjs";
import { installed } from "./driver.mjs";
import { gameBegins } from "./games.mjs";
import { Firefox } from "./marionette.mjs";
import { filmRound } from "./media.mjs";
import { check, eventually, failures, keepPictures, load, save, shot, toIdle, toMenu, toRoom } from "./steps.mjs";

const [directory, pictures, games, walks] = process.argv.slice(2);
const found = installed(["firefox-esr", "firefox"]);
if (!found || !existsSync(path.join(directory, "index.html"))) {
    console.log(found ? "There is no page; ./web makes it." : "There is no Firefox.");
    process.exit(77);
}
if (pictures) mkdirSync(pictures, { recursive: true });
keepPictures(pictures && path.join(pictures, "firefox-"));

async function storyRound(browser, server) {
    const url = `http://localhost:${server.address().port}/`;
    const page = await browser.page({ width: 1280, height: 800 });
    await toMenu(page, url);
    await shot(page, "menu");
    await toRoom(page);
    await toIdle(page);
    await shot(page, "room");
    await save(page, "probe");
    await page.open("about:blank");
    await toMenu(page, url);
    await toRoom(page);
    await toIdle(page);
    await load(page, "probe");
    const others = await page.evaluate(`performance.getEntriesByType("resource").map((entry) => entry.name).filter((name) => !name.startsWith(location.origin) && !name.startsWith("blob:"))`);
    check("nobody else is asked", others.length === 0, others);
    const complaints = await page.complaintsOf(server);
    check("no complaint in the console", complaints.length === 0, complaints);
    await page.evaluate(`(() => { const s = document.createElement("script"); s.textContent = "document.title = 'slipped'"; document.head.append(s); })()`);
    const title = await page.evaluate("document.title");
    const told = await eventually(async () => (await page.complaintsOf(server)).length > 0);
    check("the policy holds, and the console says so", title === "Zentrox" && told, title);
}

async function gameRound(browser, server) {
    const page = await browser.page({ width: 1024, height: 768 });
    for (const [room, name, many] of [["jump", "Jump", 20], ["pong", "Pong", 8]]) {
        await page.open("about:blank");
        await gameBegins(page, server, room, name, many);
    }
}

const there = (place) => place && existsSync(path.join(place, "index.html"));
const servers = await Promise.all([directory, games, walks].map((place) => (there(place) ? serve(place) : null)));
const browser = await Firefox.start({ program: found });
try {
    await storyRound(browser, servers[0]);
    if (servers[1]) await gameRound(browser, servers[1]);
    if (servers[2]) await filmRound(browser, servers[2]);
} catch (failure) {
    check(failure.message, false);
    await shot(await browser.page(), "failure").catch(() => {});
} finally {
    await browser.stop();
    servers.filter(Boolean).forEach((server) => { server.close(); server.closeAllConnections(); });
}
process.exit(failures ? 1 : 0);
