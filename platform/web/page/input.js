// Mouse, keys and fingers, turned into what the engine understands: ten numbers an input.
export const kinds = { move: 0, press: 1, release: 2, wheel: 3, keyDown: 4, keyUp: 5, keyPress: 6, resize: 7, close: 8 };
export const buttons = { none: 0, left: 1, right: 2, middle: 4 };
const buttonOf = [buttons.left, buttons.middle, buttons.right];
const heldSign = 128;
const doubleClick = 500;  // milliseconds
const longPress = 450;
const dragFrom = 10;  // pixels that a finger may tremble

export class Input {
    constructor(windows) {
        this.windows = windows;
        this.pending = [];
        this.keys = new Uint8Array(256);
        this.held = buttons.none;
        this.last = { time: -1000, x: 0, y: 0, button: 0, clicks: 1 };
        this.wake = null;
        this.byFinger = false;  // what is told now comes from a finger, which is broad
        this.active = false;  // while the game takes input
        this.touched = () => {};
        const stage = windows.stage;
        stage.addEventListener("pointerdown", (event) => this.down(event));
        stage.addEventListener("pointermove", (event) => this.move(event));
        stage.addEventListener("pointerup", (event) => this.up(event));
        stage.addEventListener("pointercancel", (event) => this.cancel(event));
        stage.addEventListener("wheel", (event) => this.wheel(event), { passive: false });
        addEventListener("contextmenu", (event) => event.preventDefault());
        addEventListener("keydown", (event) => this.key(event, true));
        addEventListener("keyup", (event) => this.key(event, false));
        addEventListener("blur", () => this.letGo());
    }

    push(kind, fields = {}) {
        const { at = [0, 0], button = 0, clicks = 1, code = 0, shift = 0, control = 0, character = 0 } = fields;
        const last = this.pending[this.pending.length - 1];
        const input = [kind, at[0], at[1], button, clicks, code, shift, control, character, +this.byFinger];
        if (kind === kinds.move && last && last[0] === kinds.move && last[3] === button) this.pending.pop();
        this.pending.push(input);
        if (this.wake) this.wake();
    }
    next() { return this.pending.shift(); }

    takes(event) {
        return this.active && this.windows.top && !event.target.closest("header") && !document.querySelector("dialog[open]");
    }

    // --- mouse

    press(at, button) {
        const now = performance.now();
        const near = Math.abs(at[0] - this.last.x) < 4 && Math.abs(at[1] - this.last.y) < 4;
        const again = near && button === this.last.button && now - this.last.time < doubleClick && this.last.clicks === 1;
        this.last = { time: now, x: at[0], y: at[1], button, clicks: again ? 2 : 1 };
        this.held = button;
        this.push(kinds.press, { at, button, clicks: this.last.clicks });
    }
    release(at, button) {
        this.held = buttons.none;
        this.push(kinds.release, { at, button });
    }
    click(at, button) {
        this.push(kinds.move, { at });
        this.press(at, button);
        this.release(at, button);
    }

    down(event) {
        if (!this.takes(event)) return;
        event.preventDefault();
        this.windows.stage.focus({ preventScroll: true });
        this.windows.stage.setPointerCapture(event.pointerId);
        if (event.pointerType === "touch") return this.fingerDown(event);
        this.press(this.windows.inGame(event), buttonOf[event.button] || buttons.middle);
    }
    move(event) {
        if (!this.takes(event)) return;
        if (event.pointerType === "touch") return this.fingerMove(event);
        // A further button pressed or released while one is held comes as a move.
        if (event.button > 0 || (event.button === 0 && this.held === 0)) this.chorded(event);
        this.push(kinds.move, { at: this.windows.inGame(event), button: this.held });
    }
    chorded(event) {
        const button = buttonOf[event.button];
        const bit = [1, 4, 2][event.button];
        const at = this.windows.inGame(event);
        if (event.buttons & bit) this.press(at, button);
        else this.release(at, button);
    }
    up(event) {
        if (!this.takes(event)) return;
        if (event.pointerType === "touch") return this.fingerUp(event);
        this.release(this.windows.inGame(event), buttonOf[event.button] || buttons.middle);
    }
    wheel(event) {
        if (!this.takes(event)) return;
        event.preventDefault();
        this.push(kinds.wheel, { at: this.windows.inGame(event), code: -Math.sign(event.deltaY) * 3 });
    }

    // --- a finger: a tap uses, a long press looks, a drag drags; in a game it is the mouse itself

    get gestures() { return this.windows.top.name === "Form1"; }

    fingerDown(event) {
        this.touched();
        if (this.finger) return;
        this.byFinger = true;
        this.touch(event);
        this.byFinger = false;
    }
    touch(event) {
        const at = this.windows.inGame(event);
        this.finger = { id: event.pointerId, at, x: event.clientX, y: event.clientY, state: "waits" };
        this.push(kinds.move, { at });
        if (!this.gestures) {
            this.finger.state = "held";
            this.press(at, buttons.left);
            return;
        }
        this.finger.timer = setTimeout(() => this.look(), longPress);
    }
    look() {
        const finger = this.finger;
        if (!finger || finger.state !== "waits") return;
        finger.state = "looked";
        if (navigator.vibrate) navigator.vibrate(12);
        const ring = document.createElement("div");
        ring.id = "ring";
        ring.style.left = finger.x + "px";
        ring.style.top = finger.y + "px";
        document.body.append(ring);
        setTimeout(() => ring.remove(), 300);
        this.click(finger.at, buttons.right);
    }
    fingerMove(event) {
        const finger = this.finger;
        if (!finger || event.pointerId !== finger.id) return;
        const far = Math.hypot(event.clientX - finger.x, event.clientY - finger.y) > dragFrom;
        if (finger.state === "waits" && far) {
            clearTimeout(finger.timer);
            finger.state = "held";
            this.press(finger.at, buttons.left);
        }
        if (finger.state === "held")
            this.push(kinds.move, { at: this.windows.inGame(event), button: buttons.left });
    }
    fingerUp(event) {
        this.byFinger = true;
        this.lift(event);
        this.byFinger = false;
    }
    lift(event) {
        const finger = this.finger;
        if (!finger || event.pointerId !== finger.id) return;
        clearTimeout(finger.timer);
        this.finger = null;
        if (finger.state === "waits") this.click(finger.at, buttons.left);
        if (finger.state === "held") this.release(this.windows.inGame(event), buttons.left);
    }
    cancel(event) {
        if (this.finger && event.pointerId === this.finger.id) this.fingerUp(event);
        else if (this.held) this.release(this.windows.top ? this.windows.inGame(event) : [0, 0], this.held);
    }

    // --- keys

    key(event, down) {
        if (!this.active || !this.windows.top || document.querySelector("dialog[open]")) return;
        if (event.isComposing || event.metaKey) return;
        if (event.target.closest && event.target.closest("#tools, #start") && event.key !== "F11") return;
        const full = event.key === "F11" || (event.key === "Enter" && event.altKey);
        if (full) {
            event.preventDefault();
            if (down && !event.repeat) this.fullScreen();
            return;
        }
        // What belongs to the browser stays with it.
        if (event.ctrlKey && !event.altKey && !"acvx".includes(event.key.toLowerCase())) return;
        if (/^F([3-6]|12)$/.test(event.key)) return;
        if (!(event.ctrlKey && event.key === "v")) event.preventDefault();
        this.type(event.keyCode, down, { repeat: event.repeat, shift: event.shiftKey, control: event.ctrlKey, key: event.key, altGraph: event.altKey });
    }

    // A key by its virtual code; `key` is what it writes, a character or a name.
    type(code, down, { repeat = false, shift = false, control = false, key = "", altGraph = false } = {}) {
        if (code > 0 && code < 256) this.keys[code] = down ? heldSign : 0;
        this.push(down ? kinds.keyDown : kinds.keyUp, { code, shift: +shift, control: +control, clicks: repeat ? 1 : 0 });
        if (!down) return;
        const named = { Backspace: 8, Tab: 9, Enter: 13, Escape: 27 }[key];
        const plain = [...key].length === 1;
        if (named) this.push(kinds.keyPress, { character: named });
        else if (plain && control && !altGraph && /[a-z]/i.test(key))
            this.push(kinds.keyPress, { character: key.toUpperCase().charCodeAt(0) - 64 });
        else if (plain && (!control || altGraph)) this.push(kinds.keyPress, { character: key.codePointAt(0) });
    }

    // Nothing stays held that the page can't see released.
    letGo() {
        for (let code = 0; code < 256; ++code)
            if (this.keys[code]) this.type(code, false);
    }
}
