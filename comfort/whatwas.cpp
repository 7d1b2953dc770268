#include "comfort/whatwas.h"

#include "comfort/letters.h"
#include "comfort/savedialog.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr int margin = 14;
constexpr TextView saidLast = "Zuletzt gesagt:"_t;

Text said(const Sidecar& sidecar) {
    if (sidecar.lines.empty()) return {};
    Text words(saidLast);
    for (const Text& line : sidecar.lines) words += "\r\n   " + line;
    return words;
}

// Where everything stands.
struct Layout {
    Size client;
    Rect words;
    Rect said;
    Rect on;
    Rect off;
};

Layout layOut(const Platform& platform) {
    Layout out;
    out.client = {grown(platform, 460, 616), grown(platform, 290, 430)};
    const Size button{grown(platform, 120, 190), grown(platform, 25, 36)};
    const int left = 2 * margin + thumbnailSize.w;
    out.words = {left, margin, out.client.w - margin - left, grown(platform, thumbnailSize.h, 150)};
    out.off = {{out.client.w - margin - button.w, out.client.h - margin - button.h}, button};
    out.on = {out.off.at() - Point{margin + button.w, 0}, button};
    const int top = out.words.bottom() + margin;
    out.said = {margin, top, out.client.w - 2 * margin, grown(platform, 80, out.off.y - 8 - top)};
    return out;
}

}  // namespace

WhatWas::WhatWas(Platform& platform, const Sidecar& sidecar)
    : Window(platform, "WasWar", "Was war", layOut(platform).client, Frame::dialog),
      picture_(&root(), {{margin, margin}, thumbnailSize}),
      words_(&root(), layOut(platform).words, describe(sidecar)),
      said_(&root(), layOut(platform).said, said(sidecar)),
      on_(&root(), layOut(platform).on, "Weiterspielen"),
      off_(&root(), layOut(platform).off, "Ins Menü"_t) {
    for (Label* const label : {&words_, &said_})
        label->setFont(fittingFont(platform, label->text(), label->area().size()));
    on_.setFont(platform.boxFont());
    off_.setFont(platform.boxFont());
    picture_.setPicture(sidecar.picture);
    on_.setDefault(true);
    on_.onClick = [this] {
        goesOn_ = true;
        close();
    };
    off_.onClick = [this] { close(); };
}

void WhatWas::onKeyDown(int code) {
    if (code == key::escape) close();
    if (code != key::enter) return;
    goesOn_ = focus() != &off_;
    close();
}

}  // namespace zentrox
