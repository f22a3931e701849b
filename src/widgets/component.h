// The base of every widget: owns its child window, and hears the window's messages before the system's class does.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "widgets/geometry.h"
#include "widgets/handles.h"

namespace calquo {

/// A window message with its two parameters and its answer, as the system passes them.
struct Message {
    std::uint32_t code = 0;
    std::uintptr_t wide = 0;
    std::intptr_t extra = 0;
};
using MessageAnswer = std::intptr_t;

/// Hears a message first; without an answer the system's class gets it.
using MessageFilter = std::function<std::optional<MessageAnswer>(const Message&)>;

class Component {
public:
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;
    virtual ~Component();

    WindowHandle handle() const { return window_.get(); }
    WindowHandle parent() const { return parent_; }
    std::uint16_t command() const { return command_; }

    void giveFocus();

protected:
    /// What a child window is created from.
    struct Creation {
        WindowHandle parent = nullptr;
        std::uint16_t command = 0;  ///< The command identifier that its notifications carry.
        const wchar_t* systemClass = nullptr;
        std::uint32_t style = 0;  ///< Beside child and visible.
        std::uint32_t extendedStyle = 0;
    };

    /// Creates the window, empty and without a size; raises InternalFault when the system refuses.
    Component(const Creation& creation, MessageFilter filter);

    /// Moves the window to `place`, in pixels of the parent's client area.
    void moveTo(const Rectangle& place);

    /// Sends a message past the filter, straight to the system's class.
    MessageAnswer sendToSystemClass(const Message& message) const;

    /// Dots per inch of the screen that the window is on.
    int dotsPerInch() const;

private:
    using SystemProcedure = void (*)();  // a window procedure, stored without its types
    struct Procedure;                    // the window procedure, whose signature needs the system's types

    /// Ends the tie to a window that the system is destroying, be it together with its parent.
    MessageAnswer forgetWindow(const Message& message);

    MessageFilter filter_;
    WindowHandle parent_;
    std::uint16_t command_;
    SystemProcedure systemProcedure_ = nullptr;
    WindowOwner window_;
};

}  // namespace calquo
