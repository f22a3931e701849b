// The tips beside the lines of the work area: details of a value, names to choose from, the arguments of a call.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "assist/call_arguments.h"
#include "assist/completion.h"
#include "assist/value_details.h"
#include "widgets/tip.h"
#include "workarea/work_area.h"

namespace calquo {

class WorkAreaTips {
public:
    /// Shows tips on `window`, in which the work area stands, and tells by `tell` what was copied. Both must outlive
    /// the tips.
    WorkAreaTips(WindowHandle window, WorkArea& workArea, std::function<void(const std::wstring&)> tell);

    /// Shows the details of the value of the caret's line.
    void showDetails();
    /// Shows the names that may be meant by the word at the caret.
    void completeName();
    void hide();

    // What happens in the work area and around it.

    /// A key that goes down; true where it was meant for the tip that shows.
    bool takesKey(const KeyEvent& event);
    /// Text is about to go in at the caret. After the "(" of a function its arguments show, until it is closed.
    void textComes(std::string_view text);
    /// The mouse in the work area. The details of a result show when it rests there.
    void mouse(const MouseEvent& event);
    /// A mouse button goes down anywhere but on a tip.
    void pressed();
    /// The text or the caret may have changed.
    void lineMayHaveChanged();

private:
    /// What shows. A note, such as the details that the mouse has asked for, goes with the next key.
    enum class Shown : std::uint8_t { Nothing, Details, DetailsUnderMouse, Note, Names, Arguments };

    /// What a tip is about: a part of the text, from the start of a line.
    struct Anchor {
        std::int32_t lineStart = 0;
        std::int32_t lineEnd = 0;
        std::int32_t position = 0;  ///< Below it the tip begins.
    };

    bool takesKeyOfDetails(const KeyEvent& event);
    bool takesKeyOfNames(const KeyEvent& event);
    bool takesKeyOfArguments(const KeyEvent& event);

    Tip& tip();
    void tell(Shown what, TipContent content, const Anchor& anchor);
    Rectangle rectangleOf(const Anchor& anchor) const;
    bool hasMoved() const;
    void update();
    void showNames(const CurrentLine& line, Completion completion);
    void updateNames(const CurrentLine& line);
    void updateArguments(const CurrentLine& line);
    void onTime();
    void showDetailsUnderMouse();
    bool isMouseOnTipOrLine() const;

    void choose(std::size_t row);
    void copy(const Detail& detail);
    void take(std::size_t row);

    WindowHandle window_;
    WorkArea& workArea_;
    std::function<void(const std::wstring&)> tell_;
    std::unique_ptr<Tip> tip_;  ///< Made when it is first wanted.

    Shown shown_ = Shown::Nothing;
    Anchor anchor_;
    Rectangle place_;  ///< Of the anchor's line in the window.
    Point scrolled_;   ///< And how far the text was scrolled when the tip was shown there.
    std::vector<Detail> details_;
    std::optional<Completion> completion_;
    std::optional<OpenCall> call_;
    bool tellsArguments_ = false;  ///< Since a "(" was put in.
    bool willUpdate_ = false;
    Point mouse_{-1, -1};
};

}  // namespace calquo
