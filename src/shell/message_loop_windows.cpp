// The message loop, and its answer to exceptions.
#include "shell/message_loop.h"

#include "dialogs/dialog_window.h"
#include "widgets/kept_exception.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

void serve(MSG& message) {
    if (!DialogWindow::takes(message)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    rethrowKeptException();
}

}  // namespace

int runMessageLoop(const std::function<void()>& report) {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        try {
            serve(message);
        } catch (...) {
            report();
        }
    }
    try {
        rethrowKeptException();  // of the window's end
    } catch (...) {
        report();
    }
    return static_cast<int>(message.wParam);
}

void reportSpecialCase() {
    MessageBoxW(GetActiveWindow(), L"A special case could not be handled.", L"Special case",
                MB_OK | MB_ICONEXCLAMATION);
}

}  // namespace calquo
