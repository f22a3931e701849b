// The system's message box and its common file dialogs.
#include "shell/user_dialogs.h"

#include <algorithm>
#include <array>

#include "values/errors.h"
#include "widgets/handles.h"
#include "widgets/windows_api.h"

// Needs <windows.h> before it.
#include <commdlg.h>

namespace calquo {
namespace {

constexpr wchar_t filter[] =
    L"Rich Text Files\0*.rtf\0"
    L"Text Files\0*.txt\0"
    L"Both Rich and Plain Text Files\0*.rtf;*.txt\0"
    L"All Files\0*.*\0";
constexpr wchar_t defaultExtension[] = L"rtf";
constexpr std::size_t nameRoom = 260;  // characters, the end included

struct BoxRow {
    BoxKind kind;
    UINT type;
};
constexpr BoxRow boxRows[] = {
    {BoxKind::Failure, MB_OK | MB_ICONSTOP},
    {BoxKind::RetryOrCancel, MB_RETRYCANCEL | MB_ICONSTOP},
    {BoxKind::OkOrCancel, MB_OKCANCEL | MB_ICONWARNING | MB_DEFBUTTON2},
};

BoxAnswer answerOf(int button) {
    switch (button) {
        case IDOK:
            return BoxAnswer::Ok;
        case IDRETRY:
            return BoxAnswer::Retry;
        default:
            return BoxAnswer::Cancel;
    }
}

BoxAnswer showBox(WindowHandle owner, const BoxText& box) {
    const auto* const row = std::find_if(std::begin(boxRows), std::end(boxRows),
                                         [&](const BoxRow& candidate) { return candidate.kind == box.kind; });
    return answerOf(MessageBoxW(owner, box.text.c_str(), box.caption.c_str(), row->type));
}

/// The library of the file dialogs. It brings half a dozen others with it, so it is loaded when a dialog is first
/// wanted, and not at every start.
struct FileDialogLibrary {
    LibraryOwner library = loadSystemLibrary(L"comdlg32.dll");
    decltype(&GetOpenFileNameW) open = find<decltype(open)>("GetOpenFileNameW");
    decltype(&GetSaveFileNameW) save = find<decltype(save)>("GetSaveFileNameW");
    decltype(&CommDlgExtendedError) errorCode = find<decltype(errorCode)>("CommDlgExtendedError");

private:
    /// Raises InternalFault when the library or the function is missing.
    template <typename Function>
    Function find(const char* name) const {
        const FARPROC function = library ? GetProcAddress(library.get(), name) : nullptr;
        if (function == nullptr) {
            raise(ErrorCode::InternalFault);
        }
        return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(function));
    }
};

/// Goes back at its end to the folder that was the current one, since a file dialog may leave another.
class CurrentFolder {
public:
    CurrentFolder() : name_(GetCurrentDirectoryW(0, nullptr), L'\0') {
        name_.resize(GetCurrentDirectoryW(static_cast<DWORD>(name_.size()), name_.data()));
    }
    ~CurrentFolder() { SetCurrentDirectoryW(name_.c_str()); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
    std::wstring name_;
};

FileChoice chooseFile(WindowHandle owner, const FileRequest& request) {
    const CurrentFolder current;
    std::array<wchar_t, nameRoom> name{};
    std::copy_n(request.name.begin(), std::min(request.name.size(), nameRoom - 1), name.begin());
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filter;
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = name.data();
    dialog.nMaxFile = nameRoom;
    dialog.lpstrTitle = request.title.c_str();
    dialog.lpstrDefExt = defaultExtension;
    dialog.Flags = OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_NOREADONLYRETURN | OFN_LONGNAMES;
    static const FileDialogLibrary library;
    const BOOL chosen = request.dialog == FileDialog::Open ? library.open(&dialog) : library.save(&dialog);
    return chosen != 0 ? FileChoice{name.data(), 0} : FileChoice{{}, library.errorCode()};
}

}  // namespace

UserDialogs systemDialogs() { return {.showBox = showBox, .chooseFile = chooseFile}; }

}  // namespace calquo
