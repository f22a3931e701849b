// The main window's class, its beginning and end, and its messages; its layout is in main_window_layout_windows.cpp.
#include "shell/main_window.h"

#include "hints/hints.h"
#include "numeric/random.h"
#include "shell/command_ids.h"
#include "shell/context_menu.h"
#include "shell/file_messages.h"
#include "shell/menu_marks.h"
#include "shell/menu_tree.h"
#include "shell/sheet_commands.h"
#include "values/program.h"
#include "widgets/painting.h"
#include "widgets/screens.h"
#include "widgets/system_colors.h"
#include "widgets/toolkit.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"
#include "workarea/recovery_folder.h"

namespace calquo {
namespace {

constexpr WindowStyle windowStyle{
    WS_POPUP | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX | WS_CLIPCHILDREN, WS_EX_APPWINDOW};

/// The pop-up menus of the caption's buttons begin this far to the left of and above the button, in pixels.
constexpr int menuOffset = 8;

/// Goes off when everything else has been done, the window painted and what was typed written.
constexpr UINT_PTR buttonsTimer = 1;

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

}  // namespace

void MainWindow::registerWindowClass() {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    WNDCLASSEXW description{};
    description.hIcon = LoadIconW(program, MAKEINTRESOURCEW(programIcon));
    description.hIconSm =
        static_cast<HICON>(LoadImageW(program, MAKEINTRESOURCEW(programIcon), IMAGE_ICON, GetSystemMetrics(SM_CXSMICON),
                                      GetSystemMetrics(SM_CYSMICON), LR_SHARED));
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_SCROLLBAR + 1);
    description.lpszClassName = wideProgramTitle;
    registerClass(description);
}

MainWindow::MainWindow(Settings& settings, UserDialogs dialogs, StartFiles files)
    : settings_(settings),
      dialogs_(keepingDialogs(std::move(dialogs))),
      startFiles_(std::move(files)),
      panels_([this](const PanelEntry& panel, const PanelButton& button) {
          pressButton(*workArea_, panel, button, settings_.angleOption());
          tips_->lineMayHaveChanged();
      }) {
    registerWindowClass();

    constexpr int systemsChoice = CW_USEDEFAULT;
    Rectangle rectangle{systemsChoice, systemsChoice, systemsChoice, systemsChoice};
    if (const auto stored = settings_.windowRect()) {
        rectangle = {stored->left, stored->top, stored->right - stored->left, stored->bottom - stored->top};
    }
    create({wideProgramTitle, wideProgramTitle, windowStyle, rectangle});
    // A hundred buttons are shown at once, when they have their rectangles, rather than one by one.
    SetWindowPos(handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW | SWP_DEFERERASE);
}

MainWindow::~MainWindow() { destroy(); }

Rectangle MainWindow::windowAroundClient(Size client) { return windowAround(client, windowStyle, scale()); }

// --- Beginning and end ----------------------------------------------------------------------------------------------

void MainWindow::onCreate() {
    setScale(dotsPerInchOf(handle()));
    setButtonSize(settings_.buttonSize().value_or(defaultButtonSize));
    takeSystemColors();
    caption_ = std::make_unique<CaptionStrip>(handle());
    workArea_ = std::make_unique<WorkArea>(
        handle(), identifierOf(Command::WorkArea), windowKeys(),
        [this] { return settings_.format(settings_.selectedFormat()); },
        WorkAreaListener{
            [this] {
                hideHint();
                recovery_->keepWaiting();
            },
            [this](std::string_view line, const Answer* answer) {
                recovery_->keep();
                tellAbout(line, answer);
            },
            [this](Point corner) { showContextMenu(handle(), corner, contextMenu(commands_->sheetState())); },
            [this](const std::wstring& reason) { tell(reason); },
            [this](const KeyEvent& event) { return tips_->takesKey(event); },
            [this](std::string_view text) { tips_->textComes(text); },
            [this](const MouseEvent& event) { tips_->mouse(event); }});
    tips_ = std::make_unique<WorkAreaTips>(handle(), *workArea_,
                                           [this](const std::wstring& hint) { dialogs_.showHint(hint); });
    files_ = std::make_unique<FileCommands>(handle(), *workArea_, settings_, dialogs_);
    recovery_ = std::make_unique<Recovery>(
        *workArea_, [this] { return files_->isInFile(); }, startFiles_.recoveryFolder);
    commands_ = std::make_unique<Commands>(CommandTargets{handle(), settings_, menu_, panels_, *workArea_, *files_,
                                                          *recovery_, *tips_, dialogs_, [this] { layOutAndRefresh(); },
                                                          [this](WindowHandle dialog) { lastFocus_ = dialog; }});
    addAlwaysOnTop(handle());
    workArea_->giveFocus();
    menu_.showMarks([this](std::uint16_t identifier) { return isCheckedUnder(settings_, identifier); });
    for (const std::uint16_t identifier : settings_.selectedPanels()) {
        panels_.open(handle(), identifier, ButtonPanel::Buttons::Later);
    }
    if (!settings_.selectedPanels().empty()) {
        SetTimer(handle(), buttonsTimer, USER_TIMER_MINIMUM, nullptr);
    }
    moveWhereItCanBeReached();
    layOut();
    // After the layout: the text is broken into lines once, at the width that it will have.
    if (!startFiles_.sheet.empty()) {
        files_->readAtStartup(startFiles_.sheet);
    } else if (isChecked(identifierOf(Command::ReadDefaultAtStartup))) {
        files_->readDefaultAtStartup();
    }
    tellAboutLastRun();
    seedRandomFromClock();
    created_ = true;
}

void MainWindow::onDestroy() {
    // Whatever happens here, the program ends with its window.
    const AtEnd quit([] { PostQuitMessage(0); });
    shutDown();
}

void MainWindow::onSessionEnd(bool ends) {
    // The system ends the program after this, without another message.
    if (ends) {
        shutDown();
        settings_.saveAll();
    }
    savedBeforeEnd_ = false;
}

bool MainWindow::maySessionEnd(bool critical) {
    // The system may not wait for the end.
    recovery_->keepNow();
    return saveBeforeEnd(!critical);
}

bool MainWindow::saveBeforeEnd(bool mayAsk) {
    const auto tellKept = [this](const std::wstring& kept) { leaveNameToTell(startFiles_.recoveryFolder, kept); };
    savedBeforeEnd_ =
        !isChecked(identifierOf(Command::SaveDefaultAtExit)) || files_->saveDefaultAtExit(mayAsk, tellKept);
    return savedBeforeEnd_;
}

void MainWindow::shutDown() {
    if (!created_) {
        return;  // what is stored is worth more than the half of a window
    }
    if (!savedBeforeEnd_) {
        saveBeforeEnd(true);  // nobody has asked before
    }
    recovery_->keepAtEnd();
}

bool MainWindow::onClose() {
    if (saveBeforeEnd(true)) {
        destroy();
    }
    return true;
}

// --- Focus and caption ----------------------------------------------------------------------------------------------

void MainWindow::onActivation(Activation activation) {
    const bool active = activation != Activation::Inactive;
    if (!active && recovery_ != nullptr) {
        recovery_->keep();
    }
    if (!active && IsChild(handle(), GetFocus()) != 0) {
        lastFocus_ = GetFocus();
    } else if (activation == Activation::ByClick) {
        // A dialog that is open beside the window gets the focus back, but not from one who clicks here.
        lastFocus_ = nullptr;
    }
    if (caption_ != nullptr) {
        caption_->showActive(active);
        const Rectangle title = layout().title;
        const RECT strip{0, title.top, clientSize(handle()).width, title.top + title.height};
        RedrawWindow(handle(), &strip, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE | RDW_ALLCHILDREN);
    }
}

bool MainWindow::canHaveFocus(WindowHandle window) const {
    return commands_->isOpenDialog(window) || (IsChild(handle(), window) != 0 && IsWindowVisible(window) != 0);
}

WindowHandle MainWindow::focusTarget() const { return canHaveFocus(lastFocus_) ? lastFocus_ : workArea_->handle(); }

bool MainWindow::onPaint() {
    const Painting painting(handle());
    caption_->paint(painting.context(), layout().title);
    return true;
}

// --- Hints ----------------------------------------------------------------------------------------------------------

UserDialogs MainWindow::keepingDialogs(UserDialogs dialogs) {
    const auto keep = [this] {
        if (recovery_ != nullptr) {
            recovery_->keep();
        }
    };
    return {[keep, show = std::move(dialogs.showBox)](WindowHandle owner, const BoxText& box) {
                keep();
                return show(owner, box);
            },
            [keep, choose = std::move(dialogs.chooseFile)](WindowHandle owner, const FileRequest& request) {
                keep();
                return choose(owner, request);
            },
            [this, show = std::move(dialogs.showHint)](const std::wstring& hint) {
                tell(hint);
                show(hint);
            }};
}

void MainWindow::tellAboutLastRun() {
    std::wstring hint = recovery_->hasUnsavedCopy() ? unsavedCopyHint : L"";
    if (const std::wstring kept = takeNameToTell(startFiles_.recoveryFolder); !kept.empty()) {
        hint += (hint.empty() ? L"" : L"\n") + keptAtExitHint(kept);
    }
    if (!hint.empty()) {
        dialogs_.showHint(hint);
    } else if (!settings_.windowRect()) {
        tell(wideText(firstStartHint));
    }
}

void MainWindow::tell(const std::wstring& hint) {
    if (hint_ == nullptr) {
        hint_ = std::make_unique<HintLine>(handle());
    }
    hint_->tell(hint, layout().workArea);
}

void MainWindow::tellAbout(std::string_view line, const Answer* answer) {
    const HintSettings inForce{settings_.format(settings_.selectedFormat()), angleUnitOf(settings_.angleOption())};
    if (const std::string hint = hintFor(line, answer, inForce); !hint.empty()) {
        tell(wideText(hint));
    }
}

void MainWindow::onPressInside() {
    hideHint();
    if (tips_ != nullptr) {
        tips_->pressed();
    }
}

void MainWindow::hideHint() {
    if (hint_ != nullptr) {
        hint_->hide();
    }
}

std::optional<Color> MainWindow::backgroundOf(WindowHandle child) const {
    const bool isCaption = child == caption_->left().handle() || child == caption_->right().handle();
    return isCaption ? caption_->background() : palette().panelGround;
}

bool MainWindow::onPaintBackground(DrawingContext context) {
    // Whatever no part covers yet looks as the panels' column does.
    const Size client = clientSize(handle());
    const int strip = caption_ == nullptr ? 0 : caption_->left().preferredSize().height;
    const RECT column{0, strip, client.width, client.height};
    SetDCBrushColor(context, colorReference(palette().panelGround));
    FillRect(context, &column, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    return true;
}

void MainWindow::onSystemColors() {
    if (created_ && takeSystemColors()) {
        caption_->takeColors();
        workArea_->takeColors();
        RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    }
}

HitArea MainWindow::onHitTest(HitArea byClass) const { return byClass == HitArea::Client ? HitArea::Caption : byClass; }

bool MainWindow::onTimer(std::uintptr_t timer) {
    // A hundred windows take longer than all else in a start, and nobody sees them but the mouse.
    KillTimer(handle(), timer);
    bool isMore = true;
    while (isMore && HIWORD(GetQueueStatus(QS_ALLINPUT)) == 0) {
        isMore = panels_.makeButtons();
    }
    if (isMore) {
        SetTimer(handle(), timer, USER_TIMER_MINIMUM, nullptr);
    }
    return true;
}

// --- Menu and commands ----------------------------------------------------------------------------------------------

bool MainWindow::onKey(const KeyEvent& event) {
    const bool opensMenu = event.key == VK_MENU || (event.key == VK_F10 && !event.released);
    if (!event.system || !opensMenu) {
        return false;
    }
    // A held key repeats itself, and with Shift or Control the key belongs to the keyboard's layout.
    if (!event.repeated && !event.shift && !event.control) {
        const Rectangle panel = windowRectangle(caption_->left().handle());
        menu_.open(handle(), {panel.left + buttonSize() / 2, panel.top + buttonSize() / 2});
    }
    return true;
}

bool MainWindow::onFilesDropped(std::uintptr_t drop) {
    tips_->hide();
    recovery_->aroundReplacement([&] { files_->readDropped(drop); });
    return true;
}

bool MainWindow::onCommand(const Notification& notification) {
    if (notification.control == nullptr) {
        workArea_->endFreshness();
        const bool opensTip = notification.command == identifierOf(Command::ShowDetails) ||
                              notification.command == identifierOf(Command::CompleteName);
        if (!opensTip && tips_ != nullptr) {
            tips_->pressed();
        }
        commands_->run(notification.command);
    } else if (isPress(notification)) {
        runCaptionCommand(static_cast<CaptionCommand>(notification.command), notification.control);
    }
    return true;
}

void MainWindow::runCaptionCommand(CaptionCommand command, WindowHandle button) {
    const Rectangle face = windowRectangle(button);
    const Point corner{face.left - menuOffset, face.top - menuOffset};
    switch (command) {
        case CaptionCommand::MainMenu:
            return menu_.open(handle(), corner);
        case CaptionCommand::ButtonsMenu:
            return menu_.openSubmenu(buttonsSubmenu, handle(), corner);
        case CaptionCommand::HelpMenu:
            return menu_.openSubmenu(helpSubmenu, handle(), corner);
        case CaptionCommand::Minimize:
            ShowWindow(handle(), SW_MINIMIZE);
            return;
        case CaptionCommand::MaximizeOrRestore:
            ShowWindow(handle(), IsZoomed(handle()) != 0 ? SW_RESTORE : SW_MAXIMIZE);
            return;
        case CaptionCommand::Close:
            return commands_->run(identifierOf(Command::Exit));
    }
}

}  // namespace calquo
