// Files by the standard library, which shares no code with the program's own.
#include "file_folder.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "widgets/windows_api.h"

namespace calquo {

FileFolder::FileFolder() {
    static std::atomic<int> count = 0;
    const std::wstring name = L"calquo-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
    path_ = (std::filesystem::temp_directory_path() / name).wstring();
    std::filesystem::create_directory(path_);
}

FileFolder::~FileFolder() {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path_)) {
        SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::wstring FileFolder::path(std::wstring_view name) const { return path_ + L"\\" + std::wstring(name); }

void FileFolder::put(std::wstring_view name, std::string_view bytes) const {
    std::ofstream file(std::filesystem::path(path(name)), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string FileFolder::bytes(std::wstring_view name) const {
    std::ifstream file(std::filesystem::path(path(name)), std::ios::binary);
    if (!file) {
        return "(none)";
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::wstring> FileFolder::namesIn(std::wstring_view folder) const {
    std::vector<std::wstring> names;
    for (const auto& entry : std::filesystem::directory_iterator(path(folder))) {
        names.push_back(entry.path().filename().wstring());
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace calquo
