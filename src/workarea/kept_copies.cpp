// Names of kept copies.
#include "workarea/kept_copies.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <string_view>

namespace calquo {
namespace {

/// What a name looks like: a digit stands for any hexadecimal digit.
constexpr std::wstring_view pattern = L"0000-00-00 00-00-00-000 00000000";
constexpr std::wstring_view ending = L".rtf";
constexpr std::wstring_view savedEnding = L" saved.rtf";

bool isCopy(std::wstring_view name) {
    const std::wstring_view stem = name.substr(0, pattern.size());
    const std::wstring_view rest = name.substr(stem.size());
    return (rest == ending || rest == savedEnding) &&
           std::ranges::equal(stem, pattern, [](wchar_t one, wchar_t wanted) {
               const bool isDigit = (one >= L'0' && one <= L'9') || (one >= L'A' && one <= L'F');
               return wanted == L'0' ? isDigit : one == wanted;
           });
}

}  // namespace

std::wstring copyName(const RunStart& run) {
    std::array<char, 64> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d-%02d-%02d-%03d %08X", run.year, run.month, run.day,
                      run.hour, run.minute, run.second, run.millisecond, run.process);
    return std::wstring(text.data(), text.data() + length).append(ending);
}

std::wstring savedCopyName(const std::wstring& name) { return name.substr(0, pattern.size()).append(savedEnding); }

bool isSavedCopy(const std::wstring& name) { return name.ends_with(savedEnding); }

std::vector<std::wstring> copiesNewestFirst(std::vector<std::wstring> names) {
    std::erase_if(names, [](const std::wstring& name) { return !isCopy(name); });
    std::ranges::sort(names, std::greater());
    return names;
}

}  // namespace calquo
