// Calquo.exe: one instance, its settings, one main window and the message loop.
#include <new>
#include <optional>

#include "shell/command_line.h"
#include "shell/main_window.h"
#include "shell/message_loop.h"
#include "shell/registry_storage.h"
#include "shell/settings.h"
#include "shell/single_instance.h"
#include "shell/start_failure.h"
#include "values/errors.h"
#include "widgets/windows_api.h"
#include "workarea/recovery_folder.h"

namespace {

// Exit codes beside the one of the quit message.
constexpr int broughtForward = 1;
constexpr int noWindow = 2;
constexpr int cannotStart = 3;

bool registerWindowClass() {
    try {
        calquo::MainWindow::registerWindowClass();
        return true;
    } catch (const calquo::Except&) {
        return false;
    }
}

/// Why there is no window, by the exception in flight.
calquo::StartFailure startFailure() {
    using calquo::StartFailure;
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return StartFailure::NoMemory;
    } catch (...) {
        return calquo::TextArea::isAvailable() ? StartFailure::NoWindow : StartFailure::NoTextControl;
    }
}

int runProgram(int showCommand) {
    using namespace calquo;
    std::optional<InstanceMutex> instance(std::in_place);
    if (!instance->isFirst()) {
        return bringRunningProgramForward() ? broughtForward : noWindow;
    }
    if (!registerWindowClass()) {
        return noWindow;
    }
    RegistryStorage registry;
    Settings settings(registry);
    settings.loadAll();
    applyToEngine(settings);
    std::optional<MainWindow> window;
    try {
        window.emplace(settings, systemDialogs(), StartFiles{fileOnCommandLine(GetCommandLineW()), recoveryFolder()});
    } catch (...) {
        systemDialogs().showBox(nullptr, cannotStartBox(startFailure()));
        return cannotStart;
    }
    // After an update that ends programs or the session; a crash has its own reasons.
    RegisterApplicationRestart(nullptr, RESTART_NO_CRASH | RESTART_NO_HANG);
    ShowWindow(window->handle(), showCommand);
    // Painted at once, before everything that waits in the queue by now.
    RedrawWindow(window->handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const int code = runMessageLoop(reportSpecialCase);
    instance.reset();
    settings.saveAll();
    return code;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int showCommand) {
    // Lengths are scaled here; the system must not stretch the window as well.
    SetProcessDPIAware();
    try {
        return runProgram(showCommand);
    } catch (...) {
        // Whatever it was, there is no window in which to say so.
        return noWindow;
    }
}
