#include "engine/state/mangel.h"

namespace zentrox {

void MangelMelden(Platform& platform, Zustand& z, TextView was, TextView wo) {
    Text meldung = Text(was) + "\r\n\r\n" + Text(wo);
    if (!z.GemeldeteMängel.insert(meldung).second) return;
    showMessageBox(platform, {"Zentrox", std::move(meldung), MessageBox::Icon::critical});
}

}  // namespace zentrox
