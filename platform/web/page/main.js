// The page from its loading to the end of the game: fetches the engine, asks for the first click, and joins the engine
// to what the browser has.
import { Film } from "./film.js";
import { Input, kinds } from "./input.js";
import { complain, progress, toast } from "./look.js";
import { Saves } from "./saves.js";
import { Sound } from "./sound.js";
import { Story } from "./story.js";
import { Touch } from "./touch.js";
import { Windows } from "./windows.js";

const element = (id) => document.getElementById(id);
const folder = new URL(".", import.meta.url).href;
const html = document.documentElement;

const windows = new Windows(element("stage"), () => input.push(kinds.close));
const input = new Input(windows);
const touch = new Touch(windows, input);
let story, saves, sound, film, engine;

// --- full screen

async function fullScreen() {
    try {
        if (document.fullscreenElement) return await document.exitFullscreen();
        await html.requestFullscreen({ navigationUI: "hide" });
        if (screen.orientation && screen.orientation.lock) screen.orientation.lock("landscape").catch(() => {});
        // Escape is a key of the game.
        if (navigator.keyboard && navigator.keyboard.lock) navigator.keyboard.lock(["Escape"]).catch(() => {});
    } catch (failure) {
        complain("Dieser Browser lässt kein Vollbild zu.");
    }
}
input.fullScreen = fullScreen;

// --- what the engine asks of the page

function pageFor() {
    const begin = performance.now();
    const clock = () => performance.now() - begin;
    return {
        clock,
        keys: input.keys,
        next: () => input.next(),
        sleep(until, wakeUp) {
            if (input.pending.length) return wakeUp();
            let timer = 0;
            const done = () => {
                clearTimeout(timer);
                if (input.wake === done) input.wake = null;
                wakeUp();
            };
            input.wake = done;
            // Browsers drop the part behind the point, and would wake twice.
            if (until >= 0) timer = setTimeout(done, Math.max(0, Math.ceil(until - clock())));
        },
        open: (...all) => { windows.open(...all); html.dataset.window = all[1]; },
        close: (number) => { windows.close(number); saves.keep(); html.dataset.window = windows.top ? windows.top.name : ""; },
        reshape: (...all) => windows.reshape(...all),
        draw: (...all) => windows.draw(...all),
        pointer: (...all) => windows.pointer(...all),
        pointerPicture: (...all) => windows.pointerPicture(...all),
        box: (title, text) => { html.dataset.box = text; saves.keep(); },
        near(path, wakeUp) {
            if (story.isNear(path)) return wakeUp();
            story.near(path).then(wakeUp);
        },
        clipboard: "",
        setClipboard(text) {
            this.clipboard = text;
            if (navigator.clipboard) navigator.clipboard.writeText(text).catch(() => {});
        },
        show(path) {
            if (![...story.files.keys()].some((file) => file.startsWith(path))) return false;
            const page = path.endsWith(".html") ? path : path + "/index.html";
            return window.open(new URL("../../" + page.slice(1).split("/").map(encodeURIComponent).join("/"), folder), "_blank", "noopener") !== undefined;
        },
        sound,
        film,
    };
}
addEventListener("paste", (event) => {
    if (engine) engine.page.clipboard = event.clipboardData.getData("text");
});

// --- the engine

async function compile() {
    const whole = story.list.engine.k;
    const response = await fetch(new URL("../../" + story.list.engine.u, folder));
    if (!response.ok || !response.body) throw new Error("engine");
    let got = 0;
    const counted = new TransformStream({
        transform(piece, to) {
            got += piece.byteLength;
            element("startText").textContent = "Wird geladen … " + Math.min(100, Math.round(got / whole * 100)) + " %";
            to.enqueue(piece);
        },
    });
    const bytes = await new Response(response.body.pipeThrough(counted)).arrayBuffer();
    return WebAssembly.compile(await story.unpacked(new Response(bytes), true));
}

function engineScript() {
    return new Promise((resolve, reject) => {
        const script = document.createElement("script");
        script.src = folder + "engine.js";
        script.onload = resolve;
        script.onerror = () => reject(new Error("engine.js"));
        document.head.append(script);
    });
}

// One engine plays from the menu to its end; the next game gets a fresh one.
async function makeEngine(module) {
    const made = await zentroxEngine({
        page: pageFor(),
        instantiateWasm(imports, done) {
            WebAssembly.instantiate(module, imports).then((instance) => done(instance, module));
            return {};
        },
        print: (line) => console.log(line),
        printErr: (line) => console.error(line),
        onExit: (status) => ended(status),
        onAbort: (what) => ended(2, what),
    });
    story.prepare(made.FS);
    await saves.give(made.FS, story.list.root + "/saves");
    return made;
}

// What the menu shows and what comes right after it.
function fetchFirst() {
    story.queue([...story.files.keys()].filter((path) => /\/fonts\/(LiberationSans-|terminus)/.test(path)), true);
    const rooms = Object.keys(story.list.rooms);
    const first = rooms.find((path) => /\/start\.lsd$/i.test(path)) || rooms[0];
    if (first) setTimeout(() => story.queue([first]), 1500);
}

let module;
let playing = false;

function ended(status, what) {
    if (!playing) return;
    playing = input.active = false;
    saves.keep();
    for (const window of [...windows.open_]) windows.close(window.number);
    for (let track = 0; track < 3; ++track) sound.stop(track);
    film.stop();
    progress(null);
    html.dataset.state = status === 0 ? "ended" : "failed";
    if (what) toast("Das Spiel musste abbrechen: " + what, { stays: true });
    element("startText").textContent = status === 0 ? "Auf Wiedersehen." : "Das Spiel ist zu Ende.";
    element("begin").textContent = "Noch einmal";
    element("start").hidden = false;
    element("tools").hidden = element("bag").hidden = element("keys").hidden = true;
    document.body.classList.remove("playing");
    makeEngine(module).then((made) => { engine = made; element("begin").disabled = false; });
    element("begin").disabled = true;
}

function begin() {
    sound.unlock();
    element("start").hidden = true;
    element("tools").hidden = false;
    document.body.classList.add("playing");
    windows.stage.focus();
    playing = input.active = true;
    input.pending.length = 0;
    html.dataset.state = "playing";
    if (matchMedia("(pointer: coarse)").matches) {
        touch.begin();
        fullScreen();
    }
    try {
        // A room named behind the address begins the game there, as on the command line of the desktop.
        engine.callMain([decodeURIComponent(location.hash.slice(1)), story.list.root, ...story.list.discs]);
    } catch (failure) {
        if (failure.name !== "ExitStatus") ended(2, failure.message);
    }
    setTimeout(() => story.keepAll(), 15000);
}

function wireTools() {
    element("begin").addEventListener("click", begin);
    element("startSaves").addEventListener("click", () => saves.show());
    element("toolSaves").addEventListener("click", () => saves.show());
    element("toolScale").addEventListener("click", () => toast(windows.toggleWhole() ? "Größe: ganze Vielfache" : "Größe: füllend"));
    element("toolFull").addEventListener("click", fullScreen);
    element("toolClose").addEventListener("click", () => input.push(kinds.close));
    for (const button of document.querySelectorAll("#tools button"))
        button.addEventListener("click", () => { button.blur(); windows.stage.focus(); });
    windows.changed = (top) => { input.letGo(); touch.show(top); };
    addEventListener("beforeunload", (event) => {
        if (!playing || !windows.open_.some((window) => window.name === "Form1")) return;
        event.preventDefault();
        event.returnValue = "";
    });
}

async function load() {
    story = await Story.load(folder.slice(new URL(".", location.href).href.length));
    saves = new Saves(story.list.title);
    sound = new Sound(story);
    film = new Film(story);
    wireTools();
    const others = saves.alone();
    await saves.open().catch(() => complain("Dieser Browser behält keine Spielstände. Sie lassen sich als Datei herunterladen."));
    [module] = await Promise.all([compile(), engineScript()]);
    engine = await makeEngine(module);
    fetchFirst();
    const free = await others;
    element("startText").textContent = free ? "" : "Diese Geschichte läuft schon in einem anderen Tab. Beide teilen sich die Spielstände.";
    html.dataset.alone = free ? "yes" : "no";
    if (matchMedia("(pointer: coarse)").matches)
        element("hint").textContent = "Antippen benutzt, lange drücken schaut an, ziehen zieht. Die Tasche liegt unten links.";
    element("begin").disabled = false;
    element("startSaves").hidden = false;
    element("begin").focus();
    html.dataset.state = "ready";
    if ("serviceWorker" in navigator) navigator.serviceWorker.register("sw.js").catch(() => {});
}

load().catch((failure) => {
    html.dataset.state = "failed";
    element("startText").textContent = "Das Spiel lässt sich nicht laden (" + failure.message + "). Ein neuerer Browser oder ein zweiter Versuch hilft vielleicht.";
});
