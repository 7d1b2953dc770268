// Before a play goes on: what was, when it ended.
#pragma once

#include "comfort/sidecar.h"
#include "platform/platform.h"
#include "platform/window/controls/button.h"
#include "platform/window/controls/image.h"
#include "platform/window/controls/label.h"

namespace zentrox {

class WhatWas : public Window {
public:
    WhatWas(Platform& platform, const Sidecar& sidecar);

    bool goesOn() const { return goesOn_; }

private:
    void onOpen() override { setFocus(&on_); }
    void onKeyDown(int code) override;

    Image picture_;
    Label words_;
    Label said_;
    PushButton on_;
    PushButton off_;
    bool goesOn_ = false;
};

}  // namespace zentrox
