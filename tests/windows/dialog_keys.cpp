// Keys on their way through the message loop, as the dialogs expect them.
#include "dialog_keys.h"

#include "program.h"

namespace calquo {

void settle() {
    constexpr DWORD quiet = 30, mostRounds = 100;
    for (DWORD round = 0; round < mostRounds; ++round) {
        Program::serveMessages();
        if (MsgWaitForMultipleObjects(0, nullptr, FALSE, quiet, QS_ALLINPUT) == WAIT_TIMEOUT) {
            return;
        }
    }
}

void press(WPARAM key) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
    Program::serveMessages();
}

HWND settledFocus() {
    settle();
    return GetFocus();
}

}  // namespace calquo
