// Sounds and films on a page of tests/walks, and what happens where they or the network are lost.
import { wait } from "./driver.mjs";
import { begin, check, colours, doUntil, eventually, partOf, pixel, shot, state, toTestRoom, told, topWindow, toStart } from "./steps.mjs";

const red = "255 0 0";  // the room's picture
const objects = { speech: 0.08, other: 0.23, song: 0.54, film: 0.86 };  // of the room, from left to right
const blocked = (page, urls) => page.send("Network.setBlockedURLs", { urls });
const use = async (page, object) => page.click(...await partOf(page, objects[object], 0.1));

// Where the band of a text stands it is black at its edge.
const band = `${pixel(5, 240)} === "0 0 0"`;
// Reads on first where a text stands.
async function useUntil(page, object, condition, what) {
    const act = async () => {
        await readOn(page);
        await use(page, object);
    };
    return doUntil(act, page, condition, what);
}
// A text that has just come takes no key yet.
async function readOn(page) {
    const gone = async () => {
        if (!await page.evaluate(band)) return true;
        await page.key(32, " ", { text: " " });
        await wait(250);
        return false;
    };
    if (!await eventually(gone)) throw new Error("waited in vain for the end of a text");
}

async function toSounds(page, server) {
    await toTestRoom(page, server, "ton");
    await page.until(topWindow("Form1"), "the room of sounds");
    await page.until(`${pixel(320, 240)} === "${red}"`, "its picture");
}

// Notes in the page how many different pictures the next film shows, and for how many milliseconds, once the room is back.
const watch = `(() => {
    const canvas = document.querySelector("#stage .window:last-child canvas"), seen = new Set();
    let begun = 0;
    delete document.documentElement.dataset.film;
    const look = () => {
        const data = new Uint32Array(canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data.buffer);
        if (data[240 * canvas.width + 320] !== 0xff0000ff) {
            if (!begun) document.documentElement.dataset.film = "begun";
            begun ||= performance.now();
            seen.add(data.reduce((sum, pixel) => (Math.imul(sum, 31) + pixel) | 0, 0));
        } else if (begun) {
            document.documentElement.dataset.film = seen.size + " " + (performance.now() - begun);
            return;
        }
        setTimeout(look, 15);
    };
    look();
    return true;
})()`;
const film = "document.documentElement.dataset.film";
const watched = async (page) => (await page.until(`/ /.test(${film}) && ${film}`, "the room behind the film")).split(" ").map(Number);

export async function filmRound(browser, server) {
    const page = await browser.page({ width: 1024, height: 768 });
    await toSounds(page, server);
    const begins = async () => {
        await page.evaluate(watch);
        await useUntil(page, "film", film, "a picture of the film");
    };
    // It lasts a second, of which a busy machine may show little.
    let most = 0;
    const plays = async () => {
        await begins();
        most = Math.max(most, (await watched(page))[0]);
        return most > 1;
    };
    check("the pictures of a film follow each other", await eventually(plays, 60000), most);
    let least = Infinity;
    const ends = async () => {
        await begins();
        await page.key(27, "Escape");
        least = Math.min(least, (await watched(page))[1]);
        return least < 700;
    };
    check("Escape ends a film", await eventually(ends, 60000), least);
    const complaints = page.complaintsOf ? await page.complaintsOf(server) : page.complaints;
    check("a film without a complaint", complaints.length === 0, complaints);
    await page.close();
}

export async function lossRound(browser, server) {
    const page = await browser.page({ width: 1024, height: 768 });
    await page.send("Network.setBypassServiceWorker", { bypass: true });
    await toSounds(page, server);
    // Once with a network, so that the letters are there.
    await useUntil(page, "other", `${band} && ${colours} > 3`, "its text");
    await readOn(page);
    await blocked(page, ["*/data/*"]);
    await useUntil(page, "speech", told("Eine Stimme fehlt"), "a word about the voice");
    await page.until(band, "its text");
    check("a lost voice is told of, and its text stands", true);
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
    await page.until(told("Die Verbindung ist weg"), "a word about the network");
    await shot(page, "offline");
    check("without a network the game waits", await page.evaluate(state("playing")));
    await blocked(page, []);
    await page.evaluate(`document.querySelector("#toasts button").click()`);
    await page.until(topWindow("Form1"), "the room when the network is back");
    check("and goes on when it is back", true);
    await page.close();
}
