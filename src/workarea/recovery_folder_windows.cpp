// The folder by the system's environment, and the file of the name that is to be told.
#include "workarea/recovery_folder.h"

#include <algorithm>
#include <new>
#include <string_view>

#include "values/program.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"
#include "workarea/disk_file.h"
#include "workarea/file_fault.h"

namespace calquo {
namespace {

std::wstring environmentText(const wchar_t* name) {
    std::wstring text(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    text.resize(GetEnvironmentVariableW(name, text.data(), static_cast<DWORD>(text.size())));
    return text;
}

std::wstring fileOfName(const std::wstring& folder) { return folder + L"\\Kept file name.txt"; }

}  // namespace

std::wstring recoveryFolder() {
    std::wstring folder = environmentText(L"LOCALAPPDATA");
    if (folder.empty()) {
        return folder;
    }
    // Without the version: a newer program finds what an older one has kept.
    for (const std::string_view level : {makersSite, programName, "Kept Sheets"}) {
        folder += L'\\';
        folder.append(level.begin(), level.end());
    }
    return folder;
}

void makeFolder(const std::wstring& folder) {
    if (CreateDirectoryW(folder.c_str(), nullptr) == 0 && GetLastError() == ERROR_PATH_NOT_FOUND) {
        const std::size_t end = folder.find_last_of(L'\\');
        if (end != std::wstring::npos) {
            makeFolder(folder.substr(0, end));
            CreateDirectoryW(folder.c_str(), nullptr);
        }
    }
}

std::vector<std::wstring> fileNamesIn(const std::wstring& folder) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return names;
    }
    try {
        do {
            names.emplace_back(found.cFileName);
        } while (FindNextFileW(search, &found) != 0);
    } catch (...) {
        FindClose(search);
        throw;
    }
    FindClose(search);
    return names;
}

void leaveNameToTell(const std::wstring& folder, const std::wstring& name) {
    if (folder.empty()) {
        return;
    }
    try {
        makeFolder(folder);
        replaceFile(systemDiskForOwnFiles(), fileOfName(folder), utf8Text(name));
    } catch (const FileFault&) {
        // Whoever looks for the file finds it beside the other.
    } catch (const std::bad_alloc&) {
        // The same.
    }
}

std::wstring takeNameToTell(const std::wstring& folder) {
    if (folder.empty() || GetFileAttributesW(fileOfName(folder).c_str()) == INVALID_FILE_ATTRIBUTES) {
        return {};
    }
    std::wstring name;
    try {
        name = wideText(readFile(systemDiskForOwnFiles(), fileOfName(folder)));
        name.resize(std::min(name.size(), longestPath));
    } catch (const FileFault&) {
        // Then there is nothing to tell.
    } catch (const std::bad_alloc&) {
        return {};  // the next start may have room for it
    }
    DeleteFileW(fileOfName(folder).c_str());
    return name;
}

}  // namespace calquo
