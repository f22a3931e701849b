// The main window's class, its messages and its layout.
#include "shell/main_window.h"

#include <algorithm>
#include <string>

#include "numeric/random.h"
#include "shell/command_ids.h"
#include "shell/menu_marks.h"
#include "shell/menu_tree.h"
#include "values/errors.h"
#include "values/program.h"
#include "widgets/kept_exception.h"
#include "widgets/painting.h"
#include "widgets/screens.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr WindowStyle windowStyle{
    WS_POPUP | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX | WS_CLIPCHILDREN, WS_EX_APPWINDOW};

/// What a usable work area measures at least, in buttons.
constexpr Size smallestWorkAreaInButtons{10, 5};

/// The colour behind the button panels.
constexpr Color panelGround{236, 239, 243};

/// The pop-up menus of the caption's buttons begin this far to the left of and above the button, in pixels.
constexpr int menuOffset = 8;

/// Does something when it goes out of scope.
template <typename Action>
class AtEnd {
public:
    explicit AtEnd(Action action) : action_(action) {}
    ~AtEnd() { action_(); }
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;

private:
    Action action_;
};

void place(ButtonPanel& panel, const Rectangle& rectangle) {
    panel.moveTo(rectangle);
    panel.layOut();
}

/// Where the menu of a caption's button opens, on the screen.
Point menuCorner(const Component& button) {
    const Rectangle place = windowRectangle(button.handle());
    return {place.left - menuOffset, place.top - menuOffset};
}

/// The maximized window: the screen without its taskbar, with all but one pixel of the sizing frame around it.
Rectangle maximizedPlace(HWND window) {
    const Rectangle area = screenOf(window).usableArea;
    const Rectangle frame = windowAround({}, windowStyle);
    return {area.left + frame.left + 1, area.top + frame.top + 1, area.width + frame.width - 2,
            area.height + frame.height - 2};
}

}  // namespace

/// Leads the window's messages to the object that owns it.
struct MainWindow::Procedure {
    static LRESULT CALLBACK receive(HWND window, UINT code, WPARAM wordParameter, LPARAM longParameter) {
        if (code == WM_NCCREATE) {
            adopt(window, *reinterpret_cast<const CREATESTRUCTW*>(longParameter));
        }
        auto* const owner = reinterpret_cast<MainWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        const MessageAnswer failed = code == WM_CREATE ? -1 : 0;
        const auto answer = keepingExceptions(std::optional<MessageAnswer>(failed), [&] {
            return owner == nullptr ? std::nullopt : owner->hear({code, wordParameter, longParameter});
        });
        return answer ? *answer : DefWindowProcW(window, code, wordParameter, longParameter);
    }

    static void adopt(HWND window, const CREATESTRUCTW& creation) {
        auto* const owner = static_cast<MainWindow*>(creation.lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(owner));
        owner->window_.reset(window);
    }

    static void registerClass(const wchar_t* name) {
        const HINSTANCE program = GetModuleHandleW(nullptr);
        WNDCLASSEXW description{};
        description.cbSize = sizeof description;
        description.lpfnWndProc = receive;
        description.hInstance = program;
        description.hIcon = LoadIconW(program, MAKEINTRESOURCEW(programIcon));
        description.hIconSm =
            static_cast<HICON>(LoadImageW(program, MAKEINTRESOURCEW(programIcon), IMAGE_ICON,
                                          GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_SHARED));
        description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_SCROLLBAR + 1);
        description.lpszClassName = name;
        if (RegisterClassExW(&description) == 0) {
            raise(ErrorCode::InternalFault);
        }
    }
};

/// Which member hears which message. One without an answer goes on to the system.
struct MainWindow::MessageRow {
    UINT code;
    std::optional<MessageAnswer> (MainWindow::*hear)(const Message&);
};

const MainWindow::MessageRow MainWindow::messageRows[] = {
    {WM_CREATE, &MainWindow::hearCreation},
    {WM_DESTROY, &MainWindow::hearDestruction},
    {WM_QUERYENDSESSION, &MainWindow::hearQuestionForEnd},
    {WM_ENDSESSION, &MainWindow::hearEndOfSession},
    {WM_NCDESTROY, &MainWindow::forgetWindow},
    {WM_ACTIVATE, &MainWindow::hearActivation},
    {WM_SETFOCUS, &MainWindow::passFocusOn},
    {WM_PAINT, &MainWindow::paint},
    {WM_ERASEBKGND, &MainWindow::eraseGround},
    {WM_CTLCOLORSTATIC, &MainWindow::chooseGround},
    {WM_CLOSE, &MainWindow::close},
    {WM_GETMINMAXINFO, &MainWindow::answerSizeLimits},
    {WM_WINDOWPOSCHANGED, &MainWindow::hearPlace},
    {WM_NCHITTEST, &MainWindow::hitTest},
    {WM_SYSKEYDOWN, &MainWindow::hearSystemKey},
    {WM_SYSKEYUP, &MainWindow::hearSystemKey},
    {WM_SYSCOMMAND, &MainWindow::hearSystemCommand},
    {WM_COMMAND, &MainWindow::hearCommand},
};

/// What the buttons of the caption strip do, by the letter that their labels begin with.
struct MainWindow::CaptionRow {
    char letter;
    void (MainWindow::*act)(const Component&);
};

const MainWindow::CaptionRow MainWindow::captionRows[] = {
    {'O', &MainWindow::openMainMenu},  {'B', &MainWindow::openButtonsMenu}, {'?', &MainWindow::openHelpMenu},
    {'N', &MainWindow::minimize},      {'M', &MainWindow::maximize},        {'R', &MainWindow::restore},
    {'C', &MainWindow::closeByButton},
};

MainWindow::MainWindow(Settings& settings, UserDialogs dialogs) : settings_(settings), dialogs_(std::move(dialogs)) {
    Procedure::registerClass(wideProgramTitle);
    constexpr int systemsChoice = CW_USEDEFAULT;
    Rectangle place{systemsChoice, systemsChoice, systemsChoice, systemsChoice};
    if (const auto stored = settings_.windowRect()) {
        place = {stored->left, stored->top, stored->right - stored->left, stored->bottom - stored->top};
    }
    const HWND window =
        CreateWindowExW(windowStyle.extendedStyle, wideProgramTitle, wideProgramTitle, windowStyle.style, place.left,
                        place.top, place.width, place.height, nullptr, nullptr, GetModuleHandleW(nullptr), this);
    if (window == nullptr) {
        UnregisterClassW(wideProgramTitle, GetModuleHandleW(nullptr));
        rethrowKeptException();
        raise(ErrorCode::InternalFault);
    }
    // A hundred buttons are shown at once, when they have their places, rather than one by one.
    SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW | SWP_DEFERERASE);
}

MainWindow::~MainWindow() {
    // The last messages still need the handle; the final one gives it up.
    if (window_) {
        destroyWindow(handle());
    }
    UnregisterClassW(wideProgramTitle, GetModuleHandleW(nullptr));
}

std::optional<MessageAnswer> MainWindow::hear(const Message& message) {
    for (const MessageRow& row : messageRows) {
        if (row.code == message.code) {
            return (this->*row.hear)(message);
        }
    }
    return std::nullopt;
}

// --- Beginning and end ----------------------------------------------------------------------------------------------

std::optional<MessageAnswer> MainWindow::hearCreation(const Message&) {
    setButtonSize(settings_.buttonSize().value_or(scaledToScreen(defaultButtonSize, screenDotsPerInch())));
    caption_ = std::make_unique<CaptionStrip>(handle());
    workArea_ =
        std::make_unique<WorkArea>(handle(), identifierOf(Command::WorkArea), identifierOf(Command::HelpContents),
                                   [this] { return settings_.format(settings_.selectedFormat()); });
    files_ = std::make_unique<FileCommands>(handle(), *workArea_, settings_, dialogs_);
    commands_ = std::make_unique<Commands>(CommandTargets{handle(), settings_, menu_, panels_, *workArea_, *files_,
                                                          [this] { layOutAndRefresh(); },
                                                          [this](WindowHandle dialog) { lastFocus_ = dialog; }});
    workArea_->giveFocus();
    menu_.showMarks([this](std::uint16_t identifier) { return isMarked(identifier, settings_); });
    for (const std::uint16_t identifier : settings_.selectedPanels()) {
        panels_.open(handle(), identifier);
    }
    moveWhereItCanBeReached();
    layOut();
    if (isChecked(identifierOf(Command::ReadDefaultAtStartup))) {
        // Behind the layout: the text is broken into lines once, at the width that it will have.
        files_->readDefaultAtStartup();
    }
    seedRandomFromClock();
    created_ = true;
    return 0;
}

std::optional<MessageAnswer> MainWindow::hearDestruction(const Message&) {
    // Whatever happens here, the program ends with its window.
    const AtEnd quit([] { PostQuitMessage(0); });
    shutDown();
    return 0;
}

std::optional<MessageAnswer> MainWindow::hearQuestionForEnd(const Message&) { return saveBeforeEnd() ? 1 : 0; }

std::optional<MessageAnswer> MainWindow::hearEndOfSession(const Message& message) {
    // The system ends the program after this, without another message.
    if (message.wordParameter != 0) {
        shutDown();
        settings_.saveAll();
    }
    savedBeforeEnd_ = false;
    return 0;
}

bool MainWindow::saveBeforeEnd() {
    savedBeforeEnd_ = !isChecked(identifierOf(Command::SaveDefaultAtExit)) || files_->saveDefaultAtExit();
    return savedBeforeEnd_;
}

void MainWindow::shutDown() {
    if (!created_) {
        return;  // what is stored is worth more than the half of a window
    }
    if (!savedBeforeEnd_) {
        saveBeforeEnd();  // nobody has asked before
    }
    settings_.setSelectedPanels(panels_.identifiers());
}

std::optional<MessageAnswer> MainWindow::forgetWindow(const Message&) {
    SetWindowLongPtrW(handle(), GWLP_USERDATA, 0);
    window_.release();
    return std::nullopt;
}

std::optional<MessageAnswer> MainWindow::close(const Message&) {
    if (saveBeforeEnd()) {
        destroyWindow(handle());
    }
    return 0;
}

// --- Focus and caption ----------------------------------------------------------------------------------------------

std::optional<MessageAnswer> MainWindow::hearActivation(const Message& message) {
    const bool active = LOWORD(message.wordParameter) != WA_INACTIVE;
    if (!active && IsChild(handle(), GetFocus()) != 0) {
        lastFocus_ = GetFocus();
    } else if (LOWORD(message.wordParameter) == WA_CLICKACTIVE) {
        // A dialog that is open beside the window gets the focus back, but not from one who clicks here.
        lastFocus_ = nullptr;
    }
    if (caption_ != nullptr) {
        caption_->showActive(active);
        const Rectangle place = layOutWindow(clientSize(handle()), parts()).title;
        const RECT strip{0, place.top, clientSize(handle()).width, place.top + place.height};
        RedrawWindow(handle(), &strip, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE | RDW_ALLCHILDREN);
    }
    return std::nullopt;
}

bool MainWindow::canHaveFocus(WindowHandle window) const {
    return commands_->isOpenDialog(window) || IsChild(handle(), window) != 0;
}

void MainWindow::giveFocusToPart() { SetFocus(canHaveFocus(lastFocus_) ? lastFocus_ : workArea_->handle()); }

std::optional<MessageAnswer> MainWindow::passFocusOn(const Message&) {
    giveFocusToPart();
    return 0;
}

std::optional<MessageAnswer> MainWindow::paint(const Message&) {
    const Painting painting(handle());
    caption_->paint(painting.context(), layOutWindow(clientSize(handle()), parts()).title);
    return 0;
}

std::optional<MessageAnswer> MainWindow::chooseGround(const Message& message) {
    const HWND panel = reinterpret_cast<HWND>(message.longParameter);
    const bool isCaption = panel == caption_->left().handle() || panel == caption_->right().handle();
    const Color ground = isCaption ? caption_->ground() : panelGround;
    SetDCBrushColor(reinterpret_cast<HDC>(message.wordParameter), colorReference(ground));
    return reinterpret_cast<MessageAnswer>(GetStockObject(DC_BRUSH));
}

std::optional<MessageAnswer> MainWindow::eraseGround(const Message& message) {
    // The ground of the panels goes on below the last of them.
    const HDC context = reinterpret_cast<HDC>(message.wordParameter);
    const Size client = clientSize(handle());
    const int strip = caption_ == nullptr ? 0 : caption_->left().preferredSize().height;
    const RECT column{0, strip, client.width, client.height};
    SetDCBrushColor(context, colorReference(panelGround));
    FillRect(context, &column, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    return 1;
}

std::optional<MessageAnswer> MainWindow::hitTest(const Message& message) {
    const LRESULT area = DefWindowProcW(handle(), message.code, message.wordParameter, message.longParameter);
    return area == HTCLIENT ? HTCAPTION : area;
}

// --- Place and layout -----------------------------------------------------------------------------------------------

WindowParts MainWindow::parts() const {
    WindowParts parts;
    parts.leftCaption = caption_->left().preferredSize();
    parts.rightCaption = caption_->right().preferredSize();
    parts.panels = panels_.preferredSizes();
    parts.panelsHidden = settings_.boolean(BooleanSetting::HideButtons);
    parts.smallestWorkArea = {smallestWorkAreaInButtons.width * buttonSize(),
                              smallestWorkAreaInButtons.height * buttonSize()};
    return parts;
}

Size MainWindow::smallestWindow() const {
    const Rectangle needed = windowAround(smallestClient(parts()), windowStyle);
    // More than the screen has would put a part of the window out of reach.
    const Rectangle most = maximizedPlace(handle());
    return {std::min(needed.width, most.width), std::min(needed.height, most.height)};
}

std::optional<MessageAnswer> MainWindow::answerSizeLimits(const Message& message) {
    MINMAXINFO& limits = *reinterpret_cast<MINMAXINFO*>(message.longParameter);
    const Rectangle most = maximizedPlace(handle());
    const Rectangle screen = screenOf(handle()).whole;
    limits.ptMaxPosition = {most.left - screen.left, most.top - screen.top};
    limits.ptMaxSize = {most.width, most.height};
    limits.ptMaxTrackSize = limits.ptMaxSize;
    if (caption_ != nullptr) {
        const Size least = smallestWindow();
        limits.ptMinTrackSize = {least.width, least.height};
    }
    return 0;
}

void MainWindow::moveWhereItCanBeReached() {
    const Rectangle place = windowRectangle(handle());
    // A stored place counts as it is: the layout enlarges it where it must. The system's choice may have no size.
    const Size least = settings_.windowRect() ? Size{} : smallestWindow();
    const Rectangle reachable = reachablePlace(place, least, usableAreasAround(handle()));
    if (reachable != place) {
        MoveWindow(handle(), reachable.left, reachable.top, reachable.width, reachable.height, FALSE);
    }
}

std::optional<MessageAnswer> MainWindow::hearPlace(const Message&) {
    if (!created_) {
        return 0;
    }
    if (IsIconic(handle()) == 0) {
        caption_->showMaximized(IsZoomed(handle()) != 0);
        layOut();
        InvalidateRect(handle(), nullptr, FALSE);
        if (GetFocus() == handle()) {
            giveFocusToPart();  // what is minimized could not pass it on
        }
    }
    // Also while minimized or maximized: the next start is to find the last rectangle that the system reported.
    const RECT edges = edgesOf(windowRectangle(handle()));
    settings_.setWindowRect({edges.left, edges.top, edges.right, edges.bottom});
    return 0;
}

void MainWindow::layOut() {
    const Rectangle window = windowRectangle(handle());
    const Size least = smallestWindow();
    const bool sizable = IsZoomed(handle()) == 0 && IsIconic(handle()) == 0;
    if (sizable && !enlarging_ && (window.width < least.width || window.height < least.height)) {
        enlarging_ = true;
        SetWindowPos(handle(), nullptr, 0, 0, std::max(window.width, least.width),
                     std::max(window.height, least.height), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        enlarging_ = false;
    }
    const WindowLayout layout = layOutWindow(clientSize(handle()), parts());
    place(caption_->left(), layout.leftCaption);
    place(caption_->right(), layout.rightCaption);
    panels_.layOut(layout.panels, settings_.boolean(BooleanSetting::HideButtons));
    workArea_->moveTo(layout.workArea);
}

void MainWindow::layOutAndRefresh() {
    layOut();
    RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE | RDW_ALLCHILDREN);
}

// --- Menu -----------------------------------------------------------------------------------------------------------

void MainWindow::openMenuAtCaption() {
    const Rectangle panel = windowRectangle(caption_->left().handle());
    menu_.open(handle(), {panel.left + buttonSize() / 2, panel.top + buttonSize() / 2});
}

std::optional<MessageAnswer> MainWindow::hearSystemKey(const Message& message) {
    if (message.wordParameter != VK_MENU && (message.wordParameter != VK_F10 || message.code == WM_SYSKEYUP)) {
        return std::nullopt;
    }
    // A held key repeats itself, and with Shift or Control the key belongs to the keyboard's layout.
    const bool repeated = message.code == WM_SYSKEYDOWN && (HIWORD(message.longParameter) & KF_REPEAT) != 0;
    if (!repeated && GetKeyState(VK_SHIFT) >= 0 && GetKeyState(VK_CONTROL) >= 0) {
        openMenuAtCaption();
    }
    return 0;
}

std::optional<MessageAnswer> MainWindow::hearSystemCommand(const Message& message) {
    constexpr WPARAM innerBits = 0xF;  // the system's own use of the low bits
    // The system would open the window's menu at the end of a key press that has opened ours.
    const bool menuKey = (message.wordParameter & ~innerBits) == SC_KEYMENU && message.longParameter == 0;
    return menuKey ? std::optional<MessageAnswer>(0) : std::nullopt;
}

std::optional<MessageAnswer> MainWindow::hearCommand(const Message& message) {
    const HWND control = reinterpret_cast<HWND>(message.longParameter);
    const auto notice = static_cast<ButtonNotice>(HIWORD(message.wordParameter));
    if (control == nullptr) {
        commands_->run(LOWORD(message.wordParameter));
    } else if (notice == ButtonNotice::Pressed || notice == ButtonNotice::Clicked) {
        if (const Component* const button = Component::of(control)) {
            hearButton(*button);
        }
    }
    return 0;
}

// --- Buttons --------------------------------------------------------------------------------------------------------

void MainWindow::hearButton(const Component& button) {
    const ButtonPanel* const panel = ButtonPanel::panelOf(button);
    if (panel == nullptr) {
        return;
    }
    if (panel == &caption_->left() || panel == &caption_->right()) {
        pressCaptionButton(button);
    } else {
        pressButton(*workArea_, *panel, button, settings_.angleOption());
    }
}

void MainWindow::pressCaptionButton(const Component& button) {
    for (const CaptionRow& row : captionRows) {
        if (button.label().front() == row.letter) {
            (this->*row.act)(button);
            return;
        }
    }
}

void MainWindow::minimize(const Component&) { ShowWindow(handle(), SW_MINIMIZE); }

void MainWindow::maximize(const Component&) { ShowWindow(handle(), SW_MAXIMIZE); }

void MainWindow::restore(const Component&) { ShowWindow(handle(), SW_RESTORE); }

void MainWindow::closeByButton(const Component&) { commands_->run(identifierOf(Command::Exit)); }

void MainWindow::openMainMenu(const Component& button) { menu_.open(handle(), menuCorner(button)); }

void MainWindow::openButtonsMenu(const Component& button) {
    menu_.openSubmenu(buttonsSubmenu, handle(), menuCorner(button));
}

void MainWindow::openHelpMenu(const Component& button) { menu_.openSubmenu(helpSubmenu, handle(), menuCorner(button)); }

}  // namespace calquo
