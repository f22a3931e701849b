// The words of the file commands: the titles of their dialogs, and what their message boxes say.
#pragma once

#include <cstdint>
#include <string>

#include "shell/command_ids.h"
#include "shell/user_dialogs.h"
#include "workarea/file_fault.h"

namespace calquo {

/// The request of a command that lets the user choose a file; `defaultFile` stands in the dialog at first.
FileRequest fileRequestOf(Command command, const std::wstring& defaultFile);

/// The dialog itself failed, with one of the system's extended error codes.
BoxText dialogFailedBox(std::uint32_t errorCode);

BoxText readFailedBox(const std::wstring& file, const FileFault& fault);
BoxText saveFailedBox(const std::wstring& file, const FileFault& fault);
/// At the program's end: Cancel keeps it open.
BoxText saveFailedAtExitBox(const std::wstring& file, const FileFault& fault);
/// Before a save of what could not be read from the file again: Ok saves it all the same.
BoxText cannotBeReadAgainBox(const std::wstring& file, const FileFault& fault);

/// The last run has left text that is in no file, and what brings it back.
inline constexpr wchar_t unsavedCopyHint[] = L"Your last sheet was not saved. Ctrl+Shift+T brings it back.";
/// There is no earlier text to bring back.
inline constexpr wchar_t noCopyHint[] = L"No earlier sheet is kept.";
/// A save has left a foreign file under another name.
std::wstring keptFileHint(const std::wstring& kept);
/// The same of the save at the end of an earlier run.
std::wstring keptAtExitHint(const std::wstring& kept);

}  // namespace calquo
