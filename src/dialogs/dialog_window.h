// A small window with a caption, owned by another and open beside it: Tab and the marked letters walk among its
// widgets, Enter accepts, Escape closes.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "widgets/color.h"
#include "widgets/component.h"
#include "widgets/geometry.h"
#include "widgets/handles.h"

struct tagMSG;

namespace calquo {

class DialogWindow {
public:
    DialogWindow(const DialogWindow&) = delete;
    DialogWindow& operator=(const DialogWindow&) = delete;

    /// Null while the dialog is closed.
    WindowHandle handle() const { return window_.get(); }

    void close();

    /// Offers a message that is about to be dispatched to the dialog that it is for; true when it has been dealt with.
    static bool takes(tagMSG& message);

protected:
    /// What a dialog's window is created from.
    struct Creation {
        const wchar_t* windowClass = nullptr;
        std::string_view title;
        WindowHandle owner = nullptr;  ///< Or a control in the owner, in the middle of which the dialog is to stand.
    };

    /// Of the buttons that accept and that close.
    static constexpr std::uint16_t acceptCommand = 1;
    static constexpr std::uint16_t closeCommand = 2;
    /// Free for the commands of other widgets, from here on.
    static constexpr std::uint16_t firstCommand = 100;

    DialogWindow() = default;
    /// The heirs close the dialog in their destructors, while they can still answer its last messages.
    virtual ~DialogWindow() = default;

    /// Shows a new window, or brings the open one to the front, which stays as it is. Raises InternalFault when the
    /// system refuses.
    WindowHandle open(const Creation& creation);

    /// Makes the widgets on the new window, and returns the size that shows them.
    virtual Size build() = 0;
    /// Forgets the widgets, whose windows are gone.
    virtual void forgetWidgets() = 0;
    /// The window that gets the focus when the dialog's own does.
    virtual WindowHandle focused() const = 0;
    /// Enter, or the button that says the same.
    virtual void accept() { close(); }
    /// A notification of any other widget.
    virtual void hearNotice(std::uint16_t command, std::uint16_t notice);
    /// The colour that a control's text differs in from the usual one.
    virtual std::optional<Color> textColorOf(WindowHandle control) const;

private:
    struct Procedure;  // the window procedure, whose signature needs the system's types

    void create(const Creation& creation);
    void place(Size client, WindowHandle owner);

    std::optional<MessageAnswer> hear(const Message& message);
    MessageAnswer hearCommand(const Message& message);
    MessageAnswer moveFocus(const Message& message);
    std::optional<MessageAnswer> chooseTextColor(const Message& message);

    WindowOwner window_;
};

}  // namespace calquo
