// The first seconds of each mini-game, on a page of tests/games.
import { check, colours, doUntil, partOf, shot, toTestRoom, topWindow } from "./steps.mjs";

// The room, its window, the colours that are seen at least. The first two begin by themselves.
const games = [
    ["jump", "Jump", 20], ["bruhks", "Bruhks", 20], ["pong", "Pong", 8], ["memory", "Memory", 20], ["pi", "PISpiel", 4],
    ["quiz", "HDW", 4], ["riddle", "Form2", 4], ["fight", "Prügel", 20],
];
const atOnce = ["Jump", "Bruhks"];

export async function gameBegins(page, server, room, name, many) {
    await toTestRoom(page, server, room);
    if (!atOnce.includes(name)) {  // a click on the only thing in the room
        await page.until(topWindow("Form1"), "the room of " + name);
        const click = async () => page.click(...await partOf(page, 0.5, 0.5));
        await doUntil(click, page, topWindow(name), "the window of " + name);
    }
    await page.until(`${topWindow(name)} && ${colours} >= ${many}`, "a picture of " + name, 60000);
    await shot(page, "game-" + room);
    check(name + " begins", true);
}

export async function gamesRound(browser, server) {
    for (const [room, name, many] of games) {
        const page = await browser.page({ width: 1024, height: 768 });
        await gameBegins(page, server, room, name, many);
        check(name + " without a complaint", page.complaints.length === 0, page.complaints);
        await page.close();
    }
}
