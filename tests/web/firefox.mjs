// The shorter round in Firefox: node firefox.mjs DIR [PICTURES [GAMES WALKS]], as browser.mjs has it.
// Exit status 77 where there is no Firefox or no page.
import { existsSync, mkdirSync } from "node:fs";
import path from "node:path";
import { serve } from "../../scripts/serve.mjs";
import { installed, wait } from "./driver.mjs";
import { Firefox } from "./marionette.mjs";
import { filmRound } from "./media.mjs";
import { check, colours, failures, keepPictures, load, partOf, save, shot, toIdle, toMenu, toRoom, toTestRoom, topWindow } from "./steps.mjs";

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
    check("the policy holds, and the console says so", title === "Zentrox" && (await page.complaintsOf(server)).length > 0, title);
}

async function gameRound(browser, server) {
    const page = await browser.page({ width: 1024, height: 768 });
    for (const [room, name] of [["jump", "Jump"], ["pong", "Pong"]]) {
        await page.open("about:blank");
        await toTestRoom(page, server, room);
        if (name !== "Jump") {
            await page.until(topWindow("Form1"), "the room of " + name);
            await wait(1500);
            await page.click(...await partOf(page, 0.5, 0.5));
        }
        await page.until(topWindow(name), name).catch(() => {});
        await wait(2500);
        await shot(page, "game-" + room);
        check(name + " begins", (await page.evaluate(topWindow(name))) && (await page.evaluate(colours)) >= 8);
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
