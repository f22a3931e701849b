// The HTML Help control as the system has it.
#include "shell/help.h"

#include <array>

#include "widgets/windows_api.h"

namespace calquo {
namespace {

class SystemLibraries : public HelpLibraries {
public:
    std::optional<std::wstring> registeredPath() override {
        std::array<wchar_t, MAX_PATH> path{};
        DWORD size = sizeof path;
        const LSTATUS status =
            RegGetValueW(HKEY_CLASSES_ROOT, L"CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32", nullptr,
                         RRF_RT_REG_SZ, nullptr, path.data(), &size);
        return status == ERROR_SUCCESS ? std::optional<std::wstring>(path.data()) : std::nullopt;
    }

    ModuleHandle load(const std::wstring& path) override { return LoadLibraryW(path.c_str()); }

    EntryPoint entryPoint(ModuleHandle library, std::uint16_t ordinal) override {
        return reinterpret_cast<EntryPoint>(GetProcAddress(library, MAKEINTRESOURCEA(ordinal)));
    }
};

using AnsiHelp = HWND(WINAPI*)(HWND owner, const char* file, UINT command, DWORD_PTR data);
using WideHelp = HWND(WINAPI*)(HWND owner, const wchar_t* file, UINT command, DWORD_PTR data);

/// The text in the system's code page; nothing when a character has no place there.
std::optional<std::string> ansiText(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    BOOL lost = FALSE;
    std::string narrow(static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.c_str(), length,
                                                                    nullptr, 0, nullptr, nullptr)),
                       '\0');
    WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.c_str(), length, narrow.data(),
                        static_cast<int>(narrow.size()), nullptr, &lost);
    return lost == FALSE ? std::optional(narrow) : std::nullopt;
}

}  // namespace

WindowHandle Help::open(WindowHandle owner, const std::wstring& file, std::uint32_t command, std::uintptr_t data) {
    SystemLibraries libraries;
    if (const std::optional<std::string> narrow = ansiText(file)) {
        const auto show = reinterpret_cast<AnsiHelp>(ansi_.find(libraries));
        return show == nullptr ? nullptr : show(owner, narrow->c_str(), command, data);
    }
    const auto show = reinterpret_cast<WideHelp>(wide_.find(libraries));
    return show == nullptr ? nullptr : show(owner, file.c_str(), command, data);
}

std::wstring helpFile() {
    std::wstring program(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
        if (length < program.size()) {
            program.resize(length);
            return helpFileBeside(program);
        }
        program.resize(program.size() * 2);
    }
}

}  // namespace calquo
