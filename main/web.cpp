// The game in a browser; see `playPage` for its arguments.
#include "main/page.h"

int main(int argc, char** argv) {
    return zentrox::playPage({argv + 1, argv + argc});
}
