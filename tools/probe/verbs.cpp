#include "tools/probe/verbs.h"

#include <array>

namespace zentrox::probe {

std::span<const Verb> verbs() {
    static constexpr const char* press = "press [BUTTON] [X Y]";
    static constexpr const char* release = "release [BUTTON] [X Y]";
    static constexpr std::array all{
        Verb{"wait", "n", "wait MS", &Player::wait},
        Verb{"until", "c", "until CONDITION [MS]", &Player::until},
        Verb{"expect", "c", "expect CONDITION", &Player::expect},
        Verb{"move", "nn", "move X Y", &Player::move},
        Verb{"press", "", press, &Player::press},
        Verb{"press", "nn", press, &Player::press},
        Verb{"press", "b", press, &Player::press},
        Verb{"press", "bnn", press, &Player::press},
        Verb{"release", "", release, &Player::release},
        Verb{"release", "nn", release, &Player::release},
        Verb{"release", "b", release, &Player::release},
        Verb{"release", "bnn", release, &Player::release},
        Verb{"click", "nn", "click [BUTTON] X Y", &Player::click},
        Verb{"click", "bnn", "click [BUTTON] X Y", &Player::click},
        Verb{"doubleclick", "nn", "doubleclick X Y", &Player::doubleClick},
        Verb{"down", "k", "down KEY", &Player::keyDown},
        Verb{"up", "k", "up KEY", &Player::keyUp},
        Verb{"key", "k", "key KEY", &Player::key},
        Verb{"type", "w", "type \"TEXT\"", &Player::type},
        Verb{"read", "*", "read [\"TEXT\"]...", &Player::read},
        Verb{"use", "w", "use OBJECT", &Player::useObject},
        Verb{"use", "iw", "use item ITEM", &Player::useItem},
        Verb{"look", "w", "look OBJECT", &Player::lookObject},
        Verb{"look", "iw", "look item ITEM", &Player::lookItem},
        Verb{"give", "ww", "give ITEM OBJECT", &Player::give},
        Verb{"combine", "ww", "combine ITEM ITEM", &Player::combine},
        Verb{"choose", "n", "choose N or choose \"TEXT\"", &Player::chooseNumber},
        Verb{"choose", "q", "choose N or choose \"TEXT\"", &Player::chooseText},
        Verb{"win", "", "win", &Player::win},
        Verb{"lose", "", "lose", &Player::lose},
        Verb{"set", "w", "set FLAG", &Player::setFlag},
        Verb{"take", "w", "take ITEM", &Player::takeItem},
        Verb{"clear", "w", "clear FLAG", &Player::clearFlag},
        Verb{"drop", "w", "drop ITEM", &Player::dropItem},
        Verb{"evil", "n", "evil N", &Player::setEvil},
        Verb{"go", "w", "go ROOM", &Player::goToRoom},
        Verb{"resize", "nn", "resize W H", &Player::resize},
        Verb{"close", "", "close", &Player::close},
        Verb{"shot", "w", "shot FILE", &Player::shot},
        Verb{"say", "c", "say CONDITION, say state, say controls or say pointer", &Player::say},
        Verb{"end", "", "end", &Player::end},
    };
    return all;
}

}  // namespace zentrox::probe
