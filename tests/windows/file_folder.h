// A folder of a test's own, for files with all their bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calquo {

class FileFolder {
public:
    /// An empty folder for temporary files, which is removed with all that is in it.
    FileFolder();
    FileFolder(const FileFolder&) = delete;
    FileFolder& operator=(const FileFolder&) = delete;
    ~FileFolder();

    /// The whole path of a name in the folder.
    std::wstring path(std::wstring_view name) const;

    void put(std::wstring_view name, std::string_view bytes) const;
    /// All bytes of a file; "(none)" when there is none.
    std::string bytes(std::wstring_view name) const;
    /// What is in the folder, in order.
    std::vector<std::wstring> names() const { return namesIn(L""); }
    /// The same of a folder in it.
    std::vector<std::wstring> namesIn(std::wstring_view folder) const;

private:
    std::wstring path_;
};

}  // namespace calquo
