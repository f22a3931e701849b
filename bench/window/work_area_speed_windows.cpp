// What an Enter costs in a long work area, from the key to the painted window.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

#include "windows/file_folder.h"
#include "windows/work_area_fixture.h"
#include "workarea/language_text.h"
#include "workarea/recovery.h"
#include "workarea/reevaluation.h"

namespace calquo {
namespace {

DWORD CALLBACK readPiece(DWORD_PTR rest, LPBYTE buffer, LONG room, LONG* count) {
    std::string_view& text = *reinterpret_cast<std::string_view*>(rest);
    *count = static_cast<LONG>(text.copy(reinterpret_cast<char*>(buffer), static_cast<std::size_t>(room)));
    text.remove_prefix(static_cast<std::size_t>(*count));
    return 0;
}

/// A work area of many lines, and the milliseconds that a new line at its end took.
struct LongText {
    explicit LongText(std::size_t lines, std::string_view line = "2+3*4 = 14\r\n") {
        std::string text;
        for (std::size_t i = 0; i < lines; ++i) {
            text += line;
        }
        std::string_view rest = text;
        EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rest), 0, readPiece};
        SendMessageW(fixture.control(), EM_STREAMIN, SF_TEXT, reinterpret_cast<LPARAM>(&stream));
    }

    void measure() {
        SendMessageW(fixture.control(), EM_SETSEL, 0x7FFFFFFF, 0x7FFFFFFF);
        fixture.type("\n2+");
        settle();
        typing.push_back(timeOf([&] { fixture.type("3"); }));
        enter.push_back(timeOf([&] { fixture.press(VK_RETURN); }));
    }

    void measureKeeping() {
        fixture.type("1");
        keeping.push_back(timeOf([&] { recovery.keepNow(); }));
        streaming.push_back(timeOf([&] { fixture.workArea().contentAsRichText(); }));
    }

    double timeOf(const std::function<void()>& action) {
        const auto start = std::chrono::steady_clock::now();
        action();
        settle();
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    }

    /// Paints what is to be painted and serves whatever else waits.
    void settle() {
        UpdateWindow(fixture.control());
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            DispatchMessageW(&message);
        }
    }

    FileFolder folder;
    WorkAreaFixture fixture;
    Recovery recovery{fixture.workArea(), [] { return false; }, folder.path(L"Kept")};
    std::vector<double> typing, enter;       ///< One character, and Enter after it.
    std::vector<double> keeping, streaming;  ///< A writing of the kept copy, and the control's part of it.
};

/// What an action takes when nothing else keeps the machine busy. A long text suffers more from that than a short one:
/// the control walks through memory that others push out of the caches.
double least(const std::vector<double>& times) { return *std::ranges::min_element(times); }

TEST(WorkAreaSpeed, EnterDoesNotSlowDownWithTheLength) {
    // A screenful is what every window paints and scrolls; the rest must not count.
    LongText fixtures[] = {LongText(40), LongText(10'000), LongText(100'000)};
    // In turns, so that a change of the machine's speed meets all alike.
    for (int round = 0; round < 11; ++round) {
        for (LongText& fixture : fixtures) {
            fixture.measure();
        }
    }
    const double few = least(fixtures[0].enter);
    std::printf(
        "Enter at 10,000 lines takes %.2f times, at 100,000 lines %.2f times that at 40 lines; a character %.2f and "
        "%.2f times.\n",
        least(fixtures[1].enter) / few, least(fixtures[2].enter) / few,
        least(fixtures[1].typing) / least(fixtures[0].typing), least(fixtures[2].typing) / least(fixtures[0].typing));
    for (int round = 0; round < 3; ++round) {
        for (LongText& fixture : fixtures) {
            fixture.measureKeeping();
        }
    }
    // Wine's control streams its text out at some 10 microseconds a line; nothing else may count.
    std::printf("Keeping the text takes %.1f, %.1f and %.1f Enters (%.0f, %.0f and %.0f ms).\n",
                least(fixtures[0].keeping) / least(fixtures[0].enter),
                least(fixtures[1].keeping) / least(fixtures[1].enter),
                least(fixtures[2].keeping) / least(fixtures[2].enter), least(fixtures[0].keeping),
                least(fixtures[1].keeping), least(fixtures[2].keeping));
    EXPECT_LT(least(fixtures[2].keeping), 1.5 * least(fixtures[2].streaming));
    EXPECT_LT(least(fixtures[1].enter), 2 * few);
    // Wine's control walks from the text's start to find a place, and to paint: a typed character shows what that
    // costs. An Enter may search twice more, for its line and its result.
    const double searching = least(fixtures[2].typing) - least(fixtures[0].typing);
    EXPECT_LT(least(fixtures[2].enter), 2 * (few + searching) + searching);
}

TEST(WorkAreaSpeed, EvaluatingAllLinesIsTheControlsTime) {
    constexpr std::size_t lines = 10'000, lineLength = 11, resultBegin = 8;
    LongText sheet(lines);
    const auto spoil = [&](std::size_t first, std::size_t count) {
        for (std::size_t line = first; line < first + count; ++line) {
            const std::size_t begin = line * lineLength + resultBegin;
            sheet.fixture.select(begin, begin + 2);
            SendMessageW(sheet.fixture.control(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"99"));
        }
    };
    WorkArea& workArea = sheet.fixture.workArea();
    std::size_t differing = 0;
    const auto evaluateAll = [&] { differing = workArea.evaluateAll().edits.size(); };
    const std::string text = languageText(workArea.characters());
    const double ours = sheet.timeOf([&] { EXPECT_EQ(reevaluate(text, defaultFormats[0]).evaluated, lines); });
    const double without = sheet.timeOf(evaluateAll);
    EXPECT_EQ(differing, 0U);
    spoil(lines / 2, 1);
    const double one = sheet.timeOf(evaluateAll);
    EXPECT_EQ(differing, 1U);
    spoil(lines / 2, 40);
    const double screenful = sheet.timeOf(evaluateAll);
    EXPECT_EQ(differing, 40U);
    EXPECT_TRUE(languageText(workArea.characters()) == text);
    LongText wrong(lines, "2+3*4 = 99\r\n");
    const std::wstring old = wrong.fixture.workArea().characters();
    const double all = wrong.timeOf([&] { differing = wrong.fixture.workArea().evaluateAll().edits.size(); });
    EXPECT_EQ(differing, lines);
    EXPECT_TRUE(languageText(wrong.fixture.workArea().characters()) == text);
    const double back = wrong.timeOf([&] { wrong.fixture.undo(); });
    EXPECT_TRUE(wrong.fixture.workArea().characters() == old);
    const double control = wrong.timeOf([&] {
        WorkArea& area = wrong.fixture.workArea();
        EXPECT_TRUE(area.exchangeContent(area.contentAsRichText(), area.selection()));
    });
    std::printf(
        "All of 10,000 lines take %.0f ms, the evaluation %.0f of them; with one new result %.0f ms, with 40 in "
        "a row %.0f ms, with 10,000 %.0f ms, of which the control takes %.0f, and %.0f ms to take these back.\n",
        without, ours, one, screenful, all, control, back);
    EXPECT_LT(std::max({one, screenful, all, back}), 2000);
}

}  // namespace
}  // namespace calquo
