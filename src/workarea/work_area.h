// The work area: the text that is at once input, output and record. Enter evaluates the caret's line and writes the
// result into the text.
#pragma once

#include <cstdint>

#include "format/numeric_format.h"
#include "widgets/text_area.h"
#include "workarea/record.h"

namespace calquo {

class WorkArea : public TextArea {
public:
    /// The private message that asks whether results replace the selection; the answer is non-zero when they do.
    /// A rich edit control has no message of this number.
    static const std::uint32_t resultReplaceQuery;

    /// An empty work area. The F1 key sends `helpCommand` to `parent`.
    WorkArea(WindowHandle parent, std::uint16_t command, std::uint16_t helpCommand);

private:
    struct KeyRow;
    static const KeyRow keyRows[];

    bool hearKey(const KeyPress& press);
    std::optional<MessageAnswer> hearQuery(const Message& message) const;

    void evaluate();
    void evaluateIntoSelection();
    void askForHelp();

    void apply(const Paragraph& line, const LineEdit& edit);

    std::uint16_t helpCommand_;
    NumericFormat format_ = defaultFormats[static_cast<std::size_t>(FormatKind::Automatic)];
    bool resultReplaces_ = false;
};

}  // namespace calquo
