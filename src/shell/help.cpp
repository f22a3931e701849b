// Where the help is looked for; see help.h.
#include "shell/help.h"

namespace calquo {
namespace {

constexpr std::wstring_view helpFileName = L"Calquo2.chm";
constexpr const wchar_t* usualLibrary = L"hhctrl.ocx";

EntryPoint search(HelpLibraries& libraries, std::uint16_t ordinal) {
    ModuleHandle library = nullptr;
    if (const std::optional<std::wstring> path = libraries.registeredPath()) {
        library = libraries.load(*path);
    }
    if (library == nullptr) {
        library = libraries.load(usualLibrary);
    }
    return library == nullptr ? nullptr : libraries.entryPoint(library, ordinal);
}

}  // namespace

EntryPoint HelpEntryPoint::find(HelpLibraries& libraries) {
    if (!found_) {
        found_ = search(libraries, ordinal_);
    }
    return *found_;
}

std::wstring helpFileBeside(std::wstring_view program) {
    // Without a separator nothing is kept of the path.
    const std::size_t name = program.find_last_of(L"\\/") + 1;
    return std::wstring(program.substr(0, name)).append(helpFileName);
}

}  // namespace calquo
