// Presses step by step, and the times of their repetition.
#include "widgets/button_press.h"

#include <gtest/gtest.h>

#include <string>

namespace calquo {
namespace {

/// Takes steps, one character each: 'd' the mouse button goes down, 't' the timer has run out, 'u' the mouse button
/// goes up inside, 'o' outside, 'x' inside without the capture, 'c' the capture is lost. The answer has one character
/// for each step: '2' and '3' the notice's code, '-' no notice; a 'P' follows while the button is pressed.
std::string stepped(bool repeats, const std::string& steps) {
    ButtonPress press(repeats);
    std::string answer;
    for (const char step : steps) {
        ButtonNotice notice = ButtonNotice::None;
        switch (step) {
            case 'd':
                notice = press.press();
                break;
            case 't':
                notice = press.repeat();
                break;
            case 'c':
                press.cancel();
                break;
            default:
                notice = press.release(step != 'x', step != 'o');
        }
        answer += notice == ButtonNotice::None ? '-' : static_cast<char>('0' + static_cast<int>(notice));
        answer += press.isPressed() ? "P" : "";
    }
    return answer;
}

TEST(ButtonPress, TellsItsParentOnReleaseOrWhileHeld) {
    struct Row {
        bool repeats;
        const char* steps;
        const char* answer;
    };
    const Row rows[] = {
        {false, "du", "-P3"},   {false, "dudu", "-P3-P3"}, {false, "do", "-P-"},     {false, "dx", "-P-"},
        {false, "dcx", "-P--"}, {false, "dtu", "-P-P3"},   {true, "du", "2P-"},      {true, "dttu", "2P2P2P-"},
        {true, "dto", "2P2P-"}, {true, "dut", "2P--"},     {true, "dtct", "2P2P--"}, {true, "dctdu", "2P--2P-"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(stepped(row.repeats, row.steps), row.answer) << row.steps;
    }
}

TEST(ButtonPress, RepeatsAtTheKeyboardsRate) {
    const unsigned delays[][2] = {{0, 1000}, {1, 750}, {3, 250}};
    for (const auto& [setting, milliseconds] : delays) {
        EXPECT_EQ(repeatDelay(setting), milliseconds);
    }
    const unsigned intervals[][2] = {{0, 500}, {1, 333}, {18, 50}, {31, 30}};
    for (const auto& [setting, milliseconds] : intervals) {
        EXPECT_EQ(repeatInterval(setting), milliseconds);
    }
}

}  // namespace
}  // namespace calquo
