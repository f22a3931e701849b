// The rich edit control: styled text, changed in single undo steps, read and written in UTF-16 whatever the control's
// code page is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "widgets/color.h"
#include "widgets/component.h"

namespace calquo {

/// A stretch of the text, in UTF-16 units from its start; a line end counts as one.
struct TextRange {
    std::int32_t begin = 0;
    std::int32_t end = 0;

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// A line of the text as the user ended it, without its end.
struct Paragraph {
    TextRange range;
    std::wstring text;
};

/// How characters look.
struct CharacterStyle {
    std::uint32_t color = 0;  ///< Red in the lowest byte, then green, then blue.
    bool bold = false;

    friend bool operator==(const CharacterStyle&, const CharacterStyle&) = default;
};

/// A run of text in one style. Lines end with "\n".
struct StyledRun {
    std::wstring text;
    CharacterStyle style;
};

class TextArea : public Component {
public:
    /// Whether the control's library can be loaded.
    static bool isAvailable();

    /// An empty area on `paper`. What is typed looks like `normal`, wherever the caret stands. Raises InternalFault
    /// when the control is not to be had.
    TextArea(WindowHandle parent, std::uint16_t command, CharacterStyle normal, Color paper = white);

    void fitToScale() override;

    TextRange selection() const;
    bool hasSelection() const;
    void select(TextRange range);

    /// The paragraph that holds `position`. It is looked for around that position, so that the rest of the text costs
    /// nothing but the control's own search for a position.
    Paragraph paragraphAt(std::int32_t position) const;

    /// The upper left corner of a position's character in the window. As costly as any search for a position.
    Point pointOf(std::int32_t position) const;
    /// How high a line of normal text is.
    static int lineHeight();
    /// How far the text is scrolled.
    Point scrolled() const;
    void scrollTo(Point place);

    /// The characters of a range, line ends as "\r".
    std::wstring charactersIn(TextRange range) const;
    /// All characters, in the same way.
    std::wstring characters() const;

    /// Replaces a range by runs of text and puts the caret at `caret`, as one step for undo.
    void replace(TextRange range, const std::vector<StyledRun>& runs, std::int32_t caret);

    /// A range as rich text in UTF-8, in the control's own words; raises bad_alloc when memory runs out.
    std::string richTextIn(TextRange range);
    /// Replaces a range by rich text, as one step for undo. False, with the text as it was, when the control does not
    /// take it.
    bool replaceByRichText(TextRange range, std::string_view text);
    /// The same for the selection, and the caret goes after it.
    bool replaceSelectionByRichText(std::string_view text);

    /// Puts a line end in place of the selection, as one step for undo.
    void insertLineEnd();

    /// The whole text as rich text in UTF-8, in the control's own words; raises bad_alloc when memory runs out.
    std::string contentAsRichText() const;
    /// The whole text in UTF-16, line ends as "\r\n"; raises bad_alloc when memory runs out.
    std::wstring contentAsPlainText() const;

    bool isEmpty() const;
    /// How many times the text was found to have changed since it was asked before: equal numbers mean the same text.
    std::uint32_t revision();

    /// Puts a rich text, without an end of its last paragraph, in place of the whole text, and the caret after it, as
    /// one step for undo. False, with the text as it was, when the control does not take it.
    bool replaceContentByRichText(std::string_view text);
    /// The same for plain text, which looks normal and whose line ends are "\r".
    bool replaceContentByPlainText(std::wstring_view text);

    /// Changes how the text looks: `text` is what it says, as rich text in its new looks. The selection stays and
    /// nothing counts as changed, but no step can be undone any more, which would bring the old looks back. False, with
    /// all as it was, when the control does not take the text.
    bool changeLooks(CharacterStyle normal, Color paper, std::string_view text);

    /// Puts a rich text, which may be as long as it likes, in place of the whole text, selects a range of it and shows
    /// as much of it as was shown before. One step for undo, which is as quick, because the control with the old
    /// text is kept and shown again. False, with the text as it was, when a control does not take it.
    bool exchangeContent(std::string_view richText, TextRange selected);

    bool canUndo() const;
    bool canRedo() const;
    /// Whether the clipboard holds something that could be pasted.
    bool canPaste() const;
    void undo();
    void redo();
    /// The selection goes to the clipboard, as the control does it; what it holds takes the selection's place.
    void cut();
    void copy();
    /// Takes out what is selected, as one step for undo.
    void deleteSelection();
    void selectAll();

    /// The position nearest to a point of the screen, and the point below the caret.
    std::int32_t positionOnScreen(Point screen) const;
    Point pointBelowCaret() const;

    /// Leaves nothing to undo or redo.
    void forgetSteps();

protected:
    /// The font of all styles, and its size.
    const std::wstring& fontName() const { return fontName_; }
    static int fontHalfPoints();

    /// Another control shows the text from now on; its settings must be made again.
    virtual void onOtherControl() {}
    /// Keeps a margin around the text.
    void onPlaced() override;
    bool onKey(const KeyEvent& event) override;
    bool onCharacter(wchar_t character) override;
    std::optional<std::intptr_t> onSimpleMessage(std::uint32_t message) override;

private:
    /// A control that takes the place of the shown one in one step, as long as that shows the text of this hash.
    struct HiddenControl {
        WindowOwner window;
        std::size_t shownText;
    };
    /// In the order in which they came to be hidden.
    using HiddenControls = std::vector<HiddenControl>;

    /// The control's library knows the one control under two names: as "RichEdit20A" it speaks the code page, and would
    /// make an 8 of an infinity sign; as "RichEdit20W" it speaks UTF-16. Here the first name stands for the second
    /// behaviour.
    static const WidgetClass& widgetClass();

    void setUp();
    void chooseLook();
    bool fill(std::string_view richText);
    WindowOwner giveUpControl();
    void makeHiddenControlLike(WindowHandle other);
    void showInPlaceOf(WindowHandle other);
    std::size_t hashOfText() const;
    bool isNext(const HiddenControls& controls) const;
    void takeNext(HiddenControls& from, HiddenControls& to);
    void forgetOldest();
    std::optional<std::intptr_t> stepBetweenControls(std::uint32_t message);
    bool typeInNormalStyle(wchar_t character);
    void makeEmptyParagraphPlain(std::int32_t caret);
    /// `begin` is written before the runs.
    std::string richText(const std::vector<StyledRun>& runs, std::string begin = {}) const;
    bool streamIn(std::string_view bytes, std::uint32_t format);
    bool streamIntoSelection(std::string_view bytes, std::uint32_t format);

    std::string streamOut(std::uint32_t format) const;
    bool replaceContent(std::string_view bytes, std::uint32_t format);
    bool givesNormalStyle();

    CharacterStyle normal_;
    Color paper_;
    std::wstring fontName_;
    HiddenControls earlier_, later_;
    bool hadOwnRedo_ = false;  ///< The shown control, when it was shown again.
    std::uint32_t revision_ = 0;
    bool hasGoneBack_ = false;  ///< By undo or redo, which the control's modified flag does not show.
};

}  // namespace calquo
