// What the program asks its user in windows of the system's own: message boxes, and the choice of a file. They are
// functions, so that tests can answer in the user's place.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "widgets/handles.h"

namespace calquo {

enum class BoxKind : std::uint8_t {
    Failure,        ///< The stop icon and Ok.
    RetryOrCancel,  ///< The stop icon.
    OkOrCancel,     ///< The warning icon; the Enter key cancels.
};
enum class BoxAnswer : std::uint8_t { Ok, Retry, Cancel };

struct BoxText {
    BoxKind kind = BoxKind::Failure;
    std::wstring caption;
    std::wstring text;
};

enum class FileDialog : std::uint8_t { Open, Save };

struct FileRequest {
    FileDialog dialog = FileDialog::Open;
    std::wstring title;
    std::wstring name;  ///< Stands in the dialog at first.
};

struct FileChoice {
    std::wstring name;            ///< With its whole path; empty when the user chose none.
    std::uint32_t errorCode = 0;  ///< Why the dialog failed, by the system's extended codes; 0 when it did not.
};

struct UserDialogs {
    std::function<BoxAnswer(WindowHandle owner, const BoxText&)> showBox;
    std::function<FileChoice(WindowHandle owner, const FileRequest&)> chooseFile;
    /// Tells the user something that needs no answer.
    std::function<void(const std::wstring& text)> showHint = [](const std::wstring&) {};
};

/// The system's dialogs. The current folder is the same after them as before.
UserDialogs systemDialogs();

}  // namespace calquo
