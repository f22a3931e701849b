// The dialog in which a person edits the attributes of one output format, beside the work area.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/attribute_controls.h"
#include "dialogs/dialog_window.h"
#include "widgets/check_box.h"
#include "widgets/label.h"
#include "widgets/number_field.h"
#include "widgets/push_button.h"
#include "widgets/selector.h"

namespace calquo {

/// Reads and writes the word of a format where it is kept.
struct FormatAccess {
    std::function<NumericFormat()> read;
    std::function<void(NumericFormat)> write;
};

class FormatDialog : public DialogWindow {
public:
    FormatDialog() = default;
    ~FormatDialog() override;

    /// Opens the dialog on the word that `access` reaches, in the middle of `parent`, a window or a control. A dialog
    /// that is open already comes to the front and stays with the word it is about. Returns the dialog's window.
    WindowHandle open(WindowHandle parent, FormatAccess access);

protected:
    Size build() override;
    Size rebuild() override;
    void onGone() override;
    WindowHandle focusTarget() const override;
    /// Writes the values to the word and closes; when one cannot be written, says why and stays open.
    void accept() override;
    void onNotice(const Notification& notification) override;
    std::optional<Color> textColorOf(WindowHandle control) const override;

private:
    /// One of the three widgets, and the label that the first two have.
    struct Control {
        const Attribute* attribute = nullptr;
        std::unique_ptr<Label> label;
        std::unique_ptr<NumberField> field;
        std::unique_ptr<Selector> selector;
        std::unique_ptr<CheckBox> box;

        Component& widget() const;
    };

    /// What is wrong, and in which field.
    struct Fault {
        const Control* control = nullptr;
        std::string text;
    };

    Control makeControl(const Attribute& attribute, std::uint16_t command) const;
    Size arrange() const;
    int heightOfLongestMessage(int width) const;

    /// Takes the values of the controls over; the first that has none is the fault.
    Fault takeValues();
    /// The first value that its field is too narrow for.
    Fault findTooWide() const;
    void show(Fault fault);
    void showAt(Fault fault);

    FormatAccess access_;
    std::optional<WorkingValues> values_;
    std::vector<Control> controls_;
    std::unique_ptr<TextBlock> message_;
    std::unique_ptr<PushButton> ok_;
    std::unique_ptr<PushButton> cancel_;
    Fault fault_;
};

}  // namespace calquo
