#include "comfort/talk.h"

#include "comfort/historywindow.h"
#include "platform/values/keys.h"

namespace zentrox {

Talk::Talk(Comforts& comforts, const History& history)
    : comforts_(comforts),
      history_(history),
      reader_(comforts),
      speech_(comforts),
      captions_(comforts) {
    comforts.observers().Dazu(*this);
    comforts.addLook([this](const Input& input) { return wheels(input); });
    comforts.keys().add({.code = key::pageUp,
                         .label = "Bild auf",
                         .does = "was gesagt wurde (auch mit dem Rad)",
                         .down = [this] { showHistory(); },
                         .available = [this] { return inRoom(); }});
}

bool Talk::inRoom() const {
    const Window* const window = comforts_.platform().queue.active();
    return open_ && window != nullptr && window->name() == "Form1";
}

bool Talk::wheels(const Input& input) {
    if (input.kind != Input::Kind::wheel || input.code <= 0 || comforts_.keys().busy() || !inRoom()) return false;
    showHistory();
    return true;
}

void Talk::showHistory() {
    if (history_.all().empty()) return comforts_.notice("Noch ist nichts gesagt worden.");
    comforts_.keys().during([this] {
        const float points = 9 * static_cast<float>(comforts_.settings().letters) / 100;
        HistoryWindow window(comforts_.platform(), history_, {.points = points});
        window.showModal();
    });
}

}  // namespace zentrox
