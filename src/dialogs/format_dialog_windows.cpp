// The format dialog's window: its controls, and what happens when its user has done with them.
#include "dialogs/format_dialog.h"

#include <algorithm>
#include <utility>

#include "dialogs/form_layout.h"
#include "values/errors.h"
#include "widgets/fonts.h"
#include "widgets/system_colors.h"
#include "widgets/toolkit.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// The range of a number, for the tooltip: "A whole number from 2 to 8".
std::string hintOf(const Attribute& attribute) {
    std::string hint = rangeInWords(attribute);
    hint.front() = 'A';
    return hint;
}

}  // namespace

FormatDialog::~FormatDialog() { close(); }

WindowHandle FormatDialog::open(WindowHandle parent, FormatAccess access) {
    if (handle() == nullptr) {
        access_ = std::move(access);
        values_.emplace(access_.read());
    }
    const std::uint32_t kind = getField(access_.read(), field::kind);
    return DialogWindow::open({L"Format", formatKinds[kind].title, parent});
}

Component& FormatDialog::Control::widget() const {
    if (field != nullptr) {
        return *field;
    }
    return selector != nullptr ? static_cast<Component&>(*selector) : *box;
}

FormatDialog::Control FormatDialog::makeControl(const Attribute& attribute, std::uint16_t command) const {
    Control control;
    control.attribute = &attribute;
    if (attribute.control != AttributeControl::CheckBox) {
        control.label = std::make_unique<Label>(handle(), std::uint16_t{0}, attribute.label);
    }
    const std::uint32_t value = values_->get(attribute);
    switch (attribute.control) {
        case AttributeControl::NumberField:
            control.field = std::make_unique<NumberField>(handle(), command, value, hintOf(attribute));
            break;
        case AttributeControl::Selector:
            control.selector =
                std::make_unique<Selector>(handle(), command, Selector::Look::ComboBox, truncationMethods);
            control.selector->select(static_cast<int>(value));
            break;
        case AttributeControl::CheckBox:
            control.box = std::make_unique<CheckBox>(handle(), command, attribute.label);
            control.box->setChecked(value != 0);
            break;
    }
    return control;
}

Size FormatDialog::build() {
    const auto kind = static_cast<FormatKind>(getField(access_.read(), field::kind));
    std::uint16_t command = firstCommand;
    for (const Attribute* const attribute : attributesOf(kind)) {
        controls_.push_back(makeControl(*attribute, command++));
    }
    message_ = std::make_unique<TextBlock>(handle(), std::uint16_t{0}, "");
    ok_ = std::make_unique<PushButton>(handle(), acceptCommand, "Ok", PushButton::Look::Default);
    cancel_ = std::make_unique<PushButton>(handle(), closeCommand, "Cancel", PushButton::Look::Plain);
    return arrange();
}

Size FormatDialog::rebuild() {
    for (const Control& control : controls_) {
        if (control.label != nullptr) {
            control.label->fitToScale();
        }
        control.widget().fitToScale();
    }
    message_->fitToScale();
    ok_->fitToScale();
    cancel_->fitToScale();
    return arrange();
}

Size FormatDialog::arrange() const {
    FormParts parts;
    for (const Control& control : controls_) {
        const Size label = control.label == nullptr ? Size{} : control.label->preferredSize();
        parts.rows.push_back({label, control.widget().preferredSize()});
    }
    parts.buttons = {ok_->preferredSize(), cancel_->preferredSize()};
    parts.dotsPerInch = scale();

    const FormLayout layout = layOutForm(parts, heightOfLongestMessage(formWidth(parts)));
    for (std::size_t index = 0; index < controls_.size(); ++index) {
        const Control& control = controls_[index];
        if (control.label != nullptr) {
            control.label->moveTo(layout.labels[index]);
        }
        control.widget().moveTo(layout.controls[index]);
    }
    message_->moveTo(layout.message);
    ok_->moveTo(layout.buttons[0]);
    cancel_->moveTo(layout.buttons[1]);
    return layout.client;
}

int FormatDialog::heightOfLongestMessage(int width) const {
    int height = 0;
    for (const Control& control : controls_) {
        if (control.field != nullptr) {
            const Attribute& attribute = *control.attribute;
            for (const std::string& text :
                 {readNumber(attribute, "").fault, widthFault(attribute, attribute.range.largest)}) {
                height = std::max(height, brokenHeight(textFont(), wideText(text), width));
            }
        }
    }
    return height;
}

void FormatDialog::onGone() {
    fault_ = {};
    controls_.clear();
    message_.reset();
    ok_.reset();
    cancel_.reset();
}

WindowHandle FormatDialog::focusTarget() const { return cancel_ == nullptr ? nullptr : cancel_->handle(); }

FormatDialog::Fault FormatDialog::takeValues() {
    Fault first;
    for (const Control& control : controls_) {
        const Attribute& attribute = *control.attribute;
        if (control.box != nullptr) {
            values_->set(attribute, control.box->isChecked() ? 1 : 0);
        } else if (control.selector != nullptr) {
            values_->set(attribute, static_cast<std::uint32_t>(control.selector->selected()));
        } else {
            TypedNumber read = readNumber(attribute, control.field->typed());
            if (read.value) {
                values_->set(attribute, *read.value);
            } else if (first.control == nullptr) {
                first = {&control, std::move(read.fault)};
            }
        }
    }
    return first;
}

FormatDialog::Fault FormatDialog::findTooWide() const {
    for (const Control& control : controls_) {
        const std::string text = widthFault(*control.attribute, values_->get(*control.attribute));
        if (!text.empty()) {
            return {&control, text};
        }
    }
    return {};
}

void FormatDialog::accept() {
    const Fault fault = takeValues();
    if (fault.control != nullptr) {
        showAt(fault);
        return;
    }
    NumericFormat word = access_.read();
    try {
        values_->applyTo(word);
    } catch (const Except&) {
        access_.write(word);
        showAt(findTooWide());
        return;
    }
    access_.write(word);
    close();
}

void FormatDialog::onNotice(const Notification& notification) {
    // The fields notify while they are made, too.
    if (notification.code == NumberField::changeNotice && message_ != nullptr) {
        show(takeValues());
    }
}

void FormatDialog::show(Fault fault) {
    for (const Control* const control : {fault_.control, fault.control}) {
        if (control != nullptr) {
            InvalidateRect(control->widget().handle(), nullptr, TRUE);
        }
    }
    if (fault.text != fault_.text) {
        message_->write(fault.text);
    }
    fault_ = std::move(fault);
}

void FormatDialog::showAt(Fault fault) {
    const Control* const control = fault.control;
    show(std::move(fault));
    if (control != nullptr && control->field != nullptr) {
        control->field->giveFocus();
        control->field->selectAll();
    }
}

std::optional<Color> FormatDialog::textColorOf(WindowHandle control) const {
    const bool isFaulty = fault_.control != nullptr && control == fault_.control->widget().handle();
    const bool isMessage = message_ != nullptr && control == message_->handle();
    return isFaulty || isMessage ? std::optional(palette().fault) : std::nullopt;
}

}  // namespace calquo
