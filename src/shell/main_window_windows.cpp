// The main window's class, its messages and the place of the work area.
#include "shell/main_window.h"

#include <string>
#include <string_view>

#include "shell/command_ids.h"
#include "values/errors.h"
#include "values/program.h"
#include "widgets/kept_exception.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// The window's class and title; the program's names are plain ASCII.
std::wstring programTitleWide() {
    const std::string_view title = programTitle;
    return {title.begin(), title.end()};
}

constexpr std::uint16_t number(Command command) { return static_cast<std::uint16_t>(command); }

}  // namespace

/// Leads the window's messages to the object that owns it.
struct MainWindow::Procedure {
    static LRESULT CALLBACK receive(HWND window, UINT code, WPARAM wide, LPARAM extra) {
        auto* const owner = reinterpret_cast<MainWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        const auto answer = keepingExceptions(std::optional<MessageAnswer>(0), [&] {
            return owner == nullptr ? std::nullopt : owner->hear({code, wide, extra});
        });
        return answer ? *answer : DefWindowProcW(window, code, wide, extra);
    }

    static void registerClass(const std::wstring& name) {
        WNDCLASSW description{};
        description.lpfnWndProc = receive;
        description.hInstance = GetModuleHandleW(nullptr);
        description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        description.lpszClassName = name.c_str();
        if (RegisterClassW(&description) == 0) {
            raise(ErrorCode::InternalFault);
        }
    }
};

/// Which member hears which message.
struct MainWindow::MessageRow {
    UINT code;
    MessageAnswer (MainWindow::*hear)(const Message&);
};

const MainWindow::MessageRow MainWindow::messageRows[] = {
    {WM_SIZE, &MainWindow::sizeChanged},
    {WM_SETFOCUS, &MainWindow::giveFocus},
    {WM_DESTROY, &MainWindow::endProgram},
    {WM_NCDESTROY, &MainWindow::forgetWindow},
};

MainWindow::MainWindow() {
    const std::wstring title = programTitleWide();
    Procedure::registerClass(title);
    window_ = WindowOwner(CreateWindowExW(
        WS_EX_APPWINDOW, title.c_str(), title.c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
    if (!window_) {
        raise(ErrorCode::InternalFault);
    }
    workArea_ = std::make_unique<WorkArea>(handle(), number(Command::WorkArea), number(Command::HelpContents));
    SetWindowLongPtrW(handle(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    layOut();
}

MainWindow::~MainWindow() {
    // The last messages still need the handle; the final one gives it up.
    if (window_) {
        destroyWindow(handle());
    }
    UnregisterClassW(programTitleWide().c_str(), GetModuleHandleW(nullptr));
}

void MainWindow::show(int showCommand) {
    ShowWindow(handle(), showCommand);
    workArea_->giveFocus();
}

std::optional<MessageAnswer> MainWindow::hear(const Message& message) {
    for (const MessageRow& row : messageRows) {
        if (row.code == message.code) {
            return (this->*row.hear)(message);
        }
    }
    return std::nullopt;
}

void MainWindow::layOut() {
    RECT client{};
    GetClientRect(handle(), &client);
    workArea_->moveTo({0, 0, client.right, client.bottom});
}

MessageAnswer MainWindow::sizeChanged(const Message&) {
    layOut();
    return 0;
}

MessageAnswer MainWindow::giveFocus(const Message&) {
    workArea_->giveFocus();
    return 0;
}

MessageAnswer MainWindow::endProgram(const Message&) {
    PostQuitMessage(0);
    return 0;
}

MessageAnswer MainWindow::forgetWindow(const Message&) {
    SetWindowLongPtrW(handle(), GWLP_USERDATA, 0);
    window_.release();
    return 0;
}

}  // namespace calquo
