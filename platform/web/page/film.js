// Films: the browser decodes them, the engine takes each picture as it comes.
import { complain, progress } from "./look.js";

const width = 640;
const height = 480;

export class Film {
    constructor(story) {
        this.story = story;
        this.video = document.createElement("video");
        this.video.playsInline = true;
        this.video.preload = "auto";
        this.canvas = document.createElement("canvas");
        this.canvas.width = width;
        this.canvas.height = height;
        this.context = this.canvas.getContext("2d", { alpha: false, willReadFrequently: true });
        this.now = null;
    }

    play(path) {
        this.stop();
        const film = { shown: -1, failed: false, ready: false };
        this.now = film;
        this.start(film, path).catch(() => {
            if (this.now !== film) return;
            film.failed = true;
            complain("Der Film fehlt; es geht ohne weiter.");
        });
    }
    async start(film, path) {
        const slow = setTimeout(() => progress("Der Film kommt …", 0.4), 400);
        try {
            const bytes = await this.story.bytes(path);
            if (this.now !== film) return;
            film.url = URL.createObjectURL(new Blob([bytes], { type: "video/webm" }));
            this.video.muted = false;
            this.video.src = film.url;
            await this.video.play().catch(async (failure) => {
                if (failure.name !== "NotAllowedError") throw failure;
                this.video.muted = true;
                await this.video.play();
            });
            film.ready = true;
        } catch (failure) {
            if (this.now === film) throw failure;
        } finally {
            clearTimeout(slow);
            progress(null);
        }
    }
    stop() {
        if (!this.now) return;
        if (this.now.url) {
            this.video.pause();
            this.video.removeAttribute("src");
            this.video.load();
            URL.revokeObjectURL(this.now.url);
        }
        this.now = null;
    }

    // Milliseconds; less than 0 when it has ended or can't be shown.
    seen() {
        if (!this.now || this.now.failed) return -1;
        if (!this.now.ready) return 0;
        return this.video.ended || this.video.error ? -1 : this.video.currentTime * 1000;
    }
    picture() {
        const film = this.now;
        if (!film || !film.ready || this.video.readyState < 2) return null;
        const quality = this.video.getVideoPlaybackQuality ? this.video.getVideoPlaybackQuality().totalVideoFrames : this.video.currentTime;
        if (quality === film.shown && film.drawn) return null;
        film.shown = quality;
        film.drawn = true;
        this.context.drawImage(this.video, 0, 0, width, height);
        return this.context.getImageData(0, 0, width, height).data;
    }
}
