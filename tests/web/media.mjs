// Sounds and films on a page of tests/walks, and what happens where they or the network are lost.
import { wait } from "./driver.mjs";
import { begin, check, colours, partOf, pixel, shot, state, toTestRoom, told, topWindow, toStart } from "./steps.mjs";

const red = "255 0 0";  // the room's picture
const objects = { speech: 0.08, other: 0.23, song: 0.54, film: 0.86 };  // of the room, from left to right
const blocked = (page, urls) => page.send("Network.setBlockedURLs", { urls });
const use = async (page, object) => page.click(...await partOf(page, objects[object], 0.1));
// A click while the room is still busy goes for nothing.
async function useUntil(page, object, condition, what) {
    for (let tries = 1; ; ++tries) {
        await use(page, object);
        try {
            return await page.until(condition, what, 4000);
        } catch (failure) {
            if (tries === 5) throw failure;
        }
    }
}

async function toSounds(page, server) {
    await toTestRoom(page, server, "ton");
    await page.until(topWindow("Form1"), "the room of sounds");
    await page.until(`${pixel(320, 240)} === "${red}"`, "its picture");
}

// Where the band of a text stands it is black at its edge. A text that has just come takes no key yet.
const band = `${pixel(5, 240)} === "0 0 0"`;
async function readOn(page, texts) {
    for (let i = 0; i < texts; ++i) {
        await page.until(`${band} && ${colours} > 3`, "a text");
        await wait(1000);
        await page.key(32, " ", { text: " " });
    }
    await page.until(`!(${band})`, "the room without a text");
}

export async function filmRound(browser, server) {
    const page = await browser.page({ width: 1024, height: 768 });
    await toSounds(page, server);
    await useUntil(page, "film", `${pixel(320, 240)} !== "${red}"`, "a picture of the film");
    await shot(page, "film");
    const first = await page.evaluate(`document.querySelector("#stage .window:last-child canvas").toDataURL()`);
    await wait(300);
    check("the pictures of a film follow each other", first !== await page.evaluate(`document.querySelector("#stage .window:last-child canvas").toDataURL()`));
    await page.until(`${pixel(320, 240)} === "${red}"`, "the room behind the film");
    await useUntil(page, "film", `${pixel(320, 240)} !== "${red}"`, "the film again");
    await page.key(27, "Escape");
    await page.until(`${pixel(320, 240)} === "${red}"`, "the room, by Escape", 1000);
    check("a film plays to its end, or until Escape", true);
    const complaints = page.complaintsOf ? await page.complaintsOf(server) : page.complaints;
    check("a film without a complaint", complaints.length === 0, complaints);
    await page.close();
}

export async function lossRound(browser, server) {
    const page = await browser.page({ width: 1024, height: 768 });
    await page.send("Network.setBypassServiceWorker", { bypass: true });
    await toSounds(page, server);
    // Once with a network, so that the letters are there.
    await useUntil(page, "other", band, "its text");
    await readOn(page, 2);
    await blocked(page, ["*/data/*"]);
    await useUntil(page, "speech", told("Eine Stimme fehlt"), "a word about the voice");
    check("a lost voice is told of, and its text stands", (await page.evaluate(band)));
    await readOn(page, 1);
    await useUntil(page, "song", told("Ein Lied fehlt"), "a word about the song");
    check("a lost song is told of", true);
    await useUntil(page, "film", told("Der Film fehlt"), "a word about the film");
    await shot(page, "lost");
    await useUntil(page, "speech", band, "the next text");
    check("a lost film is told of, and it goes on", true);
    await page.close();
}

// A room is waited for.
export async function networkRound(browser, server) {
    const page = await browser.page({ width: 1024, height: 768 });
    await page.send("Network.setBypassServiceWorker", { bypass: true });
    await toStart(page, `http://localhost:${server.address().port}/#bild.lsd`);
    await blocked(page, ["*/data/*"]);
    await begin(page);
    await page.until(told("Die Verbindung ist weg"), "a word about the network", 10000);
    await shot(page, "offline");
    check("without a network the game waits", await page.evaluate(state("playing")));
    await blocked(page, []);
    await page.evaluate(`document.querySelector("#toasts button").click()`);
    await page.until(topWindow("Form1"), "the room when the network is back");
    check("and goes on when it is back", true);
    await page.close();
}
