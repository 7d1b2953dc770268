// The map of the rooms and the graphs of talks: placed when the page was made, drawn here.

// `first` is the box to begin with, where not all can be seen at once.
function viewOf(drawing, smallest, first) {
    const frame = h("div", { class: "graph", tabindex: "0" }, drawing);
    let scale = 1;
    const set = (value) => {
        scale = Math.min(2, Math.max(0.2, value));
        drawing.setAttribute("width", Math.round(drawing.viewBox.baseVal.width * scale));
        drawing.setAttribute("height", Math.round(drawing.viewBox.baseVal.height * scale));
    };
    const fit = (least) => set(Math.max(least, Math.min(1, frame.clientWidth / drawing.viewBox.baseVal.width)));
    const zoom = (factor) => {
        const x = (frame.scrollLeft + frame.clientWidth / 2) / scale, y = (frame.scrollTop + frame.clientHeight / 2) / scale;
        set(scale * factor);
        frame.scrollLeft = x * scale - frame.clientWidth / 2;
        frame.scrollTop = y * scale - frame.clientHeight / 2;
    };
    const tools = h("div", { class: "tools" },
        h("button", { type: "button", onclick: () => zoom(0.8), "aria-label": "Kleiner" }, "−"),
        h("button", { type: "button", onclick: () => zoom(1.25), "aria-label": "Größer" }, "+"),
        h("button", { type: "button", onclick: () => fit(0.1) }, "Einpassen"));
    requestAnimationFrame(() => {
        fit(smallest);
        if (first) frame.scrollLeft = first.x * scale - frame.clientWidth / 2;
    });
    drag(frame);
    return h("div", { class: "graphBox" }, tools, frame);
}
// Moves what is larger than its frame with the mouse; fingers do it by themselves.
function drag(frame) {
    let from = null;
    frame.addEventListener("pointerdown", (event) => {
        if (event.pointerType === "mouse" && event.button === 0 && !event.target.closest("a, button, .way"))
            from = [event.clientX + frame.scrollLeft, event.clientY + frame.scrollTop];
    });
    frame.addEventListener("pointermove", (event) => {
        if (!from || !(event.buttons & 1)) return void (from = null);
        frame.scrollLeft = from[0] - event.clientX;
        frame.scrollTop = from[1] - event.clientY;
    });
}

function arrows() {
    const tip = (id, reverse) => s("marker", { id, viewBox: "0 0 8 8", refX: reverse ? 0 : 8, refY: 4, markerWidth: 8, markerHeight: 8, orient: "auto", markerUnits: "userSpaceOnUse" },
        s("path", { d: reverse ? "M8 0L0 4L8 8z" : "M0 0L8 4L0 8z" }));
    return s("defs", {}, tip("tip", false), tip("tail", true));
}
function canvas(graph, name) {
    const pad = 12;
    return s("svg", { viewBox: [-pad, -pad, graph.w + 2 * pad, graph.h + 2 * pad].join(" "), role: "img", "aria-label": name }, arrows());
}

// --- the map

const boxName = (box) => (story.rooms[box.r] || box).n;

function mapDrawing(map) {
    const drawing = canvas(map, "Karte der Räume");
    map.lines.forEach((line) => drawing.append(wayGroup(map, line)));
    map.boxes.forEach((box) => drawing.append(mapBox(box)));
    return drawing;
}
function wayGroup(map, line) {
    const open = () => showWays(map, line);
    const group = s("g", { class: "way" + (line.t.length ? " needs" : ""), tabindex: "0", role: "button", onclick: open,
        "aria-label": boxName(map.boxes[line.a]) + " nach " + boxName(map.boxes[line.b]),
        onkeydown: (event) => { if (event.key === "Enter" || event.key === " ") { event.preventDefault(); open(); } } },
        s("path", { class: "hit", d: line.d }), s("path", { class: "line", d: line.d, "marker-end": "url(#tip)", "marker-start": line.both ? "url(#tail)" : null }));
    if (line.t.length) {
        const height = 15 * line.t.length + 4, width = line.w;
        group.append(s("rect", { class: "label", x: line.x - width / 2, y: line.y - height / 2, width, height, rx: 4 }),
            s("text", { x: line.x, y: line.y - height / 2 + 13.5 }, line.t.map((t, i) => s("tspan", { x: line.x, dy: i ? 15 : 0 }, t))));
    }
    return group;
}
function mapBox(box) {
    const left = box.x - box.w / 2, top = box.y - box.h / 2;
    if (box.k !== "room") {
        const words = { ending: box.n === "Ende" ? "" : "Ende: ", bag: "", missing: "fehlt: " };
        const frame = box.k === "ending" && story.proof ? s("a", { class: "box ending", href: address("beweis") }) : s("g", { class: "box " + box.k });
        frame.append(s("rect", { x: left, y: top, width: box.w, height: box.h, rx: box.h / 2 }),
            s("text", { x: box.x, y: box.y + 5 }, words[box.k] + box.n));
        return frame;
    }
    const room = story.rooms[box.r];
    const link = s("a", { class: "box room", href: roomAddress(room) },
        s("rect", { class: "card", x: left, y: top, width: box.w, height: box.h, rx: 8 }));
    if (picture(room.pic)) link.append(s("image", { href: picture(room.pic), x: left + 4, y: top + 4, width: box.w - 8, height: (box.w - 8) * 0.75, preserveAspectRatio: "xMidYMid slice" }));
    else link.append(s("rect", { class: "black", x: left + 4, y: top + 4, width: box.w - 8, height: (box.w - 8) * 0.75 }));
    link.append(s("text", { x: box.x, y: top + box.h - 8 }, room.n));
    const { ran, all } = roomCoverage(box.r);
    if (all) link.append(s("title", {}, ran + " von " + all + " Zeilen gelaufen"), s("rect", { class: "never", x: left + 4, y: top + 126, width: box.w - 8, height: 4 }), s("rect", { class: "ran", x: left + 4, y: top + 126, width: (box.w - 8) * ran / all, height: 4 }));
    const found = findingsIn((section) => section.r === box.r);
    if (found.length) link.append(s("circle", { class: found.some((one) => one.s === "error") ? "error" : "warning", cx: left + box.w - 16, cy: top + 16, r: 10 }), s("text", { class: "found", x: left + box.w - 16, y: top + 20 }, String(found.length)));
    if (room.file.toLowerCase() === "start.lsd") link.append(s("text", { class: "begin", x: left + 12, y: top + 20 }, "Anfang"));
    return link;
}

function termWords(term) {
    const name = term.k === "flag" ? flagLink(term.n) : itemLink(term.n);
    const before = (term.not ? "nicht " : "") + (term.k === "drop" ? "abgelegt: " : term.k === "item" ? "getragen: " : "");
    return [before, name];
}
function needWords(need) {
    if (need.answer !== undefined) return ["Antwort „" + need.answer + "“"];
    const joined = need.any.map((all, i) => [i ? " oder " : "", all.map((term, k) => [k ? " und " : "", termWords(term)])]);
    const single = need.any.length === 1 && need.any[0].length === 1;
    if (!need.not) return joined;
    if (single) return termWords({ ...need.any[0][0], not: !need.any[0][0].not });
    return ["nicht (", joined, ")"];
}
function targetOf(way) {
    if (way.ending) return h("b", { class: "endingName" }, "Ende „" + way.target + "“");
    const room = story.rooms[way.to];
    return room ? h("a", { href: roomAddress(room) }, room.n) : h("span", { class: "missing" }, way.target + " (fehlt)");
}
function wayItem(way, withFrom) {
    const from = story.rooms[way.from];
    const section = story.sections[way.s];
    const by = placeLink(way.f, way.l, (withFrom ? wordsOf(section) : wordsOf(section).slice(from ? 1 : 0)).join(" · "));
    return h("li", {}, h("span", { class: "to" }, "→ ", targetOf(way)), h("span", { class: "by" }, by),
        way.needs.length ? h("ul", { class: "needs" }, way.needs.map((need) => h("li", {}, needWords(need)))) : h("span", { class: "free" }, "offen"));
}
function showWays(map, line) {
    openPanel(boxName(map.boxes[line.a]) + (line.both ? " ↔ " : " → ") + boxName(map.boxes[line.b]),
        h("ul", { class: "ways" }, line.ways.map((index) => wayItem(story.ways[index], line.both))));
}

views.karte = () => {
    const map = story.map;
    const list = h("details", { class: "quiet", open: !map.placed }, h("summary", {}, "Alle Wege als Liste"),
        story.rooms.map((room, index) => {
            const ways = story.ways.filter((way) => way.from === index);
            return ways.length ? [h("h3", {}, h("a", { href: roomAddress(room) }, room.n)), h("ul", { class: "ways" }, ways.map((way) => wayItem(way)))] : null;
        }));
    return [h("h1", {}, story.title),
        h("p", { class: "lead" }, [count(story.rooms.length, "Raum", "Räume"), count(story.items.length, "Gegenstand", "Gegenstände"), count(story.flags.length, "Merker", "Merker"),
            count(story.texts.length, "Text", "Texte")].join(" · ")),
        map.placed ? viewOf(mapDrawing(map), 0.5, map.boxes.find((box) => box.k === "room" && /^start\.lsd$/i.test(story.rooms[box.r].file))) : h("div", { class: "cards" }, story.rooms.map((room) =>
            h("a", { class: "card", href: roomAddress(room) }, image(room.pic, "") || h("span", { class: "black" }), h("b", {}, room.n)))),
        map.placed ? h("p", { class: "hint" }, "Gestrichelte Wege brauchen, was daran steht; ein Klick auf einen Weg sagt es genau.") : null, list];
};

// --- talks

function talkDrawing(talk) {
    const drawing = canvas(talk, titleOf(story.sections[talk.s]));
    for (const line of talk.lines) {
        drawing.append(s("path", { class: "line" + (line.back ? " back" : ""), d: line.d, "marker-end": "url(#tip)" }));
        if (line.t) drawing.append(s("text", { class: "branch", x: line.x, y: line.y + 4 }, line.t));
    }
    for (const box of talk.boxes) {
        const left = box.x - box.w / 2, top = box.y - box.h / 2;
        const state = ran(box.f, box.l);
        const text = s("text", { y: top + 22 });
        box.t.forEach((line, i) => text.append(s("tspan", { class: line.k, x: left + 10, dy: i ? 17 : 0 },
            line.p ? s("tspan", { class: "who" }, line.p + ": ") : null, line.t)));
        drawing.append(s("a", { class: "talkBox " + box.k + (state === true ? " ran" : state === false ? " never" : ""), href: addressOf(box.f, box.l) },
            s("rect", { x: left, y: top, width: box.w, height: box.h, rx: box.k === "answer" ? 12 : box.k === "tests" ? 0 : 4 }), text));
    }
    return drawing;
}
// Where nobody has placed the boxes: one below the other, with what follows each.
function talkList(talk) {
    return h("ol", { class: "talkList" }, talk.boxes.map((box, index) => h("li", { class: box.k },
        box.t.map((line) => h("div", { class: line.k }, line.p ? h("b", {}, line.p + ": ") : null, line.t)),
        h("small", {}, talk.lines.filter((line) => line.a === index).map((line) => " → " + (line.t ? line.t + ": " : "") + (line.b + 1))))));
}
const talkGraph = (talk) => (talk.placed ? viewOf(talkDrawing(talk), 0.75, talk.boxes[0]) : talkList(talk));

views.gespraeche = ([number]) => {
    const talk = story.talks[Number(number)];
    if (number !== undefined && talk) {
        const section = story.sections[talk.s];
        return [h("p", { class: "over" }, h("a", { href: address("gespraeche") }, "Gespräche")), h("h1", {}, titleOf(section)),
            h("p", {}, placeLink(talk.boxes.length ? talk.boxes[0].f : section.f, section.l, "in der Quelle zeigen")), talkGraph(talk)];
    }
    const rooms = new Map();
    story.talks.forEach((entry, index) => {
        const section = story.sections[entry.s];
        const name = wordsOf(section)[0];
        if (!rooms.has(name)) rooms.set(name, []);
        rooms.get(name).push(h("li", {}, h("a", { href: address("gespraeche", index) }, wordsOf(section).slice(1).join(" · ") || name), " ",
            h("small", {}, count(entry.boxes.filter((box) => box.k === "asks").length, "Frage", "Fragen"))));
    });
    return [h("h1", {}, "Gespräche"), rooms.size ? null : h("p", {}, "Niemand redet in dieser Geschichte."),
        [...rooms].map(([name, list]) => [h("h2", {}, name), h("ul", { class: "plain" }, list)])];
};
