// Calquo.exe: one main window and the message loop.
#include "numeric/random.h"
#include "shell/main_window.h"
#include "shell/message_loop.h"
#include "widgets/windows_api.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int showCommand) {
    // Lengths are scaled here; the system must not stretch the window as well.
    SetProcessDPIAware();
    calquo::MainWindow window;
    calquo::seedRandomFromClock();
    window.show(showCommand);
    return calquo::runMessageLoop(calquo::reportSpecialCase);
}
