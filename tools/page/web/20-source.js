// Sources: coloured, folded, with what has run and what was found.

const words = /(\/\/.*$)|("[^"]*"?)|(\{[0-9A-Fa-f]{2}\})|([^\s",{]+)|([\s,]+|.)/gu;
const partWords = new Set(["raum", "objekt", "gegenstand", "start", "countdown", "rechts", "links", "ablegen", "person", "skriptteil", "kombiniere", "skriptdatei"]);
const plain = (word) => word.toLowerCase().replace(/ä/g, "ae").replace(/ö/g, "oe").replace(/ü/g, "ue").replace(/ß/g, "ss");
const joining = new Set(["nicht", "und", "oder", "merker", "gegenstand", "parameter", "einmal", "wenn", "einsteckbar", "heisst", "ergibt", "aus", "links", "rechts", "weiss", "zurueck"]);

function roomNamed(name) {
    const file = name.toLowerCase().replace(/\//g, "\\");
    return story.rooms.find((room) => room.file.toLowerCase() === file);
}
function partNamed(name) {
    return story.sections.find((section) => section.w === "Skriptteil" && plain(section.n) === plain(name));
}

// A name that the compiler has made stands at a word that says something else.
function isNamed(token, [kind, key]) {
    const word = token.replace(/^"|"$/g, "").toUpperCase();
    return word === key || (kind === "item" && (word.replace(/\.[^.]*$/, "") === key || word === nameOfItem(key).toUpperCase()));
}

// One line as elements.
function coloured(file, number) {
    const text = sourceLine(file, number);
    const out = [];
    const speaker = /^\s*(?:[^\s",{/]+[ \t]+)*[^\s",{/]*:(?=\s|$)/u.exec(text);
    let first = "";
    for (const match of text.matchAll(words)) {
        const [token, comment, quoted, , word] = match;
        const name = namesAt.get(placeKey(file, number, match.index + 1));
        if (comment) out.push(h("span", { class: "c" }, token));
        else if (name && isNamed(token, name)) out.push(name[0] === "flag" ? flagLink(name[1], token) : itemLink(name[1], token));
        else if (quoted) out.push(quotedPart(token, first));
        else if (!word) out.push(token);
        else if (speaker && match.index < speaker[0].length) out.push(h("span", { class: "p" }, token));
        else if (!first) {
            first = plain(word);
            out.push(h("span", { class: partWords.has(first) ? "k part" : "k" }, token));
            continue;
        } else if (/^-?[\d.]+$/.test(word)) out.push(h("span", { class: "n" }, token));
        else if (joining.has(plain(word))) out.push(h("span", { class: "j" }, token));
        else out.push(wordPart(token, first));
        if (!first && (quoted || word)) first = " ";
    }
    return out;
}
function quotedPart(token, first) {
    const room = first === "raumwechsel" && roomNamed(token.slice(1, -1));
    if (room) return h("a", { class: "s", href: roomAddress(room) }, token);
    return h("span", { class: "s" }, token);
}
function wordPart(token, first) {
    const room = first === "raumwechsel" && roomNamed(token);
    if (room) return h("a", { class: "s", href: roomAddress(room) }, token);
    const part = first === "rufe" && partNamed(token);
    return part ? h("a", { href: addressOf(part.f, part.l) }, token) : token;
}

const depthOf = (text) => /^\s*/.exec(text)[0].replace(/\t/g, "    ").length;

// Which lines each line holds below it, by their indents: the last one of them, or 0.
function foldsOf(file, from, to) {
    const folds = new Map();
    const open = [];
    let last = from;
    for (let line = from; line <= to + 1; ++line) {
        const text = sourceLine(file, line);
        if (line <= to && !text.trim()) continue;
        const depth = line > to ? -1 : depthOf(text);
        while (open.length && open[open.length - 1].depth >= depth) {
            const head = open.pop();
            if (last > head.line && !/^\s*"/.test(sourceLine(file, head.line + 1))) folds.set(head.line, last);
        }
        open.push({ line, depth });
        last = line;
    }
    return folds;
}

// Lines of a source, numbered; blocks can be folded, and are not at first.
function code(file, from, to) {
    while (to > from && !sourceLine(file, to).trim()) --to;
    const indent = Math.min(...linesOf[file].slice(from - 1, to).filter((text) => text.trim()).map(depthOf));
    const folds = foldsOf(file, from, to);
    const rows = new Map();
    const block = h("div", { class: "code", role: "region", "aria-label": "Quelle" });
    for (let line = from; line <= to; ++line) {
        const state = ran(file, line);
        const fold = folds.has(line) && line !== from
            ? h("button", { type: "button", class: "fold", "aria-label": "Falten", "aria-expanded": "true", onclick: (event) => toggle(event.currentTarget) })
            : h("span", { class: "fold" });
        fold.dataset.line = line;
        const text = h("span", { class: "text", style: "--depth:" + Math.max(0, depthOf(sourceLine(file, line)) - indent) + "ch" }, coloured(file, line));
        if (indent && text.firstChild && text.firstChild.nodeType === 3) text.firstChild.data = text.firstChild.data.slice(Math.min(indent, depthOf(sourceLine(file, line))));
        const row = h("div", { class: "row" + (state === true ? " ran" : state === false ? " never" : ""), "data-at": file + ":" + line },
            h("span", { class: "number", title: state === undefined ? null : state ? "gelaufen" : "nie gelaufen" }, String(line)), fold, text);
        rows.set(line, row);
        block.append(row);
        for (const finding of findingsAt.get(file + ":" + line) || []) block.append(findingRow(finding));
    }
    function toggle(button) {
        const open = button.getAttribute("aria-expanded") === "true";
        button.setAttribute("aria-expanded", String(!open));
        const head = Number(button.dataset.line);
        for (let line = head + 1; line <= folds.get(head); ++line) if (rows.has(line)) rows.get(line).hidden = open;
        if (open) return;
        // What was folded inside stays folded.
        for (let line = head + 1; line <= folds.get(head); ++line) {
            const inner = rows.has(line) && rows.get(line).querySelector("button.fold");
            if (!inner || inner.getAttribute("aria-expanded") === "true") continue;
            for (let below = line + 1; below <= folds.get(line); ++below) if (rows.has(below)) rows.get(below).hidden = true;
            line = folds.get(line);
        }
    }
    return block;
}
function findingRow(finding) {
    return h("div", { class: "finding " + finding.s }, h("b", {}, finding.code), " " + finding.t);
}

// A script, folded: what heads it, and its source.
function script(section, open) {
    const texts = linesOf[section.f].slice(section.l, section.e).map((line) => (/"([^"]+)"/.exec(line) || [])[1]).filter(Boolean);
    const details = h("details", { class: "script", "data-section": section.index, open },
        h("summary", {}, h("span", { class: "word" }, section.w),
            h("span", { class: "gist" }, texts.length ? texts[0].replace(/^\$[0-9A-Fa-f]/, "") : section.e > section.l ? count(section.e - section.l, "Zeile", "Zeilen") : "leer"),
            badge(findingsIn((one) => one === section)),
            meter(coverageOf(section.f, section.l, section.e))));
    // Only what is looked at is built.
    details.addEventListener("toggle", () => { if (details.open) details.fillIn(); });
    details.fillIn = () => { if (!details.querySelector(".code")) details.append(code(section.f, section.l, section.e)); };
    if (open) details.fillIn();
    return details;
}

views.quelle = ([name, line]) => {
    const file = story.files.findIndex((entry) => entry.n === name && entry.t);
    if (file < 0) {
        return [h("h1", {}, "Quellen"), h("ul", { class: "plain" }, story.files.map((entry, index) => entry.t &&
            h("li", {}, h("a", { href: address("quelle", entry.n) }, entry.n), " ", h("small", {}, count(linesOf[index].length, "Zeile", "Zeilen")), " ", meter(coverageOf(index, 1, 1e9)))))];
    }
    return [h("p", { class: "over" }, h("a", { href: address("quelle") }, "Quellen")), h("h1", {}, name), meter(coverageOf(file, 1, 1e9)),
        code(file, 1, linesOf[file].length), line ? { reveal: file + ":" + line } : null];
};
