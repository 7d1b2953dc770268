// The first seconds of each mini-game, on a page of tests/games.
import { wait } from "./driver.mjs";
import { check, colours, partOf, shot, toTestRoom, topWindow } from "./steps.mjs";

// The room, its window, the colours that are seen at least. The first two begin by themselves.
const games = [
    ["jump", "Jump", 20], ["bruhks", "Bruhks", 20], ["pong", "Pong", 8], ["memory", "Memory", 20], ["pi", "PISpiel", 4],
    ["quiz", "HDW", 4], ["riddle", "Form2", 4], ["fight", "Prügel", 20],
];
const atOnce = ["Jump", "Bruhks"];

export async function gamesRound(browser, server) {
    for (const [room, name, many] of games) {
        const page = await browser.page({ width: 1024, height: 768 });
        await toTestRoom(page, server, room);
        if (!atOnce.includes(name)) {  // a click on the only thing in the room
            await page.until(topWindow("Form1"), "the room of " + name);
            await wait(1500);
            await page.click(...await partOf(page, 0.5, 0.5));
        }
        await page.until(topWindow(name), name, 60000).catch(() => {});
        await wait(2500);
        await shot(page, "game-" + room);
        const seen = await page.evaluate(colours).catch(() => 0);
        check(name + " begins", seen >= many && (await page.evaluate(topWindow(name))), seen);
        check(name + " without a complaint", page.complaints.length === 0, page.complaints);
        await page.close();
    }
}
