// A small window with a caption, owned by another and open beside it: Tab and the marked letters walk among its
// widgets, Enter accepts, Escape closes.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "widgets/geometry.h"
#include "widgets/window.h"

struct tagMSG;

namespace calquo {

class DialogWindow : public Window {
public:
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

    /// Derived classes close the dialog in their destructors, while they can still receive its last messages, and
    /// forget their widgets in onGone(): their windows are gone by then.
    DialogWindow() = default;

    /// Shows a new window, or brings the open one to the front, which stays as it is. Raises InternalFault when the
    /// system refuses.
    WindowHandle open(const Creation& creation);

    /// Makes the widgets on the new window, and returns the size that shows them.
    virtual Size build() = 0;
    /// The same for the widgets that are there, in a scale that has changed.
    virtual Size rebuild() { return build(); }
    /// Enter, or the button that says the same.
    virtual void accept() { close(); }
    /// Any other widget tells something.
    virtual void onNotice(const Notification&) {}

    bool onCommand(const Notification& notification) override;
    bool onClose() override;
    bool onScaleChanged(int dotsPerInch, const Rectangle& suggested) override;
    /// Everything is painted anew.
    void onSystemColors() override;
    bool onFocusMove(WindowHandle control, bool backwards) override;
    std::optional<std::intptr_t> onSimpleMessage(std::uint32_t message) override;

private:
    void create(const Creation& creation);
    void moveOver(WindowHandle owner);
};

}  // namespace calquo
