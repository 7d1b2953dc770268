// The search over all that has a name or is said.

const searchField = document.getElementById("search");
const foundList = document.getElementById("found");

const searched = [
    ...story.rooms.map((room) => ({ kind: "Raum", text: room.n, href: roomAddress(room) })),
    ...story.rooms.flatMap((room) => room.objects.map((object, index) => ({ kind: room.n, text: object.n, href: address("raum", room.file, "objekt", index) }))),
    ...story.items.map((item) => ({ kind: "Gegenstand", text: item.n, act: () => showPanel("item", item.key) })),
    ...story.flags.map((flag) => ({ kind: "Merker", text: flag.n, act: () => showPanel("flag", flag.n) })),
    ...story.people.map((person) => ({ kind: "Person", text: person.n, href: address("texte", person.n) })),
    ...story.texts.map((text) => ({ kind: text.who || "Text", text: text.t.replace(/#/g, " "), href: addressOf(text.f, text.l), long: true })),
].map((entry) => ({ ...entry, low: entry.text.toLowerCase() }));
const mostFound = 60;

function found(words) {
    const wanted = words.toLowerCase().split(/\s+/).filter(Boolean);
    const hits = searched.filter((entry) => wanted.every((word) => entry.low.includes(word)));
    const rank = (entry) => (entry.low.startsWith(wanted[0]) ? 0 : 1) + (entry.long ? 2 : 0);
    return hits.sort((a, b) => rank(a) - rank(b));
}
function snippet(text, words) {
    const at = text.toLowerCase().indexOf(words.toLowerCase().split(/\s+/)[0]);
    const from = Math.max(0, at - 30);
    return (from ? "…" : "") + text.slice(from, from + 110) + (text.length > from + 110 ? "…" : "");
}
function search() {
    const words = searchField.value.trim();
    foundList.hidden = !words;
    document.getElementById("contents").hidden = Boolean(words);
    if (!words) return;
    const hits = found(words);
    const row = (entry) => {
        const inside = [h("small", {}, entry.kind), h("span", {}, snippet(entry.text, words))];
        return h("li", {}, entry.href ? h("a", { href: entry.href }, inside) : h("button", { type: "button", onclick: entry.act }, inside));
    };
    foundList.replaceChildren(h("p", { class: "hint" }, hits.length ? count(hits.length, "Stelle", "Stellen") : "Nichts gefunden."), h("ul", {}, hits.slice(0, mostFound).map(row)));
}
searchField.addEventListener("input", search);
searchField.addEventListener("keydown", (event) => {
    if (event.key === "Escape") { searchField.value = ""; search(); }
    const first = foundList.querySelector("a, button");
    if (event.key === "Enter" && first) first.click();
    if (event.key === "ArrowDown" && first) { first.focus(); event.preventDefault(); }
});
foundList.addEventListener("keydown", (event) => {
    const all = [...foundList.querySelectorAll("a, button")], at = all.indexOf(document.activeElement);
    if (event.key === "ArrowDown" && all[at + 1]) { all[at + 1].focus(); event.preventDefault(); }
    if (event.key === "ArrowUp") { (all[at - 1] || searchField).focus(); event.preventDefault(); }
});
