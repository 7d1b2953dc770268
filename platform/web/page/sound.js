// Voice, effect and song, one of each at a time. Sounds are decoded whole; songs play from memory as they come.
import { complain, progress } from "./look.js";

const names = ["Eine Stimme", "Ein Geräusch", "Ein Lied"];
const song = 2;
const patience = 8000;  // milliseconds until a song's time runs without it
const kept = 24;  // decoded sounds
const rest = 3000;  // milliseconds of silence after which the sound machine, which is never idle, is halted

export class Sound {
    constructor(story) {
        this.story = story;
        this.tracks = [null, null, null];
        this.decoded = new Map();
        this.player = new Audio();
        this.player.preload = "auto";
    }

    // In the first click: only then a browser lets anything be heard.
    unlock() {
        const Context = window.AudioContext || window.webkitAudioContext;
        if (Context && !this.context) this.context = new Context({ latencyHint: "interactive" });
        if (this.context) {
            this.wakeUp();
            this.halt();
        }
        // An empty song, so that this player may play later on without a click.
        this.player.src = URL.createObjectURL(new Blob([silence()], { type: "audio/wav" }));
        this.player.play().catch(() => {});
    }

    play(track, path) {
        this.stop(track);
        const begun = performance.now();
        const playing = { path, asked: begun, since: null };
        this.tracks[track] = playing;
        const start = track === song ? this.startSong(playing) : this.startSound(playing);
        start.catch(() => {
            if (this.tracks[track] !== playing) return;
            if (playing.since === null) playing.since = performance.now();
            if (!playing.stopped) complain(names[track] + " fehlt; es geht ohne weiter.");
        });
    }

    async startSound(playing) {
        if (!this.context) return;
        const buffer = await this.buffer(playing.path);
        if (playing.stopped) return;
        this.wakeUp();
        playing.source = this.context.createBufferSource();
        playing.source.buffer = buffer;
        playing.source.connect(this.context.destination);
        playing.source.start();
        playing.since = performance.now();
        playing.source.onended = () => { playing.source = null; this.halt(); };
    }
    wakeUp() {
        clearTimeout(this.halting);
        if (this.context.state !== "running") this.context.resume().catch(() => {});
    }
    halt() {
        clearTimeout(this.halting);
        this.halting = setTimeout(() => {
            if (!this.tracks.some((playing) => playing && playing.source)) this.context.suspend().catch(() => {});
        }, rest);
    }
    async buffer(path) {
        if (this.decoded.has(path)) return this.decoded.get(path);
        const bytes = await this.story.bytes(path);
        const buffer = await this.context.decodeAudioData(bytes.buffer.slice(bytes.byteOffset, bytes.byteOffset + bytes.byteLength));
        this.decoded.set(path, buffer);
        if (this.decoded.size > kept) this.decoded.delete(this.decoded.keys().next().value);
        return buffer;
    }

    async startSong(playing) {
        const slow = setTimeout(() => progress("Das Lied kommt …", 0.4), 600);
        try {
            const bytes = await this.story.bytes(playing.path);
            if (playing.stopped) return;
            playing.url = URL.createObjectURL(new Blob([bytes], { type: "audio/mpeg" }));
            this.player.src = playing.url;
            await this.player.play().catch((failure) => {
                // Stopped before it began, or a browser that is mute: not worth a word.
                if (failure.name !== "AbortError" && failure.name !== "NotAllowedError") throw failure;
            });
            if (!playing.stopped) playing.since = performance.now();
        } finally {
            clearTimeout(slow);
            progress(null);
        }
    }

    stop(track) {
        const playing = this.tracks[track];
        if (!playing) return;
        this.tracks[track] = null;
        playing.stopped = true;
        if (playing.source) {
            playing.source.onended = null;
            playing.source.stop();
            playing.source = null;
            this.halt();
        }
        if (track === song) {
            this.player.pause();
            if (!playing.url) return;
            // It lets go of the file before the file goes.
            this.player.removeAttribute("src");
            this.player.load();
            URL.revokeObjectURL(playing.url);
        }
    }

    heard(track) {
        const playing = this.tracks[track];
        if (!playing) return 0;
        if (playing.since === null && performance.now() - playing.asked > patience) playing.since = performance.now();
        return playing.since === null ? 0 : performance.now() - playing.since;
    }
}

// A tenth of a second of nothing.
function silence() {
    const samples = 800;
    const bytes = new DataView(new ArrayBuffer(44 + samples));
    const text = (at, word) => [...word].forEach((c, i) => bytes.setUint8(at + i, c.charCodeAt(0)));
    text(0, "RIFF"); bytes.setUint32(4, 36 + samples, true); text(8, "WAVEfmt ");
    bytes.setUint32(16, 16, true); bytes.setUint16(20, 1, true); bytes.setUint16(22, 1, true);
    bytes.setUint32(24, 8000, true); bytes.setUint32(28, 8000, true); bytes.setUint16(32, 1, true); bytes.setUint16(34, 8, true);
    text(36, "data"); bytes.setUint32(40, samples, true);
    for (let i = 0; i < samples; ++i) bytes.setUint8(44 + i, 128);
    return bytes.buffer;
}
