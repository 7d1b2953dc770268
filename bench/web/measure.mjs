// Measures the page: node bench/web/measure.mjs build/web [GAMES], GAMES a page of tests/games for the frames of Jump.
import { existsSync } from "node:fs";
import path from "node:path";
import { serve } from "../../scripts/serve.mjs";
import { Browser, wait } from "../../tests/web/driver.mjs";
import { toIdle } from "../../tests/web/steps.mjs";

const [directory, games] = process.argv.slice(2);
const state = (name) => `document.documentElement.dataset.state === "${name}"`;
const topWindow = (name) => `document.documentElement.dataset.window === "${name}"`;
const painted = (most) => `(() => {
    const canvas = document.querySelector("#stage .window:last-child canvas");
    return canvas && new Set(new Uint32Array(canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data.buffer)).size > ${most};
})()`;
const tell = (what, value) => console.log(what.padEnd(52) + value);

async function begin(page, url) {
    await page.open(url);
    await page.until(state("ready"), "the page", 60000);
    await page.evaluate(`document.getElementById("begin").click()`);
}
// Processor time of the page's thread, milliseconds; waiting for a processor is not counted.
async function countThread(page) {
    await page.send("Performance.disable");
    await page.send("Performance.enable", { timeDomain: "threadTicks" });
}
async function spent(page) {
    const { metrics } = await page.send("Performance.getMetrics");
    return metrics.find((metric) => metric.name === "TaskDuration").value * 1000;
}

const browser = await Browser.start();
try {
    let bytes = 0;
    const server = await serve(directory, 0, (url, size) => { bytes += size; });
    const url = `http://localhost:${server.address().port}/`;
    const page = await browser.page({ width: 1366, height: 768 });
    await countThread(page);
    const begun = performance.now();
    await page.open(url);
    await page.until(state("ready"), "the page", 60000);
    const ready = performance.now() - begun;
    const clicked = performance.now();
    await page.evaluate(`document.getElementById("begin").click()`);
    await page.until(topWindow("Menu") + " && " + painted(30), "the menu");
    const menu = performance.now() - clicked;
    const untilMenu = bytes, work = await spent(page);
    tell("start page ready, ms", ready.toFixed(0));
    tell("from the click to the menu's picture, ms", menu.toFixed(0));
    tell("first picture of the menu without the wait for a click, ms", (ready + menu).toFixed(0));
    tell("the page's thread until then, ms of processor time", work.toFixed(0));
    tell("transferred to the menu's picture, KB", (untilMenu / 1024).toFixed(0));
    const room = performance.now();
    await page.key(13, "Enter", { text: "\r" });
    await page.until(topWindow("Form1") + " && " + painted(200), "the room");
    tell("from the menu to the first room's picture, ms", (performance.now() - room).toFixed(0));
    tell("transferred to the first room, KB", (bytes / 1024).toFixed(0));

    // Through the opening to where nothing happens; with the bag open or closed, a room stands still.
    await toIdle(page);
    await page.until(`document.documentElement.dataset.offline === "ready"`, "all of the story to be kept", 240000);
    await wait(4000);
    const before = await spent(page);
    await wait(10000);
    tell("processor time of an idle room, % of a core", ((await spent(page) - before) / 100).toFixed(2));
    await page.close();
    server.close();
    server.closeAllConnections();

    if (games && existsSync(path.join(games, "index.html"))) {
        const gamesServer = await serve(games);
        const jump = await browser.page({ width: 1366, height: 768 });
        await countThread(jump);
        await begin(jump, `http://localhost:${gamesServer.address().port}/#jump.lsd`);
        await jump.until(topWindow("Jump"), "Jump", 60000);
        await wait(2000);
        await jump.key(39, "ArrowRight", { up: false });
        const work = await spent(jump);
        const frames = await jump.evaluate(`new Promise((resolve) => {
            const times = [];
            const proto = CanvasRenderingContext2D.prototype;
            const draw = proto.putImageData;
            proto.putImageData = function (...all) { times.push(performance.now()); return draw.apply(this, all); };
            setTimeout(() => { proto.putImageData = draw; resolve(times); }, 5000);
        })`);
        const steps = frames.slice(1).map((time, i) => time - frames[i]).sort((a, b) => a - b);
        tell("Jump: pictures a second", (frames.length / 5).toFixed(1));
        tell("Jump: between two pictures, ms (median, 99 of 100)", steps[steps.length >> 1].toFixed(1) + ", " + steps[Math.floor(steps.length * 0.99)].toFixed(1));
        tell("Jump: processor time, % of a core", ((await spent(jump) - work) / 50).toFixed(1));
        gamesServer.close();
        gamesServer.closeAllConnections();
    }
} finally {
    await browser.stop();
}
