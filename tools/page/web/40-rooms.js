// A room: its picture with the areas on it, its objects and their scripts, and the tool that draws areas.

const roomWidth = 640, roomHeight = 480;

// Collects the corners of a shape over the picture, and gives the line that the language has for it.
class Pencil {
    constructor(overlay, taken) {
        Object.assign(this, { overlay, taken, shape: "", corners: [], moving: null });
        this.path = s("path", { class: "pencil" });
        overlay.append(this.path);
        overlay.addEventListener("pointerdown", (event) => this.down(event));
        overlay.addEventListener("pointermove", (event) => this.move(event));
        overlay.addEventListener("pointerup", (event) => this.up(event));
        overlay.addEventListener("dblclick", () => this.finish());
    }
    use(shape) {
        this.shape = shape;
        this.drop();
        this.overlay.classList.toggle("drawing", shape !== "");
    }
    drop() {
        this.corners = [];
        this.moving = null;
        this.paint();
    }
    at(event) {
        const box = this.overlay.getBoundingClientRect();
        const within = (value, most) => Math.min(most, Math.max(0, Math.round(value)));
        return [within((event.clientX - box.left) * roomWidth / box.width, roomWidth), within((event.clientY - box.top) * roomHeight / box.height, roomHeight)];
    }
    near(a, b) { return Math.abs(a[0] - b[0]) < 9 && Math.abs(a[1] - b[1]) < 9; }
    down(event) {
        if (!this.shape || event.button !== 0) return;
        event.preventDefault();
        this.overlay.setPointerCapture(event.pointerId);
        this.moving = this.at(event);
        if (this.shape === "Rechteck") this.corners = [this.moving];
        this.paint();
    }
    move(event) {
        if (!this.shape || (!this.moving && !this.corners.length)) return;
        this.moving = this.at(event);
        this.paint();
    }
    up(event) {
        if (!this.shape || !this.moving) return;
        const point = this.at(event);
        if (this.shape === "Rechteck") {
            const [from] = this.corners;
            if (from && from[0] !== point[0] && from[1] !== point[1])
                this.taken("Rechteck " + [Math.min(from[0], point[0]), Math.min(from[1], point[1]), Math.max(from[0], point[0]), Math.max(from[1], point[1])].join(" "));
            return this.drop();
        }
        if (this.corners.length > 2 && this.near(point, this.corners[0])) return this.finish();
        if (!this.corners.length || !this.near(point, this.corners[this.corners.length - 1])) this.corners.push(point);
        this.moving = null;
        this.paint();
    }
    finish() {
        if (this.shape !== "Vieleck") return;
        if (this.corners.length > 2) this.taken("Vieleck " + this.corners.map((corner) => corner.join(" ")).join(", "));
        this.drop();
    }
    key(event) {
        if (!this.shape) return;
        if (event.key === "Escape") this.drop();
        else if (event.key === "Enter") this.finish();
        else if (event.key === "Backspace") { this.corners.pop(); this.paint(); }
        else return;
        event.preventDefault();
    }
    paint() {
        const [from] = this.corners;
        let d = "";
        if (this.shape === "Rechteck" && from && this.moving) d = `M${from}H${this.moving[0]}V${this.moving[1]}H${from[0]}z`;
        else if (this.shape === "Vieleck" && from)
            d = "M" + [...this.corners, ...(this.moving ? [this.moving] : [])].join("L") + this.corners.map((c) => `M${c[0] - 3} ${c[1] - 3}h6v6h-6z`).join("");
        this.path.setAttribute("d", d);
    }
}

let pencil = null;  // of the room that is shown
document.addEventListener("keydown", (event) => { if (pencil && !event.target.closest("input, textarea")) pencil.key(event); });

// The picture, its areas, and the buttons around it.
function stage(room, choose) {
    const label = h("div", { class: "areaName", hidden: true });
    const overlay = s("svg", { class: "areas", viewBox: `0 0 ${roomWidth} ${roomHeight}`, preserveAspectRatio: "none" });
    const areas = room.objects.map((object, index) => s("g", { class: "area" + (object.active ? "" : " inactive"), "data-object": index, "aria-label": object.n,
        onpointerenter: () => light(index), onpointerleave: () => light(-1), onclick: () => { if (!pencil || !pencil.shape) choose(index); } },
        s("path", { class: "in", d: object.in }), s("path", { class: "out", d: object.out })));
    overlay.append(...[...areas].reverse());  // what stands first in the source lies on top
    const shown = picture(room.pic) ? h("img", { class: "roomPicture", src: picture(room.pic), alt: "Bild des Raums " + room.n }) : h("div", { class: "roomPicture black" });
    function light(index) {
        areas.forEach((area, i) => area.classList.toggle("lit", i === index));
        const object = room.objects[index];
        label.hidden = !object;
        if (object) label.textContent = object.n + (object.active ? "" : " (inaktiv)");
    }
    const lines = h("output", { class: "drawn", "aria-label": "Gezeichnete Flächen" });
    pencil = new Pencil(overlay, (line) => {
        copy(line);
        lines.prepend(h("button", { type: "button", class: "drawnLine", title: "Noch einmal kopieren", onclick: () => copy(line) }, line));
    });
    const modes = [["", "Ansehen"], ["Rechteck", "Rechteck"], ["Vieleck", "Vieleck"]].map(([shape, text]) =>
        h("button", { type: "button", class: "mode", "data-shape": shape, "aria-pressed": String(!shape), onclick: (event) => {
            pencil.use(shape);
            light(-1);
            for (const button of modes) button.setAttribute("aria-pressed", String(button === event.currentTarget));
            hint.textContent = shape === "Rechteck" ? "Ziehen; die Zeile kommt in die Zwischenablage." : shape === "Vieleck" ? "Ecken anklicken; die erste Ecke, ein Doppelklick oder Enter schließt, Esc verwirft." : "";
        } }, text));
    const hint = h("span", { class: "hint" });
    const all = h("label", { class: "check" }, h("input", { type: "checkbox", onchange: (event) => overlay.classList.toggle("all", event.target.checked) }), "Alle Flächen");
    const others = [{ pic: room.pic, n: "am Anfang" }, ...room.pics].filter((other) => picture(other.pic));
    const strip = others.length > 1 ? h("div", { class: "strip" }, others.map((other) => h("button", { type: "button", title: other.n, onclick: () => { if (shown.tagName === "IMG") shown.src = picture(other.pic); } }, image(other.pic, other.n)))) : null;
    return { light, element: h("div", { class: "stage" }, h("div", { class: "frame" }, shown, overlay, label),
        h("div", { class: "tools" }, h("span", { class: "modes", role: "group", "aria-label": "Zeichnen" }, modes), all, hint), lines, strip) };
}

function objectEntry(room, index, open, light) {
    const object = room.objects[index];
    const roomIndex = story.rooms.indexOf(room);
    const scripts = story.sections.filter((section) => section.r === roomIndex && section.o === index && section.w !== "Objekt");
    const whole = story.sections.find((section) => section.r === roomIndex && section.o === index && section.w === "Objekt");
    const end = scripts.length ? scripts[0].l - 1 : whole ? whole.e : object.l;
    return h("details", { class: "object", "data-object": index, open, onpointerenter: () => light(index), onpointerleave: () => light(-1) },
        h("summary", {}, h("span", { class: "objectName" }, object.n || "(ohne Namen)"), badge(findingsIn((section) => section.r === roomIndex && section.o === index)),
            h("span", { class: "tags" }, object.active ? null : h("span", { class: "tag" }, "inaktiv"), object.in ? null : h("span", { class: "tag" }, "ohne Fläche"),
                scripts.map((section) => h("span", { class: "tag quiet" }, section.w)))),
        scripts.map((section) => script(section)),
        whole ? h("details", { class: "script head" }, h("summary", {}, h("span", { class: "word" }, "Kopf"), h("span", { class: "gist" }, object.pointer)), code(whole.f, whole.l, Math.max(whole.l, end))) : null);
}

views.raum = ([file, what, value, line]) => {
    const room = story.rooms.find((entry) => entry.file === file);
    if (!room) return [h("h1", {}, "Diesen Raum gibt es nicht"), h("p", {}, file)];
    const index = story.rooms.indexOf(room);
    let at = what === "zeile" ? { file: story.files.findIndex((entry) => entry.n === value), line: Number(line) } : null;
    const wanted = at ? sectionAt(at.file, at.line) : null;
    const open = what === "objekt" ? Number(value) : wanted && wanted.r === index ? wanted.o : -1;
    const choose = (object) => {
        const entry = list.querySelector(`[data-object="${object}"]`);
        entry.open = true;
        const scripts = entry.querySelectorAll("details.script:not(.head)");
        if (scripts.length && ![...scripts].some((one) => one.open)) scripts.forEach((one) => { one.open = true; });
        entry.scrollIntoView({ block: "nearest" });
        entry.classList.add("chosen");
        setTimeout(() => entry.classList.remove("chosen"), 1200);
    };
    const { element, light } = stage(room, choose);
    const scripts = story.sections.filter((section) => section.r === index && (section.w === "Start" || section.w === "Countdown"));
    const list = h("div", { class: "objects" }, room.objects.map((_, i) => objectEntry(room, i, i === open, light)));
    const out = story.ways.filter((way) => way.from === index);
    const into = [...new Set(story.ways.filter((way) => way.to === index && way.from >= 0 && way.from !== index).map((way) => way.from))];
    const body = h("div", { class: "roomBody" }, element, h("div", { class: "roomText" },
        scripts.length ? h("section", {}, h("h2", {}, "Abläufe"), scripts.map((section) => script(section))) : null,
        h("section", {}, h("h2", {}, "Objekte"), list),
        h("section", {}, h("h2", {}, "Wege hinaus"), out.length ? h("ul", { class: "ways" }, out.map((way) => wayItem(way))) : h("p", { class: "none" }, "Keine."),
            into.length ? h("p", { class: "into" }, "Herein geht es von ", into.map((from, i) => [i ? ", " : "", h("a", { href: roomAddress(story.rooms[from]) }, story.rooms[from].n)]), ".") : null)));
    if (wanted) openScript(body, wanted);
    const own = story.sections.find((section) => section.w === "Raum" && section.r === index);
    return [h("p", { class: "over" }, h("a", { href: address("karte") }, "Karte"), " · ", h("a", { href: address("quelle", story.files[room.f].n, room.l) }, story.files[room.f].n)),
        h("h1", {}, room.n), own ? meter(roomCoverage(index)) : null, body,
        at ? { reveal: at.file + ":" + at.line } : open >= 0 ? { choose: () => choose(open) } : null];
};
function openScript(body, section) {
    const entry = body.querySelector(`details[data-section="${section.index}"]`);
    if (entry) {
        entry.open = true;
        entry.fillIn();
    } else for (const head of body.querySelectorAll(`details.object[data-object="${section.o}"] > details.head`)) head.open = true;
}
function roomCoverage(index) {
    const sum = { ran: 0, all: 0 };
    for (const section of story.sections) {
        if (section.r !== index || section.w === "Raum" || section.w === "Objekt") continue;
        const part = coverageOf(section.f, section.l, section.e);
        sum.ran += part.ran;
        sum.all += part.all;
    }
    return sum;
}
