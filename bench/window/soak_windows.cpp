// soak [STEPS [SEED]]: works with the whole main window at random, as somebody would all day: evaluates lines, opens
// and closes panels, presses their buttons, saves, reads, changes formats. The same seed gives the same day. Ends with
// status 1 when memory, drawing objects, windows or the time of a step have grown.
#include "widgets/windows_api.h"

// Needs <windows.h> before it.
#include <psapi.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "panels/catalogue.h"
#include "shell/command_ids.h"
#include "windows/file_folder.h"
#include "windows/program.h"
#include "windows/resources.h"

namespace {

using namespace calquo;
using Clock = std::chrono::steady_clock;

/// What counts at the end of a part of the run, when everything is closed and empty.
struct Checkpoint {
    Resources held;
    double megabytes = 0;
    double millisecondsForALine = 0;  ///< The median.
};

double usedMegabytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.PagefileUsage) / (1024 * 1024);
}

/// The settings of somebody whose default file lies in a folder of its own.
MemoryStorage settingsFor(const FileFolder& folder) {
    MemoryStorage storage;
    storage.values[L"Default File"] = folder.path(L"sheet.rtf");
    return storage;
}

class Day {
public:
    explicit Day(std::uint32_t seed)
        : random_(seed),
          program_(settingsFor(folder_), {[](WindowHandle, const BoxText&) { return BoxAnswer::Cancel; },
                                          [](WindowHandle, const FileRequest&) { return FileChoice{}; }}) {
        program_.command(identifierOf(Command::SaveDefaultFile));
        // What is made once and kept, like fonts, is made now.
        for (const PanelEntry& panel : panelCatalogue()) {
            program_.command(panel.identifier);
            program_.command(panel.identifier);
        }
        for (std::uint32_t kind = 0; kind < formatKinds.size(); ++kind) {
            closeFormatDialog(kind, VK_ESCAPE);
        }
    }

    void step() {
        const std::uint32_t dice = below(100);
        if (dice < 70) {
            const auto begin = Clock::now();
            evaluate();
            lines_.push_back(std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
        } else if (dice < 82) {
            pressButton();
        } else if (dice < 90) {
            togglePanel();
        } else if (dice < 94) {
            program_.command(selectFormatCommands.first + below(formatKinds.size()));
        } else if (dice < 96) {
            closeFormatDialog(below(formatKinds.size()), below(2) == 0 ? VK_RETURN : VK_ESCAPE);
        } else if (dice < 97) {
            program_.command(identifierOf(Command::SaveDefaultFile));
        } else if (dice < 98) {
            program_.command(identifierOf(Command::ReadDefaultFile));
        } else {
            SendMessageW(program_.workArea(), EM_UNDO, 0, 0);
        }
        constexpr LRESULT longSheet = 3000;  // characters
        if (SendMessageW(program_.workArea(), WM_GETTEXTLENGTH, 0, 0) > longSheet) {
            program_.command(identifierOf(Command::ClearWorkArea));
        }
    }

    /// Closes and empties everything, and says what is held then.
    Checkpoint rest() {
        program_.storage().written.clear();  // the record of a test, which grows with every setting
        for (const PanelEntry& panel : panelCatalogue()) {
            if (program_.window().isChecked(panel.identifier)) {
                program_.command(panel.identifier);
            }
        }
        program_.command(identifierOf(Command::ResetFormats));
        program_.setText(L"");
        SendMessageW(program_.workArea(), EM_EMPTYUNDOBUFFER, 0, 0);
        return {heldResources(), usedMegabytes(), takeMedianLine()};
    }

private:
    std::uint32_t below(std::size_t limit) { return static_cast<std::uint32_t>(random_() % limit); }

    std::string operand() {
        static constexpr const char* operands[] = {"7",   "0.1",         "1e30",    "16'FF",    "(1; 2)",
                                                   "pi",  "5 km",        "sqrt(2)", "fact(20)", "sum(1; 2; 3)",
                                                   "rnd", "sin(30 deg)", "1/0"};
        return below(3) == 0 ? operands[below(std::size(operands))] : std::to_string(below(100000));
    }

    void evaluate() {
        if (below(3) == 0) {
            // Away from what the line before has carried on, or from its error, which would stay in a growing line.
            constexpr WPARAM end = 0x7FFFFFFF;
            SendMessageW(program_.workArea(), EM_SETSEL, end, static_cast<LPARAM>(end));
            SendMessageW(program_.workArea(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"\n"));
        }
        std::string line = operand();
        for (std::uint32_t count = below(5); count > 0; --count) {
            line += "+-*/^;"[below(6)];
            line += operand();
        }
        for (const char character : line) {
            SendMessageA(program_.workArea(), WM_CHAR, static_cast<WPARAM>(character), 1);
        }
        SendMessageW(program_.workArea(), WM_KEYDOWN, VK_RETURN, 1);
        if (below(2) == 0) {
            SendMessageW(program_.workArea(), WM_KEYDOWN, VK_RETURN, 1);
        }
        Program::serveMessages();
    }

    void togglePanel() {
        const auto panels = panelCatalogue();
        program_.command(panels[below(panels.size())].identifier);
    }

    void pressButton() {
        std::vector<std::uint16_t> open;
        for (const PanelEntry& panel : panelCatalogue()) {
            if (program_.window().isChecked(panel.identifier)) {
                open.push_back(panel.identifier);
            }
        }
        if (!open.empty()) {
            const std::vector<HWND> buttons = program_.buttonsOf(open[below(open.size())]);
            Program::click(buttons[below(buttons.size())]);
        }
    }

    void closeFormatDialog(std::uint32_t kind, WPARAM key) {
        program_.command(modifyFormatCommands.first + kind);
        PostMessageW(FindWindowW(L"Format", nullptr), WM_KEYDOWN, key, 1);
        Program::serveMessages();
    }

    double takeMedianLine() {
        const auto middle = lines_.begin() + static_cast<std::ptrdiff_t>(lines_.size() / 2);
        std::nth_element(lines_.begin(), middle, lines_.end());
        const double median = lines_.empty() ? 0 : *middle;
        lines_.clear();
        return median;
    }

    std::vector<double> lines_;  // milliseconds
    std::mt19937 random_;
    FileFolder folder_;
    Program program_;
};

bool hasGrown(const Checkpoint& first, const Checkpoint& last) {
    // The system keeps that many contexts of windows that were painted, for the next time.
    constexpr int cachedContexts = 64;
    constexpr double noticeableMegabytes = 2;
    constexpr double noticeableSlowness = 3;  // on a machine with other work
    // What is made once and kept, like a longer text of the settings.
    constexpr int noticeableAllocations = 20;
    return last.held.drawingObjects > first.held.drawingObjects + cachedContexts ||
           last.held.allocations > first.held.allocations + noticeableAllocations ||
           last.held.windows > first.held.windows || last.megabytes > first.megabytes + noticeableMegabytes ||
           last.millisecondsForALine > first.millisecondsForALine * noticeableSlowness;
}

int run(int steps, std::uint32_t seed) {
    constexpr int parts = 10;
    std::printf("%d steps, seed %u\n%10s %10s %10s %12s %10s %10s\n", steps, static_cast<unsigned>(seed), "steps",
                "ms a line", "MB", "allocations", "drawing", "windows");
    Day day(seed);
    std::vector<Checkpoint> checkpoints;
    for (int part = 0; part < parts; ++part) {
        for (int step = 0; step < steps / parts; ++step) {
            day.step();
        }
        const Checkpoint now = day.rest();
        std::printf("%10d %10.2f %10.1f %12d %10d %10d\n", steps / parts * (part + 1), now.millisecondsForALine,
                    now.megabytes, now.held.allocations, now.held.drawingObjects, now.held.windows);
        std::fflush(stdout);
        checkpoints.push_back(now);
    }
    // The control still takes memory that it keeps in the first two.
    const bool grown = hasGrown(checkpoints[1], checkpoints.back());
    std::printf(grown ? "FAULT: it has grown\n" : "nothing has grown\n");
    return grown ? 1 : 0;
}

}  // namespace

int main(int count, char** arguments) {
    const int steps = count > 1 ? std::max(10, static_cast<int>(std::strtol(arguments[1], nullptr, 10))) : 100000;
    const auto seed = count > 2 ? static_cast<std::uint32_t>(std::strtoul(arguments[2], nullptr, 10)) : 1U;
    return run(steps, seed);
}
