// The commands that read and save the work area: the default file, also at the program's start and end, and files that
// the user chooses.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
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
    /// the user wants to stay. Where nobody may be asked, a failure is left alone. `tellKept` is given the name under
    /// which a foreign file is kept that had the default file's.
    bool saveDefaultAtExit(bool mayAsk, const std::function<void(const std::wstring&)>& tellKept);

    /// Whether a file that was read or saved holds the text.
    bool isInFile() { return file_.isInFile(); }

    /// Reads the file that the program was started with; that there is none is a failure. Nothing is left to undo.
    void readAtStartup(const std::wstring& file);

    void readDefault();
    void saveDefault();

    /// Saves to the file that was read or saved last, and lets the user choose one when there is none.
    void saveAgain();
    /// What stands on the work area now is of no file: saveAgain lets the user choose one.
    void forgetFile() {
        lastFile_.clear();
        reading_.reset();
    }
    /// Reads the file that a message of the system's tells of by its word parameter.
    void readDropped(std::uintptr_t drop);

    /// Lets the user choose a file, and does with it what the command says: makes it the default file, reads it, or
    /// saves to it.
    void actOnChosenFile(Command command);

private:
    /// A text, and the file that it was read from or saved to last.
    struct TextOfFile {
        std::size_t textHash;
        std::wstring file;
    };
    /// What the last reading replaced, and by what.
    struct Reading {
        TextOfFile before, after;
    };

    std::wstring defaultFile() const;
    /// None where there is no memory to look at the text.
    std::optional<TextOfFile> present() const;
    void read(const std::wstring& file);
    void save(const std::wstring& file);
    std::wstring write(const std::wstring& file, bool mayAsk);

    WindowHandle owner_;
    WorkArea& workArea_;
    Settings& settings_;
    const UserDialogs& dialogs_;
    WorkAreaFile file_;
    std::wstring lastFile_;  ///< Was read or saved last; empty before that.
    /// When it is undone, the text is again of the file that it was of, and when it is done again, of the other.
    std::optional<Reading> reading_;
};

}  // namespace calquo
