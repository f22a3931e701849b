// The program's top-level window: a borderless window with a caption of its own, a column of button panels and the
// work area.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "shell/always_on_top.h"
#include "shell/caption_strip.h"
#include "shell/commands.h"
#include "shell/file_commands.h"
#include "shell/main_menu.h"
#include "shell/open_panels.h"
#include "shell/settings.h"
#include "shell/user_dialogs.h"
#include "shell/window_layout.h"
#include "shell/work_area_tips.h"
#include "widgets/hint_line.h"
#include "widgets/window.h"
#include "workarea/recovery.h"
#include "workarea/work_area.h"

namespace calquo {

/// The files that a window begins with.
struct StartFiles {
    std::wstring sheet = {};           ///< Is read instead of the default file; none when empty.
    std::wstring recoveryFolder = {};  ///< Where the work area is kept; nowhere when empty.
};

class MainWindow : public Window {
public:
    /// Registers the window's class, as the constructor does where nobody has before. Raises InternalFault when the
    /// system refuses.
    static void registerWindowClass();

    /// Creates the window where `settings` say it was, with the panels that were open. What the user changes is set
    /// there; `settings` must outlive the window. The user is asked by `dialogs`. Raises InternalFault when the system
    /// refuses.
    explicit MainWindow(Settings& settings, UserDialogs dialogs = systemDialogs(), StartFiles files = {});
    ~MainWindow() override;

    /// Whether a menu entry carries its mark.
    bool isChecked(std::uint16_t identifier) const { return menu_.isChecked(identifier); }

    std::optional<Color> backgroundOf(WindowHandle child) const override;

protected:
    void onCreate() override;
    void onDestroy() override;
    bool onClose() override;
    bool maySessionEnd(bool critical) override;
    void onSessionEnd(bool ends) override;

    bool onPlacing(Rectangle& rectangle) override;
    bool onMoved() override;
    bool onScaleChanged(int dotsPerInch, const Rectangle& suggested) override;
    std::optional<SizeLimits> sizeLimits() const override;
    HitArea onHitTest(HitArea byClass) const override;

    void onActivation(Activation activation) override;
    WindowHandle focusTarget() const override;

    bool onKey(const KeyEvent& event) override;
    bool onWheel(const WheelEvent& turn) override { return panels_.turnWheel(turn); }
    void onPressInside() override;
    bool onMenuKey() override { return true; }  // ours has opened already
    bool onSystemMenu(std::uint16_t command) override { return runAlwaysOnTop(handle(), command); }
    bool onTimer(std::uintptr_t timer) override;
    bool onCommand(const Notification& notification) override;
    bool onFilesDropped(std::uintptr_t drop) override;

    bool onPaint() override;
    bool onPaintBackground(DrawingContext context) override;
    void onSystemColors() override;

private:
    /// The dialogs, before which the work area is kept.
    UserDialogs keepingDialogs(UserDialogs dialogs);
    void tell(const std::wstring& hint);
    /// Shows what an earlier run has left to tell, or how to begin.
    void tellAboutLastRun();
    /// Shows what there is to tell about an evaluated line.
    void tellAbout(std::string_view line, const Answer* answer);
    void hideHint();

    bool saveBeforeEnd(bool mayAsk);
    void shutDown();

    void runCaptionCommand(CaptionCommand command, WindowHandle button);

    bool canHaveFocus(WindowHandle window) const;
    WindowLayout layout() const;
    WindowParts parts() const;
    /// The window around a client area of a size, from the corner of that.
    static Rectangle windowAroundClient(Size client);
    Size smallestWindow() const;
    void moveWhereItCanBeReached();
    void layOut();
    void layOutAndRefresh();

    Settings& settings_;
    UserDialogs dialogs_;
    StartFiles startFiles_;
    MainMenu menu_;
    std::unique_ptr<CaptionStrip> caption_;
    std::unique_ptr<WorkArea> workArea_;
    std::unique_ptr<WorkAreaTips> tips_;
    std::unique_ptr<FileCommands> files_;
    std::unique_ptr<Recovery> recovery_;
    std::unique_ptr<HintLine> hint_;  ///< Made with the first hint.
    OpenPanels panels_;
    std::unique_ptr<Commands> commands_;
    WindowHandle lastFocus_ = nullptr;
    bool created_ = false;
    bool savedBeforeEnd_ = false;  ///< Or left unsaved, as the user wants it.
    WindowGrowth growth_;
    bool isSizing_ = false;
};

}  // namespace calquo
