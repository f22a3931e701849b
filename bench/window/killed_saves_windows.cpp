// killed_saves [ROUNDS]: starts itself to save one of two sheets after the other to one file, as rich and as plain
// text, and kills that process at some moment, so many times; ends with status 1 when the file has vanished, or is
// neither of the two sheets.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include "format/numeric_format.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"
#include "windows/file_folder.h"
#include "workarea/work_area_file.h"

namespace {

using namespace calquo;

std::wstring sheetOf(const std::wstring& line) {
    std::wstring text;
    for (int lines = 0; lines < 500; ++lines) {
        text += line + L"\r";
    }
    return text;
}

/// Saves two work areas as one and two, then one after the other as sheet, until it is killed.
void saveWithoutEnd(const std::wstring& folder, const std::wstring& ending) {
    const HWND window =
        CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW, 0, 0, 600, 400, nullptr, nullptr, nullptr, nullptr);
    WorkArea workArea(window, 1, {}, [] { return defaultFormats[0]; });
    workArea.moveTo({0, 0, 600, 400});
    WorkAreaFile file(workArea);
    const std::wstring sheets[] = {sheetOf(L"1/3 = 0.33333"), sheetOf(L"2 pi = 6.28319 \u221E")};
    const auto save = [&](int sheet, const wchar_t* name) {
        workArea.replaceContentByPlainText(sheets[sheet]);
        file.write(folder + name + ending);
    };
    save(0, L"one");
    save(1, L"two");
    for (int count = 0;; ++count) {
        save(count % 2, L"sheet");
    }
}

/// Starts this program to save, and kills it at some moment after `begun` is there.
void saveAndKill(const std::wstring& folder, const std::wstring& ending, const std::filesystem::path& begun) {
    static std::mt19937 random(std::random_device{}());
    std::filesystem::remove(begun);
    wchar_t program[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring line = L"saver " + folder + L" " + ending;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION saver{};
    if (CreateProcessW(program, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &saver) == 0) {
        std::puts("FAULT: it cannot start itself");
        std::exit(1);
    }
    while (!std::filesystem::exists(begun)) {
        Sleep(1);
    }
    Sleep(random() % 400);
    TerminateProcess(saver.hProcess, 9);
    WaitForSingleObject(saver.hProcess, INFINITE);
    CloseHandle(saver.hThread);
    CloseHandle(saver.hProcess);
}

/// Whether each kill has left a whole file, once there was one.
bool areWhole(int rounds, const std::wstring& ending) {
    const FileFolder folder;
    int seen[2] = {0, 0};
    for (int round = 1; round <= rounds; ++round) {
        saveAndKill(folder.path(L""), ending, folder.path(L"two" + ending));
        const std::string bytes = folder.bytes(L"sheet" + ending);
        const bool isThere = bytes != "(none)", isOne = bytes == folder.bytes(L"one" + ending),
                   isTwo = bytes == folder.bytes(L"two" + ending);
        if ((isThere && !isOne && !isTwo) || (!isThere && seen[0] + seen[1] > 0)) {
            std::printf("FAULT: round %d has left %s\n", round, isThere ? "half a file" : "nothing");
            return false;
        }
        seen[0] += isOne ? 1 : 0;
        seen[1] += isTwo ? 1 : 0;
    }
    std::printf("%ls: killed %d times: %d times the one sheet was there, %d times the other\n", ending.c_str(), rounds,
                seen[0], seen[1]);
    return seen[0] + seen[1] > 0;
}

}  // namespace

int main(int count, char** arguments) {
    if (count == 3) {
        saveWithoutEnd(wideText(arguments[1]), wideText(arguments[2]));
    }
    const int rounds = count > 1 ? std::atoi(arguments[1]) : 200;
    return areWhole(rounds, L".rtf") && areWhole(rounds, L".txt") ? 0 : 1;
}
