// The mutex of the running program, and its window.
#include "shell/single_instance.h"

#include "values/program.h"
#include "widgets/windows_api.h"

namespace calquo {

InstanceMutex::InstanceMutex() {
    SetLastError(ERROR_SUCCESS);
    mutex_ = CreateMutexW(nullptr, TRUE, wideProgramTitle);
    // Any error at all, such as a mutex of another user, counts as another instance.
    first_ = GetLastError() == ERROR_SUCCESS;
}

InstanceMutex::~InstanceMutex() {
    if (mutex_ == nullptr) {
        return;
    }
    if (first_) {
        ReleaseMutex(mutex_);
    }
    CloseHandle(mutex_);
}

bool bringRunningProgramForward() {
    const HWND window = FindWindowW(wideProgramTitle, nullptr);
    if (window == nullptr) {
        return false;
    }
    if (IsIconic(window) != 0) {
        ShowWindowAsync(window, SW_RESTORE);  // does not wait for a program that hangs
    }
    SetForegroundWindow(window);
    return true;
}

}  // namespace calquo
