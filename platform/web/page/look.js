// Small signs beside the game: a bar for what takes longer, and notes.
const element = (id) => document.getElementById(id);

// `text` null takes the bar away; `part` is from 0 to 1.
export function progress(text, part) {
    const bar = element("bar");
    bar.hidden = text === null;
    if (text === null) return;
    element("barText").textContent = text;
    element("barFill").style.width = Math.round(part * 100) + "%";
}

export function toast(text, { stays = false, button = "", action = null } = {}) {
    const note = document.createElement("div");
    note.textContent = text;
    if (button) {
        const press = document.createElement("button");
        press.textContent = button;
        press.addEventListener("click", action);
        note.append(press);
    }
    element("toasts").append(note);
    if (!stays) setTimeout(() => note.remove(), 6000);
    return note;
}

// The same complaint only once in a while.
const told = new Map();
export function complain(text) {
    const now = performance.now();
    if (told.has(text) && now - told.get(text) < 30000) return;
    told.set(text, now);
    toast(text);
}
