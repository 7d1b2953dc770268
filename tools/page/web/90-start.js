// The contents at the side, and what the address shows.

const side = document.getElementById("side");
const menuButton = document.getElementById("menu");
const view = document.getElementById("view");

function entry(words, text, number, mark) {
    return h("li", {}, h("a", { href: address(...words), "data-view": words[0] }, h("span", {}, text), number !== undefined ? h("small", { class: mark || null }, String(number)) : null));
}
const errors = findings.filter((finding) => finding.s === "error").length;
document.getElementById("contents").append(
    h("ul", { class: "nav" }, entry(["karte"], "Karte"), entry(["gespraeche"], "Gespräche", story.talks.length), entry(["texte"], "Texte", story.texts.length),
        entry(["merker"], "Merker", story.flags.length), entry(["gegenstaende"], "Gegenstände", story.items.length), story.people.length ? entry(["personen"], "Personen", story.people.length) : null,
        entry(["befunde"], "Befunde", findings.length, errors ? "error" : findings.length ? "warning" : ""), entry(["beweis"], "Beweis", story.proof ? story.proof.endings.length + (story.proof.dead.length ? " / " + story.proof.dead.length : "") : undefined),
        story.coverage ? entry(["abdeckung"], "Gelaufen") : null, entry(["quelle"], "Quellen", story.files.filter((file) => file.t).length)),
    h("h2", {}, "Räume"),
    h("ul", { class: "nav rooms" }, story.rooms.map((room, index) => h("li", {}, h("a", { href: roomAddress(room), "data-room": room.file },
        image(room.pic, "") || h("span", { class: "black" }), h("span", {}, room.n), meter(roomCoverage(index)))))));

function openMenu(open) {
    side.classList.toggle("open", open);
    menuButton.setAttribute("aria-expanded", String(open));
}
menuButton.addEventListener("click", () => openMenu(!side.classList.contains("open")));
view.addEventListener("click", () => openMenu(false));
side.addEventListener("click", (event) => { if (event.target.closest("a, #found button")) openMenu(false); });

function reveal(place) {
    const row = view.querySelector(`[data-at="${CSS.escape(place)}"]`);
    if (!row) return;
    for (let box = row.closest("details"); box; box = box.parentElement.closest("details")) box.open = true;
    row.classList.add("here");
    row.scrollIntoView({ block: "center" });
}
function wordsOfAddress(hash) {
    try {
        return hash.replace(/^#\/?/, "").split("/").filter(Boolean).map(decodeURIComponent);
    } catch {
        return [];
    }
}
function show(hash) {
    const [name = "karte", ...rest] = wordsOfAddress(hash);
    const chosen = Object.hasOwn(views, name) ? name : "karte";
    if (pencil) pencil = null;
    const parts = views[chosen](rest).flat(Infinity).filter((part) => part !== null && part !== undefined && part !== false);
    view.className = "view-" + chosen;
    view.replaceChildren(...parts.filter((part) => part instanceof Node || typeof part === "string"));
    if (window.innerWidth < 1100) closePanel();
    window.scrollTo(0, 0);
    for (const part of parts) {
        if (part.reveal) reveal(part.reveal);
        if (part.choose) part.choose();
    }
    const heading = view.querySelector("h1");
    document.title = (heading && heading.textContent !== story.title ? heading.textContent + " – " : "") + story.title;
    for (const link of side.querySelectorAll("[aria-current]")) link.removeAttribute("aria-current");
    const current = chosen === "raum" ? side.querySelector(`[data-room="${CSS.escape(rest[0] || "")}"]`) : side.querySelector(`[data-view="${chosen}"]`);
    if (current) current.setAttribute("aria-current", "page");
}
window.addEventListener("hashchange", () => show(location.hash));
document.addEventListener("keydown", (event) => {
    const writing = event.target.closest("input, textarea, select");
    if (event.key === "Escape" && !panel.hidden && !writing) closePanel();
    if (event.key === "/" && !writing) { event.preventDefault(); openMenu(true); searchField.focus(); }
});
show(location.hash);
document.documentElement.dataset.ready = "yes";
