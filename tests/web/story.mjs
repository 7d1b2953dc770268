// From the link to the credits: node story.mjs DIR ENGINE WALK [mouse|touch] [PICTURES]. DIR is the page, ENGINE has
// zentrox-watched, the same engine with an ear for questions. The page's clock runs faster, or the long games would take
// minutes. Exit status 77 where something is not there.
import { cpSync, existsSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { gzipSync } from "node:zlib";
import os from "node:os";
import path from "node:path";
import { serve } from "../../scripts/serve.mjs";
import { Browser, chromium } from "./driver.mjs";
import { Walker } from "./walker.mjs";

const hurry = 6;
const [directory, engine, walk, hands = "mouse", pictures] = process.argv.slice(2);
if (!chromium() || !existsSync(path.join(directory, "index.html")) || !existsSync(path.join(engine, "zentrox-watched.wasm"))) {
    console.log("There is no Chromium, no page, or no watched engine.");
    process.exit(77);
}

// The page with the watched engine in place of its own; the data are those of the page.
const place = mkdtempSync(path.join(os.tmpdir(), "zentrox-story-"));
for (const name of readdirSync(directory))
    if (name !== "data" && name !== "cd") cpSync(path.join(directory, name), path.join(place, name), { recursive: true });
const app = path.join(place, "app", readdirSync(path.join(place, "app"))[0]);
const story = JSON.parse(readFileSync(path.join(app, "story.json")));
writeFileSync(path.join(place, story.engine.u), gzipSync(readFileSync(path.join(engine, "zentrox-watched.wasm")), { level: 1 }));
// The emscripten helper for calls takes one made while the game waits for part of that wait; this one does not.
const ask = `Module["ask"] = function (what, name) {
    var stack = stackSave();
    var texts = [what, name].map(function (text) {
        var room = lengthBytesUTF8(text) + 1;
        var place = stackAlloc(room);
        stringToUTF8(text, place, room);
        return place;
    });
    var answer = UTF8ToString(_zentroxAsk(texts[0], texts[1]));
    stackRestore(stack);
    return answer;
};`;
const script = readFileSync(path.join(engine, "zentrox-watched.js"), "utf8");
writeFileSync(path.join(app, "engine.js"), script.replace(`Module["callMain"]=callMain;`, `Module["callMain"]=callMain;${ask}`));
const main = path.join(app, "main.js");
writeFileSync(main, readFileSync(main, "utf8")
    .replace("engine = await makeEngine(module);", `engine = await makeEngine(module);
    window.zentroxAsk = (what, name) => engine.ask(what, name);`));
rmSync(path.join(place, "sw.js"));

const server = await serve([place, directory]);
const browser = await Browser.start();
let page;
try {
    const phone = hands === "touch";
    page = await browser.page(phone ? { width: 740, height: 360, ratio: 2, phone } : { width: 1280, height: 800 });
    await page.send("Page.addScriptToEvaluateOnNewDocument", { source: `(() => {
        const now = performance.now.bind(performance), timer = setTimeout;
        performance.now = () => now() * ${hurry};
        self.setTimeout = (action, time, ...all) => timer(action, time / ${hurry}, ...all);
    })()` });
    await page.open(`http://localhost:${server.address().port}/`);
    await page.until(`document.documentElement.dataset.state === "ready"`, "the page", 60000);
    await page.evaluate(`document.getElementById("begin").click()`);
    if (phone) await page.until(`!document.querySelector("#keys.x")`);
    const walker = new Walker(page, { touch: phone, hurry, tell: (line) => console.log(line) });
    await walker.play(readFileSync(walk, "utf8"));
    const complaints = page.complaints.filter((line) => !/sw\.js|ServiceWorker/.test(line));
    if (complaints.length) throw new Error("complaints in the console: " + complaints.join(" | "));
    console.log("ok      the walk came to its end");
} catch (failure) {
    console.log("FAILED  " + failure.message);
    if (page && pictures) await page.shot(path.join(pictures, "story-failure.png")).catch(() => {});
    process.exitCode = 1;
} finally {
    await browser.stop();
    server.close();
    server.closeAllConnections();
    rmSync(place, { recursive: true, force: true });
}
process.exit();
