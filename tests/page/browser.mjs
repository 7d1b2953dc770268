// The page of a story in a real browser: node browser.mjs ZENTROX-STORY WORK DEMO-SOURCES DEMO-DATA TRAP ZENTROX-PROBE
// TRAP is a story with a dead end.
// Exit status 77 where there is no Chromium.
import { execFileSync, spawnSync } from "node:child_process";
import { copyFileSync, existsSync, mkdirSync, readFileSync, readdirSync, rmSync, statSync, writeFileSync } from "node:fs";
import path from "node:path";
import { pathToFileURL } from "node:url";
import { Browser, chromium, installed, wait } from "../web/driver.mjs";
import { Firefox } from "../web/marionette.mjs";

const [zentroxStory, work, demo, demoData, trap, probe] = process.argv.slice(2);
const program = chromium();
if (!program) {
    console.log("There is no Chromium.");
    process.exit(77);
}
let failures = 0;
function check(name, good, seen = "") {
    console.log((good ? "ok      " : "FAILED  ") + name + (good || seen === "" ? "" : ": " + JSON.stringify(seen)));
    if (!good) ++failures;
}
const run = (...words) => execFileSync(zentroxStory, words, { stdio: ["ignore", "pipe", "pipe"], encoding: "utf8" });
// What a call says, whatever comes of it.
const outputOf = (words, env = process.env) => spawnSync(zentroxStory, words, { env, encoding: "utf8" });

// A story that does its best to break the page, in a directory whose name has to be escaped in addresses.
const evil = `Person Ada
    Farbe 7
    Stimme "ada"
Raum "Böse & <b>Räume.lsd"
    Bild "raum.jpg"
    Start
        SetzeMerker "</script><script>window.slipped=1</script>"
        Ada: "</script><script>window.slipped=2</script>"
             "<img src=x onerror='window.slipped=3'> & <!-- &amp; ]]>"
    Objekt "<svg onload=alert(1)>"
        Zeiger "hand1.ico"
        Fläche
            Rechteck 100 100 300 200
        Rechts
            WennMerker "</script><script>window.slipped=1</script>"
                Raumwechsel "Start.lsd"
            EndeWenn
        Links
            Gespräch
                Frage "Wohin, „mein Freund“?"
                    Antwort "Nirgends – einmal." einmal
                        Ada: "Gut."
                    Schluss "Fort!"
            EndeGespräch
`;

function make() {
    rmSync(work, { recursive: true, force: true });
    const story = path.join(work, "Ä b#1%");
    mkdirSync(work, { recursive: true });
    run("new", story);
    writeFileSync(path.join(story, "story/boese.story"), evil);
    run("build", path.join(story, "story"), "--into", story);
    const voice = readFileSync(path.join(story, "story/stimmen.tsv"), "utf8").match(/^ada[^\t]+/m)[0];
    mkdirSync(path.join(story, "sounds"), { recursive: true });
    const samples = Buffer.alloc(8000);
    const head = Buffer.from("RIFF\0\0\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1f\0\0\x40\x1f\0\0\x01\0\x08\0data\0\0\0\0", "latin1");
    head.writeUInt32LE(36 + samples.length, 4);
    head.writeUInt32LE(samples.length, 40);
    writeFileSync(path.join(story, "sounds", voice), Buffer.concat([head, samples]));
    const picture = readdirSync(path.join(story, "graphics")).find((name) => /\.(jpg|bmp|png)$/.test(name));
    copyFileSync(path.join(story, "graphics", picture), path.join(story, "graphics/raum.jpg"));
    const page = path.join(work, "seiten/böse.html");
    run("page", path.join(story, "story"), "--into", page, "--title", "A & </title><script>window.slipped=4</script>");
    return pathToFileURL(page).href;
}

const text = (selector) => `(document.querySelector(${JSON.stringify(selector)}) || {}).textContent`;
async function open(page, url) {
    await page.open("about:blank");
    await page.open(url);
    await page.until(`document.documentElement.dataset.ready === "yes"`, "the page");
}
const go = async (page, hash) => {
    await page.evaluate(`location.hash = ${JSON.stringify(hash)}`);
    await wait(80);
};
// The middle of an element, scrolled to.
async function middle(page, selector) {
    await page.until(`document.querySelector(${JSON.stringify(selector)}) !== null`, selector, 5000);
    const at = await page.evaluate(`(() => { const e = document.querySelector(${JSON.stringify(selector)}); if (!e) return null; e.scrollIntoView({ block: "center" }); const r = e.getBoundingClientRect(); return [r.x + r.width / 2, r.y + r.height / 2]; })()`);
    if (!at) throw new Error("no " + selector);
    return at;
}
const click = async (page, selector) => page.click(...await middle(page, selector));
const views = ["karte", "gespraeche", "gespraeche/0", "texte", "merker", "gegenstaende", "personen", "befunde", "beweis", "quelle", "abdeckung"];

// Every view, every room and every link in them.
async function lookAround(page, name) {
    const rooms = await page.evaluate(`story.rooms.map((room) => address("raum", room.file))`);
    const files = await page.evaluate(`story.files.filter((file) => file.t).map((file) => address("quelle", file.n))`);
    const links = new Set();
    for (const hash of [...views.map((view) => "#/" + view), ...rooms, ...files]) {
        await go(page, hash);
        check(name + " shows " + hash, await page.evaluate(`document.querySelectorAll("#view h1").length > 0`));
        await page.evaluate(`document.querySelectorAll("#view details").forEach((one) => { one.open = true; })`);
        for (const link of await page.evaluate(`[...document.querySelectorAll("a")].map((a) => a.getAttribute("href"))`)) links.add(link);
        const wide = await page.evaluate(`document.documentElement.scrollWidth - document.documentElement.clientWidth`);
        check(name + " has room for " + hash, wide <= 0, wide);
    }
    let dead = [...links].filter((link) => link !== "#view" && !/^#\//.test(link));
    check(name + " links to itself alone", dead.length === 0, dead);
    // Without the address, which a browser changes only so often.
    dead = await page.evaluate(`${JSON.stringify([...links])}.filter((link) => {
        if (!link.startsWith("#/")) return false;
        show(link);
        const words = wordsOfAddress(link), heading = document.querySelector("#view h1");
        return !heading || /gibt es nicht/.test(heading.textContent) || ((words[2] === "zeile" || (words[0] === "quelle" && words.length > 2)) && !document.querySelector(".row.here"));
    })`);
    check(name + ": all " + links.size + " links lead somewhere", dead.length === 0, dead.slice(0, 5));
}

async function evilRound(browser) {
    const url = make();
    const page = await browser.page({ width: 1440, height: 900 });
    await page.send("Browser.grantPermissions", { permissions: ["clipboardReadWrite", "clipboardSanitizedWrite"] }).catch(() => {});
    await open(page, url);
    check("the title is text", (await page.evaluate(text("#title"))) === "A & </title><script>window.slipped=4</script>");
    check("the map shows the rooms", (await page.evaluate(`document.querySelectorAll("#view .box.room, #view .cards a").length`)) === 3, await page.evaluate(text("#view")));
    const room = await page.evaluate(`address("raum", story.rooms.find((room) => room.n.startsWith("Böse")).file)`);
    await go(page, room);
    check("the room has its name", (await page.evaluate(text("#view h1"))) === "Böse & <b>Räume", await page.evaluate(text("#view h1")));
    check("the picture is there", await page.evaluate(`document.querySelector(".roomPicture").naturalWidth > 0`));

    await page.mouse("mouseMoved", ...await middle(page, ".areas .area"));
    check("an area tells its name", (await page.evaluate(text(".areaName"))) === "<svg onload=alert(1)>", await page.evaluate(text(".areaName")));
    await click(page, ".areas .area");
    check("a click opens its scripts", await page.evaluate(`document.querySelector("details.object").open && document.querySelectorAll("details.object .code").length > 0`));
    check("texts are text", (await page.evaluate(`document.querySelector("#view").textContent`)).includes("„mein Freund“"));
    await click(page, "details.object button.flag");
    check("a flag tells who sets it and who asks", await page.evaluate(`["sets", "tests"].every((kind) => document.querySelector("#panel .use." + kind + " a"))`), await page.evaluate(text("#panel")));
    await page.key(27, "Escape");
    check("and goes away again", await page.evaluate(`document.getElementById("panel").hidden`));

    // What is drawn comes out as a line of the language.
    await page.evaluate(`window.scrollTo(0, 0)`);
    await click(page, `[data-shape="Rechteck"]`);
    const frame = await page.evaluate(`(() => { const r = document.querySelector(".areas").getBoundingClientRect(); return [r.x, r.y, r.width, r.height]; })()`);
    const at = (x, y) => [frame[0] + x * frame[2] / 640, frame[1] + y * frame[3] / 480];
    await page.drag(at(300, 250), at(120, 80));
    const rectangle = await page.evaluate(text(".drawnLine"));
    const numbers = /^Rechteck (\d+) (\d+) (\d+) (\d+)$/.exec(rectangle);
    check("a rectangle is drawn, its left upper corner first", numbers && numbers.slice(1).every((n, i) => Math.abs(n - [120, 80, 300, 250][i]) <= 1), rectangle);
    await click(page, `[data-shape="Vieleck"]`);
    for (const [x, y] of [[100, 100], [200, 100], [150, 200]]) await page.click(...at(x, y));
    await page.key(13, "Enter");
    const polygon = await page.evaluate(text(".drawnLine"));
    check("a polygon is drawn", /^Vieleck (\d+ \d+, ){2}\d+ \d+$/.test(polygon), polygon);
    await page.send("Page.bringToFront");
    const kept = await page.evaluate(`navigator.clipboard.readText()`).catch((failure) => failure.message);
    check("what is drawn is in the clipboard", kept === polygon, kept);
    writeFileSync(path.join(work, "drawn.story"), `Raum "Start.lsd"\nObjekt "x"\nFläche\n${rectangle}\n${polygon}\nRechts\n`);
    run("build", path.join(work, "drawn.story"), "--into", path.join(work, "drawn"));
    check("and both compile", existsSync(path.join(work, "drawn/rooms/Start.lsd")));

    await go(page, "#/texte");
    const links = await page.evaluate(`[...document.querySelectorAll("[data-voice]")].map((one) => new URL(one.dataset.voice, location.href).href)`);
    check("the links of voices lead to their files", links.length > 0 && links.every((link) => existsSync(new URL(link))), links);
    await page.evaluate(`window.ended = false; document.getElementById("voice").addEventListener("ended", () => { window.ended = true; })`);
    await click(page, "[data-voice]");
    await page.until(`window.ended`, "the voice to end", 8000).then(() => check("a voice is played", true), () => check("a voice is played", false));

    await page.evaluate(`document.getElementById("search").focus()`);
    await page.send("Input.insertText", { text: "freund" });
    check("the search finds what is said", (await page.evaluate(text("#found"))).includes("mein Freund"), await page.evaluate(text("#found")));
    await page.key(13, "Enter");
    await wait(100);
    check("and goes there", await page.evaluate(`Boolean(document.querySelector(".row.here"))`));
    await lookAround(page, "the evil story");
    check("nothing has slipped out", await page.evaluate(`window.slipped === undefined && !document.querySelector("b > script, svg[onload]")`));
    check("no complaint in the console", page.complaints.length === 0, page.complaints);
    const strangers = page.requests.filter((request) => !/^(about|data):/.test(request) && request.split("#")[0] !== url.split("#")[0] && !links.includes(request));
    check("nobody else is asked", strangers.length === 0, strangers);
    await page.close();
}

// Endings and dead ends, step by step.
async function proofRound(browser) {
    const proof = path.join(work, "proof.json"), file = path.join(work, "proof.html");
    writeFileSync(proof, outputOf(["prove", trap, "--json"]).stdout);
    run("page", trap, "--proof", proof, "--into", file);
    const page = await browser.page({ width: 1440, height: 900 });
    await open(page, pathToFileURL(file).href + "#/beweis");
    await page.evaluate(`document.querySelectorAll("#view details").forEach((one) => { one.open = true; })`);
    const plays = await page.evaluate(`[...document.querySelectorAll(".playEntry")].map((play) => [...play.querySelectorAll(".step")].map((step) => step.textContent))`);
    check("each play is told to its end", plays.length === 2 && plays[0].length === 5 && plays[1].length === 3, plays);
    check("answers stand in their own words", plays[0][4].includes("„Ja.“ antworten") && plays[0][4].includes("Eine Insel."), plays[0]);
    check("the dead end says what it takes", (await page.evaluate(text(".deadEnd"))).includes("BEZAHLT"));
    await click(page, ".deadEnd a.place");
    await wait(100);
    check("and leads to its line", (await page.evaluate(text(".row.here"))).includes("GibGegenstand"), await page.evaluate(text(".row.here")));
    check("where it is told as well", (await page.evaluate(text(".code .finding"))).includes("verbaut"));
    await page.close();
}

// Colours for what a walk has run.
async function ranRound(browser) {
    if (!probe || !existsSync(probe)) return console.log("not tried: the probe is not there");
    const story = path.join(work, "fresh"), ran = path.join(work, "ran.json"), file = path.join(work, "ran.html");
    run("new", story);
    run("build", path.join(story, "story"), "--into", story);
    execFileSync(probe, ["--quiet", "--dir", story, "--ran", ran, path.join(story, "walks/start.walk")], { stdio: "ignore" });
    run("page", path.join(story, "story"), "--ran", ran, "--into", file);
    const page = await browser.page({ width: 1440, height: 900 });
    await open(page, pathToFileURL(file).href + "#/quelle/start.story");
    const rows = await page.evaluate(`[document.querySelectorAll(".row.ran").length, document.querySelectorAll(".row.never").length]`);
    check("lines that ran and lines that did not are told apart", rows[0] > 5 && rows[1] > 0, rows);
    check("percentages are shown", /^\d+ %$/.test(await page.evaluate(text(".meter"))));
    await page.close();
}

// Stories that are hardly any, and a machine without Graphviz.
async function oddRound(browser) {
    const odd = { empty: "", person: "Person Ada\n    Farbe 7\n", broken: `Raum "Start.lsd"\n Start\n WennMerker A\n Frage\n Gespräch\n Raum x\n Fall\n Objekt\n Antwort "x"\n Text "a\n` };
    const page = await browser.page({ width: 1440, height: 900 });
    for (const [name, source] of Object.entries(odd)) {
        mkdirSync(path.join(work, name));
        writeFileSync(path.join(work, name, "a.story"), source);
        run("page", path.join(work, name, "a.story"), "--into", path.join(work, name + ".html"));
        await open(page, pathToFileURL(path.join(work, name + ".html")).href);
        await lookAround(page, "the " + name + " story");
    }
    const call = outputOf(["page", trap, "--into", path.join(work, "lists.html")], { ...process.env, PATH: "/nonexistent" });
    check("a missing Graphviz is named", call.status === 0 && call.stderr.includes("graphviz"), call.stderr);
    await open(page, pathToFileURL(path.join(work, "lists.html")).href);
    check("and lists stand in its place", await page.evaluate(`document.querySelectorAll("#view .cards a").length === 2 && document.querySelectorAll("#view .ways li").length > 0`));
    await lookAround(page, "the page of lists");
    check("the odd ones do not complain", page.complaints.length === 0, page.complaints);
    await page.close();
}

// The same page in another browser, in short.
async function firefoxRound() {
    const firefox = installed(["firefox-esr", "firefox"]), file = path.join(work, "proof.html");
    if (!firefox || !existsSync(file)) return console.log("not tried: there is no Firefox");
    const browser = await Firefox.start({ program: firefox });
    try {
        const page = await browser.page({ width: 1280, height: 800 });
        await page.open(pathToFileURL(file).href);
        await page.until(`document.documentElement.dataset.ready === "yes"`, "the page");
        const failed = await page.evaluate(`${JSON.stringify(views)}.filter((view) => { try { show("#/" + view); return !document.querySelector("#view h1"); } catch (failure) { return true; } })`);
        check("Firefox shows all views", failed.length === 0, failed);
        check("and places the map", await page.evaluate(`(show("#/karte"), document.querySelectorAll("#view .box.room").length === 2)`));
    } finally {
        await browser.stop();
    }
}

async function demoRound(browser) {
    if (!existsSync(path.join(demoData, "graphics"))) return console.log("not tried: the demo's data is not there");
    const file = path.join(work, "demo.html");
    run("page", demo, "--data", demoData, "--into", file);
    const size = statSync(file).size;
    check("the demo's page has under 5 MB", size < 5e6, size);
    console.log("the demo's page has " + size + " bytes");
    for (const [name, width, height] of [["the wide demo", 1440, 900], ["the narrow demo", 390, 844]]) {
        const page = await browser.page({ width, height, phone: width < 900 });
        await open(page, pathToFileURL(file).href);
        const pictures = await page.evaluate(`Promise.all([...document.images].map((image) => image.decode().then(() => true, () => false)))`);
        check(name + " has its pictures", pictures.length > 8 && pictures.every(Boolean));
        if (width > 900) await lookAround(page, name);
        else for (const view of [...views, "raum/Flur.lsd"]) {
            await go(page, "#/" + view);
            const wide = await page.evaluate(`document.documentElement.scrollWidth - document.documentElement.clientWidth`);
            check(name + " has room for " + view, wide <= 0, wide);
        }
        if (page.phone) {
            await page.until(`document.querySelector(".areas") !== null`);
            await page.tap(...await middle(page, `[data-shape="Rechteck"]`));
            const [x, y] = await middle(page, ".areas");
            await page.slide([x - 60, y - 40], [x + 50, y + 60]);
            const drawn = await page.evaluate(text(".drawnLine"));
            check(name + " takes a drawing by finger", /^Rechteck \d+ \d+ \d+ \d+$/.test(drawn), drawn);
        }
        check(name + " does not complain", page.complaints.length === 0, page.complaints);
        await page.shot(path.join(work, name.replace(/ /g, "-") + ".png"));
        await page.close();
    }
}

const browser = await Browser.start({ program, options: ["--autoplay-policy=no-user-gesture-required"] });
try {
    await evilRound(browser);
    await oddRound(browser);
    await proofRound(browser);
    await ranRound(browser);
    await demoRound(browser);
    await firefoxRound();
} catch (failure) {
    check(failure.message, false);
    const last = browser.pages[browser.pages.length - 1];
    if (last) console.log(last.complaints.slice(0, 5).join("\n"));
} finally {
    await browser.stop();
}
process.exit(failures ? 1 : 0);
