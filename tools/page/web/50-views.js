// Flags, items, people, texts, findings, the proof.

const useWords = { sets: "setzt", clears: "löscht", tests: "fragt danach", plays: "Ausgang eines Spiels", takes: "kommt in die Tasche", gives: "geht aus der Tasche", drops: "wird abgelegt", carries: "fragt, ob man es hat" };

function usesOf(entry) {
    const kinds = Object.keys(useWords).filter((kind) => entry.uses.some((use) => use[0] === kind));
    if (!kinds.length) return h("p", { class: "none" }, "Kommt in keinem Skript vor.");
    return kinds.map((kind) => h("div", { class: "use " + kind }, h("h4", {}, useWords[kind]),
        h("ul", {}, entry.uses.filter((use) => use[0] === kind).map(([, file, line]) => h("li", {}, placeLink(file, line), h("code", {}, sourceLine(file, line).trim()))))));
}
function waysWith(kind, key) {
    const names = (need) => need.any && need.any.some((all) => all.some((term) => (kind === "flag") === (term.k === "flag") && term.n === key));
    const ways = story.ways.filter((way) => way.needs.some(names));
    return ways.length ? h("div", { class: "use" }, h("h4", {}, "Wege, die davon abhängen"), h("ul", { class: "ways" }, ways.map((way) => wayItem(way, true)))) : null;
}

// --- the panel at the side

const panel = document.getElementById("panel");
let panelOpener = null;
function openPanel(title, ...content) {
    panelOpener = document.activeElement;
    panel.replaceChildren(h("div", { class: "panelHead" }, h("h2", {}, title), h("button", { type: "button", class: "close", "aria-label": "Schließen", onclick: closePanel }, "×")),
        h("div", { class: "panelBody" }, content));
    panel.hidden = false;
    panel.focus({ preventScroll: true });
}
function closePanel() {
    panel.hidden = true;
    if (panelOpener && panelOpener.isConnected) panelOpener.focus({ preventScroll: true });
}
function showPanel(kind, key) {
    const entry = kind === "flag" ? flagsByName.get(key) : itemsByKey.get(key);
    const title = kind === "flag" ? [h("small", {}, "Merker"), key] : [h("small", {}, "Gegenstand"), image(entry && entry.pic, "", { class: "itemPicture" }), nameOfItem(key)];
    openPanel(title, entry ? usesOf(entry) : h("p", { class: "none" }, "Niemand sonst nennt ihn."), waysWith(kind, key),
        kind === "item" ? itemScripts(key).map((section) => script(section)) : null);
}
const itemScripts = (key) => story.sections.filter((section) => section.i === key && section.w !== "Gegenstand");

// --- flags, items, people

const tally = (entry, ...kinds) => entry.uses.filter((use) => kinds.includes(use[0])).length;
const made = (flag) => /^(EINMAL|GENOMMEN) /.test(flag.n);

// The rooms that a way leads to only if the flag is set.
function opened(flag) {
    const needed = (need) => need.any && !need.not && need.any.every((all) => all.some((term) => term.k === "flag" && term.n === flag && !term.not));
    return [...new Set(story.ways.filter((way) => way.to >= 0 && way.needs.some(needed)).map((way) => story.rooms[way.to]))];
}

function flagTable(flags) {
    return h("div", { class: "scroll" }, h("table", { class: "tally" }, h("thead", {}, h("tr", {}, ["Merker", "gesetzt", "gelöscht", "gefragt", "öffnet"].map((text) => h("th", {}, text)))),
        h("tbody", {}, flags.map((flag) => {
            const set = tally(flag, "sets", "plays"), tested = tally(flag, "tests");
            return h("tr", {}, h("td", {}, flagLink(flag.n)), h("td", { class: set ? null : "zero" }, String(set)), h("td", {}, String(tally(flag, "clears") || "")), h("td", { class: tested ? null : "zero" }, String(tested)), h("td", { class: "opens" }, opened(flag.n).map((room, i) => [i ? ", " : "", h("a", { href: roomAddress(room) }, room.n)])));
        }))));
}
views.merker = () => {
    const own = story.flags.filter((flag) => !made(flag)), rest = story.flags.filter(made);
    return [h("h1", {}, "Merker"), h("p", { class: "lead" }, "Ein Klick zeigt, wer einen Merker setzt, löscht und nach ihm fragt."), flagTable(own),
        rest.length ? h("details", { class: "quiet" }, h("summary", {}, count(rest.length, "Merker, den", "Merker, die") + " der Übersetzer führt"), flagTable(rest)) : null];
};

views.gegenstaende = () => [h("h1", {}, "Gegenstände"), h("div", { class: "items" }, story.items.map((item) =>
    h("button", { type: "button", class: "itemCard", "data-item": item.key, onclick: () => showPanel("item", item.key) }, image(item.pic, "", { class: "itemPicture" }) || h("span", { class: "itemPicture black" }),
        h("b", {}, item.n), h("small", {}, [[tally(item, "takes"), "genommen"], [tally(item, "gives"), "gegeben"], [tally(item, "drops", "carries"), "gefragt"]].filter(([n]) => n).map(([n, text]) => n + "× " + text).join(", ") || "nie genommen"))))];

views.personen = () => [h("h1", {}, "Personen"), h("div", { class: "people" }, story.people.map((person) => {
    const lines = story.texts.filter((text) => text.who === person.n);
    return h("article", { class: "person" }, image(person.pic, ""), h("div", {}, h("h2", {}, person.n), h("p", {}, count(lines.length, "Text", "Texte"), person.player ? " · wird gespielt" : "", person.voice ? " · Stimme " + person.voice : ""),
        h("p", {}, lines.length ? h("a", { href: address("texte", person.n) }, "alle Texte") : null, " ", placeLink(person.f, person.l, "Quelle"))));
}))];

// --- texts

function textEntry(text) {
    return h("li", { class: "textEntry" }, playButton(text) || h("span", { class: "play none" }),
        h("div", {}, text.who ? h("span", { class: "who" }, text.who) : null, h("p", {}, text.t.split("#").map((line, i) => [i ? h("br") : "", line])),
            h("small", {}, placeLink(text.f, text.l), text.voice ? h("span", { class: "file" + (text.at ? "" : " missing") }, text.voice + (text.at ? "" : " (fehlt)")) : null)));
}
views.texte = ([person]) => {
    const filter = h("input", { type: "search", placeholder: "Texte filtern …", "aria-label": "Texte filtern", oninput: () => show() });
    const speakers = [...new Set(story.texts.map((text) => text.who).filter(Boolean))].sort((a, b) => a.localeCompare(b, "de"));
    const who = h("select", { "aria-label": "Wer spricht", onchange: () => show() }, h("option", { value: "" }, "alle"), speakers.map((name) => h("option", { value: name, selected: name === person }, name)));
    const list = h("div", {});
    const number = h("span", { class: "hint" });
    function show() {
        const words = filter.value.toLowerCase(), rooms = new Map();
        const texts = story.texts.filter((text) => (!who.value || text.who === who.value) && text.t.toLowerCase().includes(words));
        for (const text of texts) {
            const section = sectionAt(text.f, text.l);
            const name = section ? wordsOf(section)[0] : story.files[text.f].n;
            if (!rooms.has(name)) rooms.set(name, []);
            rooms.get(name).push(text);
        }
        number.textContent = count(texts.length, "Text", "Texte");
        list.replaceChildren(...[...rooms].flatMap(([name, entries]) => [h("h2", {}, name), h("ul", { class: "texts" }, entries.map(textEntry))]));
    }
    show();
    return [h("h1", {}, "Texte"), h("div", { class: "filters" }, filter, who, number), list];
};

// --- findings

function findingList(list) {
    const files = new Map();
    for (const finding of list) {
        if (!files.has(finding.f)) files.set(finding.f, []);
        files.get(finding.f).push(finding);
    }
    return [...files].map(([file, entries]) => [h("h2", {}, story.files[file] ? story.files[file].n : ""), h("ul", { class: "findings" }, entries.map((finding) =>
        h("li", { class: finding.s }, h("span", { class: "code-name" }, finding.code), h("p", {}, finding.t), h("small", {}, placeLink(finding.f, finding.l), " Zeile " + finding.l))))]);
}
views.befunde = () => [h("h1", {}, "Befunde"), story.findings.length ? findingList(story.findings) : h("p", { class: "lead" }, "Nichts zu beanstanden."),
    story.proof && story.proof.findings.length ? [h("h1", {}, "Befunde des Beweises"), findingList(story.proof.findings)] : null];

// --- the proof

function playSteps(play) {
    let room = "";
    const items = [];
    let number = 0;
    for (const step of play) {
        const known = story.rooms.find((entry) => entry.file.toLowerCase() === step.room.toLowerCase());
        if (step.room !== room) {
            room = step.room;
            items.push(h("li", { class: "enter" }, known ? [image(known.pic, ""), h("a", { href: roomAddress(known) }, known.n)] : step.room));
        }
        const what = step.do || "Anfang";
        items.push(h("li", { class: "step" }, h("span", { class: "number" }, step.do ? String(++number) : "·"),
            h("div", {}, step.f === undefined ? h("b", {}, what) : h("a", { href: addressOf(step.f, step.l) }, what),
                step.texts.length ? h("details", { class: "spoken" }, h("summary", {}, step.texts[0].split("#")[0] + (step.texts.length > 1 ? " …" : "")), step.texts.map((text) => h("p", {}, text.split("#").map((line, i) => [i ? h("br") : "", line])))) : null)));
    }
    return h("ol", { class: "playSteps" }, items);
}
function playEntry(name, entry, link) {
    return h("details", { class: "playEntry" }, h("summary", {}, h("b", {}, name), h("span", { class: "hint" }, count(entry.steps, "Schritt", "Schritte"))), link,
        entry.play.length ? playSteps(entry.play) : null,
        h("details", { class: "quiet" }, h("summary", {}, "als Gang für zentrox-probe"), h("button", { type: "button", onclick: () => copy(entry.walk) }, "Kopieren"), h("pre", {}, entry.walk)));
}
views.beweis = () => {
    const proof = story.proof;
    if (!proof) return [h("h1", {}, "Beweis"), h("p", { class: "lead" }, "Diese Seite wurde ohne Beweis gemacht. Mit „zentrox-story prove --json“ und „--proof“ zeigt sie Enden, Sackgassen und ihre kürzesten Spiele.")];
    const states = proof.states.toLocaleString("de-DE");
    const verdict = !proof.endings.length ? "In dem, was gesehen wurde, ist kein Ende zu erreichen."
        : proof.dead.length ? count(proof.dead.length, "Sackgasse", "Sackgassen") + ": hinter diesen Schritten ist kein Ende mehr zu erreichen."
            : proof.complete ? "Keine Sackgasse: von überall her ist ein Ende zu erreichen. Bewiesen über " + states + " Zustände." : "In den " + states + " Zuständen, die gesehen wurden, war keine Sackgasse.";
    const message = (entry) => proof.findings.find((finding) => finding.code === "verbaut" && finding.f === entry.f && finding.l === entry.l);
    return [h("h1", {}, "Beweis"), h("p", { class: "lead verdict " + (proof.dead.length || !proof.endings.length ? "bad" : proof.complete ? "good" : "") }, verdict),
        proof.complete ? null : h("p", {}, "Nicht alles wurde gesehen: Die Suche endete nach " + states + " Zuständen."),
        h("h2", {}, "Enden"), proof.endings.map((ending) => playEntry(ending.name, ending)),
        proof.dead.length ? [h("h2", {}, "Sackgassen"), proof.dead.map((entry) => playEntry(titleOf(sectionAt(entry.f, entry.l)), entry, h("div", { class: "deadEnd" }, message(entry) ? h("p", {}, message(entry).t) : null, placeLink(entry.f, entry.l, "diese Zeile zeigen"))))] : null,
        proof.findings.some((finding) => finding.code !== "verbaut") ? [h("h2", {}, "Was nie geschieht"), findingList(proof.findings.filter((finding) => finding.code !== "verbaut"))] : null];
};

// --- coverage

views.abdeckung = () => [h("h1", {}, "Gelaufen"), h("p", { class: "lead" }, "Was die Gänge von der Geschichte gesehen haben. In den Quellen steht grün am Rand, was lief, rot, was nie lief."),
    h("h2", {}, "Räume"), h("table", { class: "tally" }, h("tbody", {}, story.rooms.map((room, index) => h("tr", {}, h("td", {}, h("a", { href: roomAddress(room) }, room.n)), h("td", {}, meter(roomCoverage(index))))))),
    h("h2", {}, "Quellen"), h("table", { class: "tally" }, h("tbody", {}, story.files.map((file, index) => file.t && h("tr", {}, h("td", {}, h("a", { href: address("quelle", file.n) }, file.n)), h("td", {}, meter(coverageOf(index, 1, 1e9)) || "–")))))];
