// The windows of the game: each a canvas, with a frame where a desktop would give it one.
const frames = ["sizable", "fixed", "dialog", "thin", "none"];
const iconSide = 32;
const bar = 36;  // the room that a title and its edge take, in pixels of the page
const modes = { arrow: 0, question: 1, invisible: 2, own: 3 };

// The arrow, and beside it the question mark: X is black, o white.
const drawn = [
    "X                       ", "XX             XXXXX    ", "XoX           XoooooX   ", "XooX         XooXXXooX  ",
    "XoooX        XooX XooX  ", "XooooX        XX  XooX  ", "XoooooX          XooX   ", "XooooooX        XooX    ",
    "XoooooooX       XooX    ", "XooooooooX      XooX    ", "XoooooooooX      XX     ", "XooooooXXXXX    XXXX    ",
    "XoooXooX        XooX    ", "XooXXooX        XooX    ", "XoX  XooX        XX     ", "XX   XooX               ",
    "X     XooX              ", "      XooX              ", "       XooX             ", "       XooX             ",
    "        XX              ",
];

function drawnPicture(columns) {
    const picture = new ImageData(columns, drawn.length);
    drawn.forEach((row, y) => [...row.slice(0, columns)].forEach((ink, x) => {
        if (ink === " ") return;
        const at = (y * columns + x) * 4;
        picture.data.fill(ink === "o" ? 255 : 0, at, at + 3);
        picture.data[at + 3] = 255;
    }));
    return picture;
}

function canvasOf(picture) {
    const canvas = document.createElement("canvas");
    canvas.width = picture.width;
    canvas.height = picture.height;
    canvas.getContext("2d").putImageData(picture, 0, 0);
    return canvas;
}

export class Windows {
    constructor(stage, onClose) {
        this.stage = stage;
        this.onClose = onClose;
        this.open_ = [];  // the topmost one is the last
        this.pointers = new Map();
        this.cursors = new Map();
        this.pointers.set("arrow", { picture: canvasOf(drawnPicture(12)), middle: false });
        this.pointers.set("question", { picture: canvasOf(drawnPicture(24)), middle: false });
        this.whole = localStorage.getItem("zentrox-scale") === "whole";
        this.changed = () => {};
        this.room = { bottom: 0 };  // what keys on the screen take away
        new ResizeObserver(() => this.layOut()).observe(stage);
        matchMedia("(resolution: 1dppx)").addEventListener("change", () => this.layOut());
    }

    get top() { return this.open_[this.open_.length - 1]; }

    open(number, name, title, width, height, frame) {
        const box = document.createElement("div");
        const kind = frames[frame];
        const window = { number, name, width, height, kind, box, scale: 1, pointer: { mode: 0, file: "" } };
        window.titled = kind === "fixed" || kind === "dialog";
        box.className = "window" + (window.titled ? " titled" : kind === "thin" ? " edged" : "");
        box.dataset.name = name;
        if (window.titled) {
            const header = document.createElement("header");
            window.label = document.createElement("span");
            window.label.textContent = title;
            const close = document.createElement("button");
            close.textContent = "✕";
            close.setAttribute("aria-label", "Schließen");
            close.tabIndex = -1;
            close.addEventListener("click", () => { if (window === this.top) this.onClose(); });
            header.append(window.label, close);
            box.append(header);
        }
        window.canvas = document.createElement("canvas");
        window.canvas.width = width;
        window.canvas.height = height;
        window.context = window.canvas.getContext("2d", { alpha: false });
        box.append(window.canvas);
        this.stage.append(box);
        this.open_.push(window);
        this.after();
    }

    close(number) {
        const at = this.open_.findIndex((window) => window.number === number);
        if (at < 0) return;
        this.open_[at].box.remove();
        this.open_.splice(at, 1);
        this.after();
    }

    after() {
        this.open_.forEach((window) => window.box.classList.toggle("below", window !== this.top));
        this.layOut();
        this.changed(this.top);
    }

    reshape(number, title, width, height) {
        const window = this.of(number);
        if (!window) return;
        if (window.label) window.label.textContent = title;
        if (window.width === width && window.height === height) return;
        window.canvas.width = window.width = width;
        window.canvas.height = window.height = height;
        this.layOut();
    }

    of(number) { return this.open_.find((window) => window.number === number); }

    draw(number, pixels, x, y, width, height) {
        const window = this.of(number);
        if (window) window.context.putImageData(new ImageData(pixels, width, height), x, y);
    }

    // --- size and place

    // In device pixels a whole multiple is sharpest; where that would leave much of the screen empty the window fills
    // it instead, unless the player wants multiples.
    scaleFor(window, width, height) {
        const ratio = devicePixelRatio || 1;
        const room = window.titled ? bar : window.kind === "thin" ? 6 : 0;
        const fit = Math.max(0.1, Math.min((width - (room ? 8 : 0)) / window.width, (height - room) / window.height));
        const whole = Math.floor(fit * ratio) / ratio;
        if (whole > 0 && (this.whole || whole >= fit * 0.85)) return { scale: whole, sharp: true };
        return { scale: fit, sharp: fit * ratio >= 3 };
    }

    layOut() {
        const ratio = devicePixelRatio || 1;
        const width = this.stage.clientWidth;
        const height = this.stage.clientHeight - this.room.bottom;
        let below = null;
        for (const window of this.open_) {
            let { scale, sharp } = this.scaleFor(window, width, height);
            if (below && below.scale < scale) ({ scale, sharp } = { scale: below.scale, sharp: below.sharp });
            Object.assign(window, { scale, sharp });
            window.canvas.style.width = window.width * scale + "px";
            window.canvas.style.height = window.height * scale + "px";
            window.canvas.classList.toggle("whole", sharp);
            const place = (room, size) => Math.max(0, Math.round((room - size) / 2 * ratio) / ratio);
            const left = place(width, window.box.offsetWidth);
            const top = place(height, window.box.offsetHeight);
            window.box.style.transform = "translate(" + left + "px," + top + "px)";
            below = window;
        }
        this.cursors.clear();
        if (this.top) this.showPointer(this.top);
    }

    // A point of the page in pixels of the topmost window.
    inGame(event) {
        const { canvas, scale } = this.top;
        const area = canvas.getBoundingClientRect();
        return [Math.floor((event.clientX - area.left) / scale), Math.floor((event.clientY - area.top) / scale)];
    }

    // --- pointers

    // False for a picture that is not known yet.
    pointer(number, mode, file) {
        const window = this.of(number);
        if (!window) return true;
        if (mode === modes.own && !this.pointers.has("file " + file)) return false;
        window.pointer = { mode, file };
        this.showPointer(window);
        return true;
    }
    pointerPicture(file, pixels, width, height) {
        const copy = new ImageData(new Uint8ClampedArray(pixels), width, height);
        this.pointers.set("file " + file, { picture: canvasOf(copy), middle: true });
    }

    showPointer(window) {
        const { mode, file } = window.pointer;
        if (mode === modes.invisible) {
            window.canvas.style.cursor = "none";
            return;
        }
        const name = mode === modes.own ? "file " + file : mode === modes.question ? "question" : "arrow";
        const key = name + " " + window.scale;
        if (!this.cursors.has(key)) this.cursors.set(key, this.cursor(name, window.scale));
        window.canvas.style.cursor = this.cursors.get(key);
    }

    // As large as it would be beside the window's pixels; browsers take no more than 128 of their own.
    cursor(name, scale) {
        const { picture, middle } = this.pointers.get(name);
        const grow = Math.min(middle ? iconSide * scale / picture.width : scale, 128 / picture.height);
        const canvas = document.createElement("canvas");
        canvas.width = Math.max(1, Math.round(picture.width * grow));
        canvas.height = Math.max(1, Math.round(picture.height * grow));
        const context = canvas.getContext("2d");
        context.imageSmoothingEnabled = grow < 1;
        context.drawImage(picture, 0, 0, canvas.width, canvas.height);
        const spot = middle ? Math.floor(canvas.width / 2) + " " + Math.floor(canvas.height / 2) : "0 0";
        return "url(" + canvas.toDataURL() + ") " + spot + ", default";
    }

    toggleWhole() {
        this.whole = !this.whole;
        localStorage.setItem("zentrox-scale", this.whole ? "whole" : "fit");
        this.layOut();
        return this.whole;
    }
}
