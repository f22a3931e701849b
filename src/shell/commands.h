// What the commands of the menu do, whoever gives them: the menu itself, a key or a button of the caption strip.
#pragma once

#include <cstdint>
#include <functional>

#include "dialogs/about.h"
#include "dialogs/format_dialog.h"
#include "shell/file_commands.h"
#include "shell/main_menu.h"
#include "shell/open_panels.h"
#include "shell/settings.h"
#include "shell/sheet_actions.h"
#include "shell/work_area_tips.h"
#include "workarea/recovery.h"
#include "workarea/work_area.h"

namespace calquo {

/// The parts of the program that commands act on.
struct CommandTargets {
    WindowHandle window;  ///< The main window.
    Settings& settings;
    MainMenu& menu;
    OpenPanels& panels;
    WorkArea& workArea;
    FileCommands& files;
    Recovery& recovery;
    WorkAreaTips& tips;
    const UserDialogs& dialogs;
    /// Lays the window out anew and shows it.
    std::function<void()> layOut;
    /// Takes a dialog that has come up, which is to have the focus whenever the window is to pass it on.
    std::function<void(WindowHandle)> keepFocusIn;
};

class Commands {
public:
    /// The targets must outlive the commands.
    explicit Commands(CommandTargets targets);

    /// Whether there is a command of this identifier.
    static bool knows(std::uint16_t identifier) { return rowOf(identifier) != nullptr; }
    /// Carries a command out; an identifier that is none does nothing.
    void run(std::uint16_t identifier);

    /// What stands on the sheet, for its context menu.
    SheetState sheetState() const { return sheet_.state(); }

    /// Whether a window is an open dialog of the commands.
    bool isOpenDialog(WindowHandle window) const;

private:
    struct Row;
    static const Row rows[];
    static const Row* rowOf(std::uint16_t identifier);

    void togglePanel(std::uint16_t identifier);
    void clearWorkArea(std::uint16_t identifier);
    void actOnSheet(std::uint16_t identifier);
    void bringBackWorkArea(std::uint16_t identifier);
    void readDefaultFile(std::uint16_t identifier);
    void saveDefaultFile(std::uint16_t identifier);
    void saveAgain(std::uint16_t identifier);
    void chooseFile(std::uint16_t identifier);
    void showDetails(std::uint16_t identifier);
    void completeName(std::uint16_t identifier);
    void toggleOption(std::uint16_t identifier);
    void toggleHiddenButtons(std::uint16_t identifier);
    void toggleAngle(std::uint16_t identifier);
    void selectFormat(std::uint16_t identifier);
    void modifyFormat(std::uint16_t identifier);
    void resetFormats(std::uint16_t identifier);
    void openHelp(std::uint16_t identifier);
    void openHelpOnName(std::uint16_t identifier);
    void showAbout(std::uint16_t identifier);
    void exit(std::uint16_t identifier);

    CommandTargets targets_;
    SheetActions sheet_;
    FormatDialog formatDialog_;
    About about_;
};

}  // namespace calquo
