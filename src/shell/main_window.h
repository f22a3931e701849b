// The program's top-level window: a borderless window with a caption of its own, a column of button panels and the
// work area.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "shell/caption_strip.h"
#include "shell/commands.h"
#include "shell/file_commands.h"
#include "shell/main_menu.h"
#include "shell/open_panels.h"
#include "shell/settings.h"
#include "shell/user_dialogs.h"
#include "shell/window_layout.h"
#include "widgets/component.h"
#include "workarea/work_area.h"

namespace calquo {

class MainWindow {
public:
    /// Creates the window where `settings` say it was, with the panels that were open. What the user changes is set
    /// there; `settings` must outlive the window. The user is asked by `dialogs`. Raises InternalFault when the system
    /// refuses.
    explicit MainWindow(Settings& settings, UserDialogs dialogs = systemDialogs());
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow();

    WindowHandle handle() const { return window_.get(); }

    /// Whether a menu entry carries its mark.
    bool isChecked(std::uint16_t identifier) const { return menu_.isChecked(identifier); }

private:
    struct Procedure;  // the window procedure, whose signature needs the system's types
    struct MessageRow;
    static const MessageRow messageRows[];
    struct CaptionRow;
    static const CaptionRow captionRows[];

    std::optional<MessageAnswer> hear(const Message& message);

    std::optional<MessageAnswer> hearCreation(const Message& message);
    std::optional<MessageAnswer> hearDestruction(const Message& message);
    std::optional<MessageAnswer> hearQuestionForEnd(const Message& message);
    std::optional<MessageAnswer> hearEndOfSession(const Message& message);
    std::optional<MessageAnswer> forgetWindow(const Message& message);
    std::optional<MessageAnswer> hearActivation(const Message& message);
    std::optional<MessageAnswer> passFocusOn(const Message& message);
    std::optional<MessageAnswer> paint(const Message& message);
    std::optional<MessageAnswer> eraseGround(const Message& message);
    std::optional<MessageAnswer> chooseGround(const Message& message);
    std::optional<MessageAnswer> close(const Message& message);
    std::optional<MessageAnswer> answerSizeLimits(const Message& message);
    std::optional<MessageAnswer> hearPlace(const Message& message);
    std::optional<MessageAnswer> hitTest(const Message& message);
    std::optional<MessageAnswer> hearSystemKey(const Message& message);
    std::optional<MessageAnswer> hearSystemCommand(const Message& message);
    std::optional<MessageAnswer> hearCommand(const Message& message);

    bool saveBeforeEnd();
    void shutDown();

    void openMenuAtCaption();

    void hearButton(const Component& button);
    void pressCaptionButton(const Component& button);
    void minimize(const Component& button);
    void maximize(const Component& button);
    void restore(const Component& button);
    void closeByButton(const Component& button);
    void openMainMenu(const Component& button);
    void openButtonsMenu(const Component& button);
    void openHelpMenu(const Component& button);

    bool canHaveFocus(WindowHandle window) const;
    void giveFocusToPart();
    WindowParts parts() const;
    Size smallestWindow() const;
    void moveWhereItCanBeReached();
    void layOut();
    void layOutAndRefresh();

    Settings& settings_;
    UserDialogs dialogs_;
    WindowOwner window_;
    MainMenu menu_;
    std::unique_ptr<CaptionStrip> caption_;
    std::unique_ptr<WorkArea> workArea_;
    std::unique_ptr<FileCommands> files_;
    OpenPanels panels_;
    std::unique_ptr<Commands> commands_;
    WindowHandle lastFocus_ = nullptr;
    bool created_ = false;
    bool savedBeforeEnd_ = false;  ///< Or left unsaved, as the user wants it.
    bool enlarging_ = false;
};

}  // namespace calquo
