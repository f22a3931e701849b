// What an Enter costs in a long work area, from the key to the painted window.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <iostream>
#include <memory>

#include "desk.h"

namespace calquo {
namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

DWORD CALLBACK readPiece(DWORD_PTR rest, LPBYTE buffer, LONG room, LONG* count) {
    std::string_view& text = *reinterpret_cast<std::string_view*>(rest);
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(room));
    std::memcpy(buffer, text.data(), length);
    text.remove_prefix(length);
    *count = static_cast<LONG>(length);
    return 0;
}

/// Paints what is to be painted and serves whatever else waits.
void settle(const Desk& desk) {
    UpdateWindow(desk.control());
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        DispatchMessageW(&message);
    }
}

Milliseconds timeOf(const Desk& desk, const std::function<void()>& action) {
    settle(desk);
    const auto start = std::chrono::steady_clock::now();
    action();
    settle(desk);
    return std::chrono::steady_clock::now() - start;
}

/// The times that a new line at the end of a work area took, first for one typed character and then for Enter.
struct Times {
    std::vector<Milliseconds> typing, enter;
};

double median(std::vector<Milliseconds> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2].count();
}

struct LongDesk {
    explicit LongDesk(std::size_t lines) {
        std::string text;
        for (std::size_t line = 0; line < lines; ++line) {
            text += "2+3*4 = 14\r\n";
        }
        std::string_view rest = text;
        EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rest), 0, readPiece};
        SendMessageW(desk.control(), EM_STREAMIN, SF_TEXT, reinterpret_cast<LPARAM>(&stream));
        SendMessageW(desk.control(), EM_SETSEL, static_cast<WPARAM>(-1), -1);
    }

    void measure() {
        SendMessageW(desk.control(), EM_SETSEL, 0x7FFFFFFF, 0x7FFFFFFF);
        desk.type("\n2+");
        times.typing.push_back(timeOf(desk, [&] { desk.type("3"); }));
        times.enter.push_back(timeOf(desk, [&] { desk.press(VK_RETURN); }));
    }

    Desk desk;
    Times times;
};

/// Measures desks in turns, so that a change of the machine's speed meets all alike.
std::vector<Times> measured(const std::vector<std::size_t>& lineCounts) {
    std::vector<std::unique_ptr<LongDesk>> desks;
    for (const std::size_t lines : lineCounts) {
        desks.push_back(std::make_unique<LongDesk>(lines));
    }
    constexpr int rounds = 31;
    for (int round = 0; round < rounds; ++round) {
        for (const auto& desk : desks) {
            desk->measure();
        }
    }
    std::vector<Times> times;
    for (const auto& desk : desks) {
        times.push_back(desk->times);
    }
    return times;
}

TEST(WorkAreaSpeed, EnterDoesNotSlowDownWithTheLength) {
    // A screenful is what every window paints and scrolls; the rest must not count.
    const std::vector<std::size_t> lineCounts = {40, 10'000, 100'000};
    const std::vector<Times> times = measured(lineCounts);
    for (std::size_t index = 0; index < times.size(); ++index) {
        std::cout << "lines " << lineCounts[index] << ": a typed character " << median(times[index].typing)
                  << " ms, Enter " << median(times[index].enter) << " ms, ratio to a screenful "
                  << median(times[index].enter) / median(times[0].enter) << "\n";
    }
    EXPECT_LT(median(times[1].enter), 2 * median(times[0].enter));
    // Wine's control walks from the text's start to find a place, and to paint: a typed character shows what that
    // costs. An Enter may search twice more, for its line and its result.
    const double searching = median(times[2].typing) - median(times[0].typing);
    EXPECT_LT(median(times[2].enter), 2 * (median(times[0].enter) + searching) + searching);
}

}  // namespace
}  // namespace calquo
