"use strict";
// The story, and what every view is built with. Texts of the story only ever become text of the page.

const story = JSON.parse(document.getElementById("model").textContent);
const views = {};  // by the first word of the address: a function that takes the other words and gives elements

function fill(element, attributes, children) {
    for (const [name, value] of Object.entries(attributes || {})) {
        if (name.startsWith("on")) element.addEventListener(name.slice(2), value);
        else if (value === true) element.setAttribute(name, "");
        else if (value !== false && value !== undefined && value !== null) element.setAttribute(name, value);
    }
    element.append(...children.flat(Infinity).filter((child) => child !== null && child !== undefined && child !== false));
    return element;
}
const h = (tag, attributes, ...children) => fill(document.createElement(tag), attributes, children);
const s = (tag, attributes, ...children) => fill(document.createElementNS("http://www.w3.org/2000/svg", tag), attributes, children);

const count = (n, one, many) => n + " " + (n === 1 ? one : many);
const address = (...words) => "#/" + words.map((word) => encodeURIComponent(word)).join("/");

// --- what stands where

const sectionsByFile = new Map();
story.sections.forEach((section, index) => {
    section.index = index;
    if (!sectionsByFile.has(section.f)) sectionsByFile.set(section.f, []);
    sectionsByFile.get(section.f).push(section);
});
for (const list of sectionsByFile.values()) list.sort((a, b) => a.l - b.l);

function sectionAt(file, line) {
    let found = null;
    for (const section of sectionsByFile.get(file) || []) if (section.l <= line) found = section;
    return found;
}

function nameOfItem(key) {
    const item = itemsByKey.get(key);
    return item ? item.n : key;
}
function wordsOf(section) {
    const room = story.rooms[section.r];
    if (section.w === "Raum") return [room ? room.n : section.n];
    if (section.i) return section.w === "Gegenstand" ? ["Gegenstand " + nameOfItem(section.i)] : ["Gegenstand " + nameOfItem(section.i), section.w];
    if (!room) return [(section.w + " " + section.n).trim()];
    const object = room.objects[section.o];
    if (section.w === "Objekt") return [room.n, section.n];
    return object ? [room.n, object.n, section.w] : [room.n, section.w];
}
const titleOf = (section) => (section ? wordsOf(section).join(" · ") : "");

const itemsByKey = new Map(story.items.map((item) => [item.key, item]));
const flagsByName = new Map(story.flags.map((flag) => [flag.n, flag]));

// Names in sources that can be clicked, by place.
const namesAt = new Map();
const placeKey = (file, line, column) => file + ":" + line + ":" + column;
for (const [kind, list, key] of [["flag", story.flags, "n"], ["item", story.items, "key"]])
    for (const entry of list)
        for (const [, file, line, column] of entry.uses) namesAt.set(placeKey(file, line, column), [kind, entry[key]]);

const linesOf = story.files.map((file) => file.t.split(/\r\n|\r|\n/));
const sourceLine = (file, line) => (linesOf[file] || [])[line - 1] || "";

// Where a place of a source is shown: in its room, or else in the source.
function addressOf(file, line) {
    const section = sectionAt(file, line);
    const room = section && story.rooms[section.r];
    return room && section.w !== "Raum" ? address("raum", room.file, "zeile", story.files[file].n, line) : address("quelle", story.files[file].n, line);
}
function placeLink(file, line, text) {
    return h("a", { class: "place", href: addressOf(file, line), title: story.files[file].n + ":" + line },
        text || titleOf(sectionAt(file, line)) || story.files[file].n + ":" + line);
}
const roomAddress = (room) => address("raum", room.file);

function flagLink(name, text) {
    return h("button", { type: "button", class: "name flag", "data-flag": name, onclick: () => showPanel("flag", name) }, text || name);
}
function itemLink(key, text) {
    return h("button", { type: "button", class: "name item", "data-item": key, onclick: () => showPanel("item", key) }, text || nameOfItem(key));
}

const picture = (name) => story.pictures[name] || "";
function image(name, alt, attributes) {
    return picture(name) ? h("img", { src: picture(name), alt: alt || "", ...attributes }) : null;
}

// --- findings and what has run, by place

const findings = [...story.findings, ...((story.proof && story.proof.findings) || [])];
const findingsAt = new Map();
for (const finding of findings) {
    const key = finding.f + ":" + finding.l;
    if (!findingsAt.has(key)) findingsAt.set(key, []);
    findingsAt.get(key).push(finding);
}
// Those in all sections that a condition picks.
function findingsIn(picks) {
    return findings.filter((finding) => {
        const section = sectionAt(finding.f, finding.l);
        return section && picks(section);
    });
}
function badge(found) {
    return found.length ? h("span", { class: "badge " + (found.some((one) => one.s === "error") ? "error" : "warning"), title: count(found.length, "Befund", "Befunde") }, String(found.length)) : null;
}
// True, false, or nothing where there is nothing to run.
function ran(file, line) {
    const lines = story.coverage && story.coverage[file];
    return lines && line in lines ? lines[line] === 1 : undefined;
}
function coverageOf(file, from, to) {
    const result = { ran: 0, all: 0 };
    for (const [line, state] of Object.entries((story.coverage && story.coverage[file]) || {}))
        if (line >= from && line <= to) { ++result.all; result.ran += state; }
    return result;
}
function meter({ ran, all }) {
    if (!all) return null;
    const percent = Math.floor(100 * ran / all);
    return h("span", { class: "meter", title: ran + " von " + all + " Zeilen gelaufen" },
        h("span", { class: "meterBar" }, h("i", { style: "width:" + percent + "%" })), percent + " %");
}

// --- small services

let noteTimer = 0;
function note(text) {
    const element = document.getElementById("note");
    element.textContent = text;
    element.classList.add("shown");
    clearTimeout(noteTimer);
    noteTimer = setTimeout(() => element.classList.remove("shown"), 2500);
}

async function copy(text) {
    try {
        await navigator.clipboard.writeText(text);
    } catch {
        // Where a page has no clipboard of its own, what is selected can still be copied.
        const area = h("textarea", { class: "away" });
        area.value = text;
        document.body.append(area);
        area.select();
        document.execCommand("copy");
        area.remove();
    }
    note("Kopiert: " + (text.length > 60 ? text.slice(0, 59) + "…" : text));
}

const voice = document.getElementById("voice");
let voiceButton = null;
function silence() {
    if (voiceButton) voiceButton.classList.remove("playing");
    voiceButton = null;
}
voice.addEventListener("ended", silence);
voice.addEventListener("error", () => {
    if (voiceButton) note("Die Stimme ist nicht zu hören: " + decodeURIComponent(voice.getAttribute("src")));
    silence();
});
function play(button, file) {
    const same = voiceButton === button;
    voice.pause();
    silence();
    if (same) return;
    voiceButton = button;
    button.classList.add("playing");
    voice.setAttribute("src", file);
    voice.play().catch(() => {});
}
function playButton(text) {
    if (!text.at) return null;
    return h("button", { type: "button", class: "play", "data-voice": text.at, "aria-label": "Anhören", title: text.voice, onclick: (event) => play(event.currentTarget, text.at) });
}
