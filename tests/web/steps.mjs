// What the rounds through the page share: saying what holds, and the way from the address to the room.
import { wait } from "./driver.mjs";

export let failures = 0;
export function check(name, good, seen = "") {
    console.log((good ? "ok      " : "FAILED  ") + name + (good || seen === "" ? "" : ": " + JSON.stringify(seen)));
    if (!good) ++failures;
}

let pictures = null;  // what stands before their names
export function keepPictures(before) { pictures = before; }
// Waits until a condition outside of the page holds; false if it never does.
export async function eventually(condition, patience = 30000) {
    for (const end = Date.now() + patience; Date.now() < end; await wait(50)) if (await condition()) return true;
    return false;
}
// Does something again where it went for nothing, as a key or a click does while the game is busy.
export async function doUntil(act, page, condition, what, patience = 4000) {
    for (let tries = 1; ; ++tries) {
        await act();
        try {
            return await page.until(condition, what, patience);
        } catch (failure) {
            if (tries === 8) throw failure;
        }
    }
}

export const shot = (page, name) => (pictures ? page.shot(pictures + name + ".png") : null);

export const state = (name) => `document.documentElement.dataset.state === "${name}"`;
export const topWindow = (name) => `document.documentElement.dataset.window === "${name}"`;
// True once the page has said so, in a note beside the game.
export const told = (text) => `document.getElementById("toasts").textContent.includes("${text}")`;

// How many colours stand in the topmost window: a picture has many, an empty canvas one.
export const colours = `(() => {
    const canvas = document.querySelector("#stage .window:last-child canvas");
    const data = new Uint32Array(canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data.buffer);
    return new Set(data).size;
})()`;
// A pixel of the topmost window as red, green, blue.
export const pixel = (x, y) => `[...document.querySelector("#stage .window:last-child canvas").getContext("2d").getImageData(${x}, ${y}, 1, 1).data].slice(0, 3).join(" ")`;

const middle = (element) => `(() => { const r = ${element}.getBoundingClientRect(); return [r.x + r.width / 2, r.y + r.height / 2]; })()`;
export const middleOf = (page, id) => page.evaluate(middle(`document.getElementById("${id}")`));
// A point of the topmost window by its parts.
export const partOf = (page, x, y) => page.evaluate(`(() => {
    const r = document.querySelector("#stage .window:last-child canvas").getBoundingClientRect();
    return [r.x + r.width * ${x}, r.y + r.height * ${y}];
})()`);

export async function toStart(page, url) {
    await page.open(url);
    await page.until(state("ready"), "the page to be ready", 60000);
}
export async function begin(page) {
    const [x, y] = await middleOf(page, "begin");
    if (page.phone) await page.tap(x, y);
    else await page.click(x, y);
}
export async function fromStartToMenu(page) {
    await begin(page);
    await page.until(topWindow("Menu"), "the menu");
    await page.until(colours + " > 30", "a picture of the menu");
}
export async function toMenu(page, url) {
    await toStart(page, url);
    await fromStartToMenu(page);
}
export async function toRoom(page) {
    if (page.phone) await page.tap(...await partOf(page, 0.2, 0.45));  // a little below the line
    else await page.key(13, "Enter", { text: "\r" });
    await page.until(topWindow("Form1"), "the room");
    await page.until(colours + " > 200", "a picture of the room");
}
// Through the texts of the opening: only a free hand opens the dialog for saving. The key that reads on opens and closes
// the bag afterwards, which does no harm.
export async function toIdle(page) {
    const opens = () => page.until(topWindow("Dialog"), "", 400).then(() => true, () => false);
    const free = await eventually(async () => {
        await page.key(32, " ", { text: " " });
        await page.key(113, "F2");
        return opens();
    }, 150000);
    if (!free) throw new Error("waited in vain for a free hand");
    await page.key(27, "Escape");
    await page.until(topWindow("Form1"), "the room behind the dialog");
}
// A room of a page of test data, by its name behind the address.
export async function toTestRoom(page, server, room) {
    await toStart(page, `http://localhost:${server.address().port}/#${room}.lsd`);
    await begin(page);
}
export async function typeIn(page, word) {
    for (const letter of word) await page.key(letter.toUpperCase().charCodeAt(0), letter, { text: letter });
}

// Saves under a name, by the keys that a player would press.
export async function save(page, name) {
    await doUntil(() => page.key(113, "F2"), page, topWindow("Dialog"), "the dialog");
    await typeIn(page, name);
    await shot(page, "dialog");
    await page.key(13, "Enter", { text: "\r" });
    await page.until(topWindow("MsgBox"), "the answer to saving");
    await shot(page, "saved");
    check("the game says that it has saved", /erfolgreich/.test(await page.evaluate(`document.documentElement.dataset.box`)));
    await page.key(13, "Enter", { text: "\r" });
    await page.until(`document.documentElement.dataset.kept !== undefined`, "the saved game to be kept");
}
export async function load(page, name) {
    await doUntil(() => page.key(112, "F1"), page, topWindow("Dialog"), "the dialog for loading");
    await shot(page, "load");
    await typeIn(page, name);
    await page.key(13, "Enter", { text: "\r" });
    await page.until(topWindow("Form1"), "the loaded room");
    await page.until(colours + " > 200", "a picture of the loaded room");
    check("a saved game outlasts the page and is loaded", true);
}
