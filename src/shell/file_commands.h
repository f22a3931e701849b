// The commands that read and save the work area: the default file, also at the program's start and end, and files that
// the user chooses.
#pragma once

#include <string>

#include "shell/command_ids.h"
#include "shell/settings.h"
#include "shell/user_dialogs.h"
#include "workarea/work_area_file.h"

namespace calquo {

class FileCommands {
public:
    /// `owner` is the window that dialogs stand in front of; the references must outlive this.
    FileCommands(WindowHandle owner, WorkArea& workArea, Settings& settings, const UserDialogs& dialogs);

    /// Reads the default file into the new work area; that there is none is no failure. Nothing is left to undo.
    void readDefaultAtStartup();

    /// Saves the work area to the default file, unless it is empty and nobody has touched it; false when that fails and
    /// the user wants to stay.
    bool saveDefaultAtExit();

    void readDefault();
    void saveDefault();

    /// Lets the user choose a file, and does with it what the command says: makes it the default file, reads it, or
    /// saves to it.
    void actOnChosenFile(Command command);

private:
    std::wstring defaultFile() const;
    void read(const std::wstring& file);
    void save(const std::wstring& file);

    WindowHandle owner_;
    WorkArea& workArea_;
    Settings& settings_;
    const UserDialogs& dialogs_;
    WorkAreaFile file_;
};

}  // namespace calquo
