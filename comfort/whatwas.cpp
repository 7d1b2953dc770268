#include "comfort/whatwas.h"

#include "comfort/savedialog.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr Size area{460, 290};
constexpr int margin = 14;
constexpr Size button{120, 25};
constexpr TextView saidLast = "Zuletzt gesagt:"_t;

Text said(const Sidecar& sidecar) {
    if (sidecar.lines.empty()) return {};
    Text words(saidLast);
    for (const Text& line : sidecar.lines) words += "\r\n   " + line;
    return words;
}

}  // namespace

WhatWas::WhatWas(Platform& platform, const Sidecar& sidecar)
    : Window(platform, "WasWar", "Was war", area, Frame::dialog),
      picture_(&root(), {{margin, margin}, thumbnailSize}),
      words_(&root(),
             {2 * margin + thumbnailSize.w, margin, area.w - 3 * margin - thumbnailSize.w, thumbnailSize.h},
             describe(sidecar)),
      said_(&root(), {margin, 2 * margin + thumbnailSize.h, area.w - 2 * margin, 80}, said(sidecar)),
      on_(&root(), {{area.w - 2 * margin - 2 * button.w, area.h - margin - button.h}, button}, "Weiterspielen"),
      off_(&root(), {{area.w - margin - button.w, area.h - margin - button.h}, button}, "Ins Menü"_t) {
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
