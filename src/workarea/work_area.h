// The work area: the text that is at once input, output and record. Enter evaluates the caret's line and writes the
// result into the text.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "format/numeric_format.h"
#include "widgets/key_stroke.h"
#include "widgets/text_area.h"
#include "workarea/foreign_text.h"
#include "workarea/record.h"
#include "workarea/reevaluation.h"
#include "workarea/rich_text_filter.h"
#include "workarea/shown_colors.h"

namespace calquo {

/// The line that holds the start of the selection.
struct CurrentLine {
    std::string text;  ///< As the engine reads it, one character for each of the control's.
    std::int32_t start = 0;
    std::size_t selectionBegin = 0;  ///< The selection as far as it lies in the line, from the line's start.
    std::size_t selectionEnd = 0;
    std::size_t carried = 0;  ///< So many characters before the caret are a fresh result, see below.
};

/// Characters of a line, from one offset to another.
struct LineRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Where a line is added: at a place that begins a line, whose characters it replaces, or below the line that ends
/// there.
enum class LinePlace : bool { Here, Below };

/// A key that sends a command to the work area's parent.
struct KeyCommand {
    std::uint32_t key;  ///< The system's virtual key.
    Modifiers modifiers;
    std::uint16_t command;
};

/// Is told what happens in the work area.
struct WorkAreaListener {
    std::function<void()> keyPressed = [] {};  ///< Before the key does anything.
    /// A line has its answer, and shows it: the whole line as it was, in UTF-8, and the answer, null where the line has
    /// no expression.
    std::function<void(std::string_view line, const Answer* answer)> evaluated = [](std::string_view, const Answer*) {};
    std::function<void(Point)> menuWanted = [](Point) {};  ///< At a point of the screen.
    /// Something could not be done, for the reason that is told.
    std::function<void(const std::wstring& reason)> refused = [](const std::wstring&) {};
    /// Before all else that a key does: whether it was meant for something else, and does nothing here.
    std::function<bool(const KeyEvent&)> takesKey = [](const KeyEvent&) { return false; };
    /// Before text goes in at the caret, typed or put in by a button.
    std::function<void(std::string_view text)> textComes = [](std::string_view) {};
    std::function<void(const MouseEvent&)> mouse = [](const MouseEvent&) {};
};

/// After an evaluation the result that it has carried on is fresh, until anything but typing happens at its end: the
/// text of an operand takes its place then, and any other goes on from it.
class WorkArea : public TextArea {
public:
    using FormatSource = std::function<NumericFormat()>;

    /// The private message that asks whether results replace the selection; the answer is non-zero when they do.
    /// A rich edit control has no message of this number.
    static const std::uint32_t resultReplaceQuery;

    /// An empty work area, whose results are written under what `format` gives at that time. Files that are dropped on
    /// it go to `parent`.
    WorkArea(WindowHandle parent, std::uint16_t command, std::vector<KeyCommand> keyCommands, FormatSource format,
             WorkAreaListener listener = {});

    std::string spokenName() const override { return "Work area"; }

    /// The sheet in the words and colours of its files, which in high contrast are not those on the screen.
    std::string sheetAsRichText() const;
    /// What is let through of a rich text on its way into the sheet, in the looks of the screen. Throws FileFault as
    /// cleanRichText does.
    std::string onScreen(std::string_view richText, std::uint64_t mostCost) {
        return shownIn(colors_, richText, mostCost);
    }
    /// Shows the sheet in the palette in force. What was done before can then not be undone.
    void takeColors();

    CurrentLine currentLine() const;
    /// The line that holds a position, with the selection as far as it lies there.
    CurrentLine lineAt(std::int32_t position) const;

    /// Prepares for text that is about to take the place of the selection: where it begins an operand, a fresh result
    /// is selected.
    void makeWayFor(std::wstring_view text);
    /// A command has been chosen: no result is fresh any longer.
    void endFreshness() { fresh_.reset(); }

    /// Types characters and presses keys of the system's numbers, as the keyboard would.
    void typeCharacters(std::string_view characters);
    void pressKey(std::uint32_t virtualKey);

    /// Puts text of another program in place of the selection, or of a fresh result, as one step for undo. It gets the
    /// style of what is typed, and the language's characters in place of those that stand for them; rich text that is
    /// wanted as such keeps its looks. What is too much, for the sheet or for the memory, is refused and changes
    /// nothing. All text that is pasted or dropped comes through here.
    void insertForeignText(const std::function<ForeignText()>& source, ForeignForm form);
    /// The same with the text on the clipboard.
    void paste();
    void pasteWithLooks();

    /// Whether the control's own text may be what is dropped on it: from the beginning of such a drag on, to its drop,
    /// or to a press of the mouse or the loss of the focus, without which no other drag begins.
    void beginDragging() { isDragging_ = true; }
    void endDragging() { isDragging_ = false; }
    bool isDragging() const { return isDragging_; }

    /// Copies the selection, in the colours of files, or cuts it out.
    void copy();
    void cut();

    /// Empties the work area, as one step for undo.
    void clear();

    /// Evaluates the line with the caret, as Enter does.
    void evaluate();
    /// Evaluates all lines that have a result, in place, as one step for undo; says what differs.
    Reevaluation evaluateAll();

    /// The lines that the selection touches, without the end of the last one. A line that ends the selection before its
    /// first character does not belong to them.
    Paragraph selectedLines() const;
    /// Adds a line and evaluates it as Enter does, as one step for undo. Below a line it takes the room of an empty
    /// one.
    void addLine(std::int32_t position, LinePlace place, const std::string& expression);

    /// Puts text before and after a range of `line`, whose characters stay as they are, and the caret at `caret`,
    /// an offset in the changed line. One step for undo.
    void surround(const CurrentLine& line, LineRange range, std::string_view before, std::string_view after,
                  std::size_t caret);
    /// Puts text in place of a range of `line`, and the caret as above. One step for undo.
    void replaceCharacters(const CurrentLine& line, LineRange range, std::string_view text, std::size_t caret);

protected:
    bool onKey(const KeyEvent& event) override;
    bool onCharacter(wchar_t character) override;
    bool onMouse(const MouseEvent& event) override;
    bool onFilesDropped(std::uintptr_t drop) override;
    bool onContextMenu(std::optional<Point> point) override;
    std::optional<std::intptr_t> onSimpleMessage(std::uint32_t message) override;
    void onOtherControl() override;

private:
    /// A result that has been carried on, and where it stands.
    struct CarriedResult {
        TextRange range;
        std::wstring text;
    };

    struct KeyRow;
    static const KeyRow keyRows[];

    CharacterStyle styleOf(TextStyle style) const;
    StyledRun runOf(const StyledText& piece) const;
    StyledRun normalRun(std::wstring text) const;
    std::string shownIn(ShownColors& colors, std::string_view richText, std::uint64_t mostCost) const;

    bool copyInColorsOfFiles();
    void evaluateIntoSelection();
    void insertPlainText(const ForeignText& text);
    bool insertRichText(const ForeignText& text);
    bool isFresh() const;
    TextRange placeFor(std::wstring_view text) const;

    /// Puts the caret at the start of the next line, which is made where there is none.
    void goToLineAfter(const Paragraph& line);
    bool writeResults(const std::vector<ResultEdit>& edits);
    std::optional<std::string> richTextWith(std::vector<ResultEdit> edits, TextRange range, std::string_view richText,
                                            LastLineEnd lastLineEnd) const;
    void apply(const Paragraph& line, const LineEdit& edit);

    ShownColors colors_;
    std::vector<KeyCommand> keyCommands_;
    FormatSource format_;
    WorkAreaListener listener_;
    bool resultReplaces_ = false;
    bool isDragging_ = false;
    bool keyIsDealtWith_ = false;  ///< What it would type is none of the text.
    std::optional<CarriedResult> fresh_;
    bool decimalKeyIsDown_ = false;  ///< That of the number pad, whose character comes next.
};

}  // namespace calquo
