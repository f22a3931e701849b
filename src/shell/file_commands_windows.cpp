// The file commands: they ask for a name, read or save, and tell what went wrong.
#include "shell/file_commands.h"

#include <new>

#include "shell/dropped_files.h"
#include "shell/file_messages.h"
#include "widgets/windows_api.h"
#include "workarea/disk.h"
#include "workarea/file_fault.h"

namespace calquo {
namespace {

/// Shows that the program is busy, while it lives.
class WaitCursor {
public:
    WaitCursor() : before_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    ~WaitCursor() { SetCursor(before_); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    HCURSOR before_;
};

}  // namespace

FileCommands::FileCommands(WindowHandle owner, WorkArea& workArea, Settings& settings, const UserDialogs& dialogs)
    : owner_(owner), workArea_(workArea), settings_(settings), dialogs_(dialogs), file_(workArea) {
    acceptFiles(owner_);
    acceptFiles(workArea_.handle());
}

std::wstring FileCommands::defaultFile() const { return fullFileName(settings_.text(TextSetting::DefaultFile)); }

void FileCommands::readDefaultAtStartup() {
    const std::wstring file = defaultFile();
    try {
        const WaitCursor busy;
        file_.read(file);
        lastFile_ = file;
    } catch (const FileFault& fault) {
        if (!isAbsence(fault.failure)) {
            dialogs_.showBox(owner_, readFailedBox(file, fault));
        }
    }
    workArea_.forgetSteps();
}

void FileCommands::readAtStartup(const std::wstring& file) {
    read(fullFileName(file));
    workArea_.forgetSteps();
}

bool FileCommands::saveDefaultAtExit(bool mayAsk, const std::function<void(const std::wstring&)>& tellKept) {
    if (workArea_.revision() == 0 && workArea_.isEmpty()) {
        return true;
    }
    const std::wstring file = defaultFile();
    for (;;) {
        try {
            const std::wstring kept = write(file, mayAsk);
            if (!kept.empty()) {
                tellKept(kept);
            }
            return true;
        } catch (const SaveCancelled&) {
            return false;
        } catch (const FileFault& fault) {
            if (!mayAsk) {
                return true;
            }
            if (dialogs_.showBox(owner_, saveFailedAtExitBox(file, fault)) != BoxAnswer::Retry) {
                return false;
            }
        }
    }
}

void FileCommands::readDefault() { read(defaultFile()); }

void FileCommands::saveDefault() { save(defaultFile()); }

void FileCommands::actOnChosenFile(Command command) {
    const FileChoice choice =
        dialogs_.chooseFile(owner_, fileRequestOf(command, settings_.text(TextSetting::DefaultFile)));
    if (choice.errorCode != 0) {
        dialogs_.showBox(owner_, dialogFailedBox(choice.errorCode));
    } else if (choice.name.empty()) {
        return;
    } else if (command == Command::ReadFromFile) {
        read(choice.name);
    } else if (command == Command::SaveAsFile) {
        save(choice.name);
    } else {
        settings_.setText(TextSetting::DefaultFile, choice.name);
    }
}

void FileCommands::read(const std::wstring& file) {
    try {
        const WaitCursor busy;
        const std::optional<TextOfFile> before = present();
        file_.read(file);
        lastFile_ = file;
        const std::optional<TextOfFile> after = present();
        reading_ = before && after ? std::optional<Reading>({*before, *after}) : std::nullopt;
    } catch (const FileFault& fault) {
        dialogs_.showBox(owner_, readFailedBox(file, fault));
    }
}

void FileCommands::save(const std::wstring& file) {
    try {
        const std::wstring kept = write(file, true);
        reading_.reset();
        lastFile_ = file;
        if (!kept.empty()) {
            dialogs_.showHint(keptFileHint(kept));
        }
    } catch (const SaveCancelled&) {
        // As the user wants it.
    } catch (const FileFault& fault) {
        dialogs_.showBox(owner_, saveFailedBox(file, fault));
    }
}

std::wstring FileCommands::write(const std::wstring& file, bool mayAsk) {
    const WaitCursor busy;
    return file_.write(file, [&](const FileFault& fault) {
        return !mayAsk || dialogs_.showBox(owner_, cannotBeReadAgainBox(file, fault)) == BoxAnswer::Ok;
    });
}

std::optional<FileCommands::TextOfFile> FileCommands::present() const {
    try {
        return TextOfFile{std::hash<std::wstring>{}(workArea_.characters()), lastFile_};
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

void FileCommands::saveAgain() {
    const std::optional<Reading> reading = reading_;
    if (const auto now = reading ? present() : std::nullopt) {
        for (const TextOfFile& side : {reading->after, reading->before}) {
            lastFile_ = now->textHash == side.textHash ? side.file : lastFile_;
        }
    }
    if (lastFile_.empty()) {
        actOnChosenFile(Command::SaveAsFile);
    } else {
        save(lastFile_);
        reading_ = reading;
    }
}

void FileCommands::readDropped(std::uintptr_t drop) {
    const std::wstring file = takeDroppedFile(drop);
    if (!file.empty()) {
        read(file);
    }
}

}  // namespace calquo
