// file_speed [ROUNDS]: how long Calquo takes to be started with a work area of 10 megabytes, and to save it, beside
// Wine's wordpad with the same file. Overwrites Calquo's settings.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/command_ids.h"
#include "shell/registry_storage.h"
#include "started_program.h"
#include "widgets/windows_api.h"
#include "workarea/work_area_file.h"

namespace {

using namespace calquo;

constexpr std::size_t fileSize = 10'000'000;

/// The number of the entry File > Save in the menu of Wine's wordpad.
constexpr unsigned saveInWordpad = 1002;

/// None of them has a result so long that it is wrapped: Wine's control, and so wordpad, takes the square of the number
/// of such lines when its scroll bar appears.
constexpr const char* expressions[] = {
    "2+3*4",    "sqrt(-4)",    "5 km -> mile",        "16'FF + 2'101", "median(4; 1; 3; 2)", "pmt(0; 1000; 1 year; 5%)",
    "(1; 2)^2", "1e10/7",      "aSin(0.5) -> deg",    "20!",           "100 C -> F",         "'16 255",
    "pi*1e6",   "ln(2)/lg(3)", "fv(100; 1 year; 5%)", "1/0",           "gcd(120; 84; 36)",   "2 pi + 1/3",
};

struct Candidate {
    const char* name;
    std::wstring file;
    std::wstring commandLine;
    unsigned saveCommand;
    std::vector<double> opening{}, saving{};  // milliseconds
    long long length = 0;                     // of the text
};

/// Hands the control the next piece of the text that `rest`, a string_view's address, still holds.
DWORD CALLBACK readPiece(DWORD_PTR rest, LPBYTE buffer, LONG room, LONG* count) {
    std::string_view& text = *reinterpret_cast<std::string_view*>(rest);
    *count = static_cast<LONG>(text.copy(reinterpret_cast<char*>(buffer), static_cast<std::size_t>(room)));
    text.remove_prefix(static_cast<std::size_t>(*count));
    return 0;
}

/// Appends copies of the text until the work area holds it so many times.
void repeat(const WorkArea& workArea, std::size_t times) {
    const std::string text = workArea.contentAsRichText();
    for (std::size_t count = 1; count < times; ++count) {
        std::string_view rest = text;
        EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rest), 0, readPiece};
        SendMessageW(workArea.handle(), EM_STREAMIN, SF_RTF | SFF_SELECTION, reinterpret_cast<LPARAM>(&stream));
    }
}

/// Evaluates some lines under all formats in a work area, repeats them until they fill a file, and saves that.
void makeSheet(const std::wstring& name) {
    const HWND window =
        CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW, 0, 0, 800, 600, nullptr, nullptr, nullptr, nullptr);
    NumericFormat format{};
    WorkArea workArea(window, 1, {}, [&] { return format; });
    workArea.moveTo({0, 0, 780, 560});
    for (const NumericFormat kind : defaultFormats) {
        format = kind;
        for (const char* const expression : expressions) {
            // In place of what the line before has carried on.
            workArea.select(workArea.paragraphAt(workArea.selection().begin).range);
            workArea.typeCharacters(expression);
            workArea.pressKey(VK_RETURN);
        }
    }
    WorkAreaFile file(workArea);
    file.write(name);
    SendMessageW(workArea.handle(), WM_SETREDRAW, FALSE, 0);
    // In two steps, since the control looks for the text's end anew each time.
    const auto times = static_cast<std::size_t>(fileSize / std::filesystem::file_size(name));
    constexpr std::size_t first = 40;
    repeat(workArea, first);
    repeat(workArea, times / first);
    file.write(name);
    DestroyWindow(window);
}

void measure(Candidate& candidate, const std::wstring& original) {
    std::filesystem::remove(candidate.file);
    std::filesystem::copy_file(original, candidate.file);
    const auto copied = std::filesystem::last_write_time(candidate.file);
    const double begin = millisecondsNow();
    StartedProgram program(candidate.commandLine);
    program.waitUntilPainted();
    candidate.opening.push_back(millisecondsNow() - begin);
    candidate.length = program.textLength();
    program.type(L'x');  // a sheet that is as it was read is not saved
    const double beginOfSaving = millisecondsNow();
    program.command(candidate.saveCommand);
    candidate.saving.push_back(millisecondsNow() - beginOfSaving);
    if (std::filesystem::last_write_time(candidate.file) == copied) {
        throw std::runtime_error(std::string(candidate.name) + " has not saved its file");
    }
}

void run(int rounds) {
    const std::wstring folder = ownFolder();
    const std::wstring original = folder + L"sheet.rtf";
    const std::wstring ours = folder + L"sheet of Calquo.rtf";
    const std::wstring theirs = folder + L"sheet of wordpad.rtf";
    makeSheet(original);
    RegistryStorage registry;
    Settings settings(registry);
    settings.setWindowRect(measuredPlace);
    settings.setBoolean(BooleanSetting::ReadDefaultAtStartup, true);
    settings.setText(TextSetting::DefaultFile, ours);
    settings.saveAll();
    Candidate calquo{"Calquo", ours, folder + L"..\\Calquo.exe", identifierOf(Command::SaveDefaultFile)};
    Candidate wordpad{"wordpad", theirs,
                      L"\"C:\\Program Files\\Windows NT\\Accessories\\wordpad.exe\" \"" + theirs + L"\"",
                      saveInWordpad};
    for (int round = 0; round < rounds; ++round) {
        measure(calquo, original);
        measure(wordpad, original);
        if (calquo.length != wordpad.length) {
            throw std::runtime_error("the programs do not show the same text");
        }
    }
    std::printf(
        "a work area of %.1f MB: opened in %.2f times wordpad's time, program start included (%.0f ms), saved in "
        "%.2f times (%.0f ms); medians of %d rounds\n",
        static_cast<double>(std::filesystem::file_size(original)) / 1e6, medianRatio(calquo.opening, wordpad.opening),
        median(calquo.opening), medianRatio(calquo.saving, wordpad.saving), median(calquo.saving), rounds);
    for (const std::wstring& file : {original, ours, theirs}) {
        std::filesystem::remove(file);
    }
}

}  // namespace

int main(int count, char** arguments) {
    try {
        run(count > 1 ? std::max(1, static_cast<int>(std::strtol(arguments[1], nullptr, 10))) : 3);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "file_speed: %s\n", failure.what());
        return 1;
    }
    return 0;
}
