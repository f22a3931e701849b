// start_cost [ROUNDS]: how long Calquo takes from CreateProcess until its window is painted, and what memory it holds
// then, without panels, with six and with all, beside a minimal window with one rich edit control. Overwrites Calquo's
// settings.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "panels/catalogue.h"
#include "shell/registry_storage.h"
#include "started_program.h"

namespace {

using namespace calquo;

constexpr std::array<std::uint16_t, 6> sixPanels = {0xA110, 0xA111, 0xA311, 0xA010, 0xA550, 0xA5F0};

std::vector<std::uint16_t> allPanels() {
    std::vector<std::uint16_t> panels;
    std::ranges::transform(panelCatalogue(), std::back_inserter(panels), &PanelEntry::identifier);
    return panels;
}

/// What is measured of each start.
struct Quantity {
    const char* name;
    const char* unit;
};
constexpr std::array<Quantity, 3> quantities = {{
    {"start to painted window", "ms"},
    {"private memory", "MB"},
    {"working set", "MB"},
}};
using Measured = std::array<double, quantities.size()>;

struct Candidate {
    const char* name;
    const wchar_t* program;  ///< Beside this program.
    std::span<const std::uint16_t> panels;
    Measured limits;  ///< Times a minimal window's.
    std::array<std::vector<double>, quantities.size()> values{};
};

Measured measure(const Candidate& candidate) {
    RegistryStorage registry;
    Settings settings(registry);
    settings.setWindowRect(measuredPlace);
    settings.setSelectedPanels(candidate.panels);
    settings.saveAll();
    const double begin = millisecondsNow();
    StartedProgram program(ownFolder() + candidate.program);
    const double time = program.waitUntilPainted() - begin;
    const HeldMemory held = program.heldMemory();
    return {time, held.privateUse, held.workingSet};
}

void run(int rounds) {
    const std::vector<std::uint16_t> all = allPanels();
    std::array<Candidate, 4> candidates = {{
        {"a minimal window", L"minimal_window.exe", {}, {}},
        {"Calquo without panels", L"..\\Calquo.exe", {}, {1.3, 1.5, 1.5}},
        {"Calquo with six panels", L"..\\Calquo.exe", sixPanels, {1.3, 1.5, 1.5}},
        {"Calquo with all panels", L"..\\Calquo.exe", all, {2.0, 2.0, 1.5}},
    }};
    // The first round only fills the system's caches.
    for (int round = 0; round <= rounds; ++round) {
        for (std::size_t turn = 0; turn < candidates.size(); ++turn) {
            // The order makes each program follow each of the others, as one may leave the system work to finish.
            const std::size_t place = round % 2 == 0 ? turn : candidates.size() - 1 - turn;
            Candidate& candidate = candidates[(place + static_cast<std::size_t>(round)) % candidates.size()];
            const Measured measured = measure(candidate);
            for (std::size_t quantity = 0; round > 0 && quantity < measured.size(); ++quantity) {
                candidate.values[quantity].push_back(measured[quantity]);
            }
        }
    }
    std::printf("medians of %d rounds, and how many times a minimal window's\n", rounds);
    const Candidate& least = candidates.front();
    for (std::size_t quantity = 0; quantity < quantities.size(); ++quantity) {
        std::printf("%s\n", quantities[quantity].name);
        for (const Candidate& candidate : candidates) {
            std::printf("    %-22s %7.1f %s", candidate.name, median(candidate.values[quantity]),
                        quantities[quantity].unit);
            if (&candidate != &least) {
                std::printf(", %.2f times (at most %.1f)",
                            medianRatio(candidate.values[quantity], least.values[quantity]),
                            candidate.limits[quantity]);
            }
            std::printf("\n");
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    try {
        run(count > 1 ? std::max(1, static_cast<int>(std::strtol(arguments[1], nullptr, 10))) : 25);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "start_cost: %s\n", failure.what());
        return 1;
    }
    return 0;
}
