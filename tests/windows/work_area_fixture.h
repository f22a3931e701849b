// A window with a work area on it for the tests: what a person does to it, and what stands there afterwards.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "widgets/windows_api.h"
#include "workarea/work_area.h"

namespace calquo {

/// Characters of a test row as UTF-16: each byte one unit.
std::wstring wide(std::string_view text);

class WorkAreaFixture {
public:
    WorkAreaFixture();

    HWND control() const { return workArea_.handle(); }
    WorkArea& workArea() { return workArea_; }

    /// Types characters, line ends by Control and Enter.
    void type(std::wstring_view text);
    void type(std::string_view text) { type(wide(text)); }
    /// Presses a key, with `modifier` (or no key, 0) held.
    void press(int key, int modifier = 0);
    void select(std::size_t begin, std::size_t end);
    void undo();
    void redo();

    /// The whole text; lines end with "\n".
    std::wstring text() const;
    std::size_t caret() const;
    /// The whole text with "<...>" around the result style, "|" at the caret and "?" after a character of any other
    /// style.
    std::wstring picture();

    /// The commands that the top-level window has been sent, in order.
    std::vector<unsigned> commands;
    /// Results are written under this.
    NumericFormat format = defaultFormats[0];
    /// How often the work area has refused something.
    int refusals = 0;

private:
    struct TopLevelWindow {
        explicit TopLevelWindow(WorkAreaFixture& fixture);
        ~TopLevelWindow();
        HWND handle;
    };

    TopLevelWindow top_;
    WorkArea workArea_;
};

}  // namespace calquo
