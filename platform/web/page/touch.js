// Buttons on the screen for those who have no keyboard: the bag, and the keys that a window asks for.
const arrows = [[null, ["▲", 38], null], [["◀", 37], ["▼", 40], ["▶", 39]]];
const letters = ["1234567890", "QWERTZUIOPÜ", "ASDFGHJKLÖÄ", "YXCVBNMß,.?"];
const digits = ["123456", "7890"];
const boards = { Form2: letters, Dialog: letters, PISpiel: digits };
const pads = { Jump: ["Springen", 32], Pong: ["Leertaste", 32] };

export class Touch {
    constructor(windows, input) {
        this.windows = windows;
        this.input = input;
        this.keys = document.getElementById("keys");
        this.bag = document.getElementById("bag");
        this.on = false;
        input.touched = () => this.begin();
        this.bag.addEventListener("pointerdown", (event) => {
            event.preventDefault();
            this.tap(32, " ");
        });
    }

    begin() {
        if (this.on) return;
        this.on = true;
        this.show(this.windows.top);
    }

    show(window) {
        if (!this.on) return;
        const name = window ? window.name : "";
        this.bag.hidden = name !== "Form1";
        this.keys.hidden = !(boards[name] || pads[name]);
        this.keys.className = boards[name] ? "board" : "pad";
        this.keys.textContent = "";
        if (pads[name]) this.pad(pads[name]);
        if (boards[name]) this.board(boards[name]);
        // A keyboard takes its room from the window, arrows lie beside it or over its lower edge.
        this.windows.room.bottom = boards[name] ? this.keys.offsetHeight : 0;
        this.windows.layOut();
    }

    tap(code, key) {
        this.input.type(code, true, { key });
        setTimeout(() => this.input.type(code, false), 60);
    }

    button(text, code, key, held) {
        const button = document.createElement("button");
        button.type = "button";
        button.textContent = text;
        button.tabIndex = -1;
        if (!held) {
            button.addEventListener("pointerdown", (event) => { event.preventDefault(); this.tap(code, key); });
            return button;
        }
        const set = (down) => {
            if (button.classList.contains("held") === down) return;
            button.classList.toggle("held", down);
            this.input.type(code, down, { key });
        };
        button.addEventListener("pointerdown", (event) => {
            event.preventDefault();
            button.setPointerCapture(event.pointerId);
            set(true);
        });
        for (const end of ["pointerup", "pointercancel", "lostpointercapture"]) button.addEventListener(end, () => set(false));
        return button;
    }

    pad([text, code]) {
        const cross = document.createElement("div");
        for (const row of arrows)
            for (const cell of row) cross.append(cell ? this.button(cell[0], cell[1], "", true) : document.createElement("i"));
        const action = this.button(text, code, " ", true);
        action.className = "wide";
        this.keys.append(cross, action);
    }

    board(rows) {
        for (const row of rows) {
            const line = document.createElement("div");
            for (const letter of row) line.append(this.button(letter, letter.charCodeAt(0) < 128 ? letter.charCodeAt(0) : 0, letter));
            this.keys.append(line);
        }
        const last = document.createElement("div");
        const wide = [["Esc", 27, "Escape"], ["Leer", 32, " "], ["⌫", 8, "Backspace"], ["Enter", 13, "Enter"]];
        for (const [text, code, key] of wide) {
            const button = this.button(text, code, key);
            button.className = "wide";
            last.append(button);
        }
        this.keys.append(last);
    }
}
