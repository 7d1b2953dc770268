// The functions of calls.h. Each hands over to an object of the page, `Module.page`: what is written here goes through
// a compiler that knows no newer script.
mergeInto(LibraryManager.library, {
    pageClock: function () { return Module.page.clock(); },
    pageSleep__deps: ['$Asyncify'],
    pageSleep: function (until) {
        return Asyncify.handleSleep(function (wakeUp) { Module.page.sleep(until, wakeUp); });
    },
    pageNext: function (fields) {
        var input = Module.page.next();
        if (!input) return 0;
        HEAP32.set(input, fields >> 2);
        return 1;
    },
    pageKeys: function (held) { HEAPU8.set(Module.page.keys, held); },

    pageOpen: function (window, name, title, width, height, frame) {
        Module.page.open(window, UTF8ToString(name), UTF8ToString(title), width, height, frame);
    },
    pageClose: function (window) { Module.page.close(window); },
    pageReshape: function (window, title, width, height) {
        Module.page.reshape(window, UTF8ToString(title), width, height);
    },
    pageDraw: function (window, pixels, x, y, width, height) {
        Module.page.draw(window, new Uint8ClampedArray(HEAPU8.buffer, pixels, width * height * 4), x, y, width, height);
    },
    pagePointer: function (window, mode, file) {
        return Module.page.pointer(window, mode, UTF8ToString(file)) ? 1 : 0;
    },
    pagePointerPicture: function (file, pixels, width, height) {
        Module.page.pointerPicture(UTF8ToString(file),
                                   new Uint8ClampedArray(HEAPU8.buffer, pixels, width * height * 4), width, height);
    },
    pageBox: function (title, text) { Module.page.box(UTF8ToString(title), UTF8ToString(text)); },

    pageNear__deps: ['$Asyncify'],
    pageNear: function (file) {
        var path = UTF8ToString(file);
        return Asyncify.handleSleep(function (wakeUp) { Module.page.near(path, wakeUp); });
    },
    pageClipboard: function (text, room) {
        stringToUTF8(Module.page.clipboard, text, room);
        return Math.min(lengthBytesUTF8(Module.page.clipboard), room - 1);
    },
    pageSetClipboard: function (text) { Module.page.setClipboard(UTF8ToString(text)); },
    pageShow: function (file) { return Module.page.show(UTF8ToString(file)) ? 1 : 0; },

    pagePlay: function (track, file) { Module.page.sound.play(track, UTF8ToString(file)); },
    pageStop: function (track) { Module.page.sound.stop(track); },
    pageHeard: function (track) { return Module.page.sound.heard(track); },
    pageFilm: function (file) { Module.page.film.play(UTF8ToString(file)); },
    pageStopFilm: function () { Module.page.film.stop(); },
    pageFilmSeen: function () { return Module.page.film.seen(); },
    pageFilmPicture: function (pixels) {
        var picture = Module.page.film.picture();
        if (!picture) return 0;
        HEAPU8.set(picture, pixels);
        return 1;
    },
});
