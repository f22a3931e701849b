// The base of every widget: owns its child window, and hears the window's messages before the system's class does.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "widgets/geometry.h"
#include "widgets/handles.h"

namespace calquo {

/// A window message with its two parameters and its answer, as the system passes them.
struct Message {
    std::uint32_t code = 0;
    std::uintptr_t wordParameter = 0;
    std::intptr_t longParameter = 0;
};
using MessageAnswer = std::intptr_t;

/// Hears a message first; without an answer the system's class gets it.
using MessageFilter = std::function<std::optional<MessageAnswer>(const Message&)>;

class Component {
public:
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;

    virtual ~Component();
    /// The size in pixels that shows all of the widget.
    virtual Size preferredSize() const { return preferredSize_; }
    /// Places the widgets that stand on this one.
    virtual void layOut() {}
    /// Hears the notification of a child window, WM_COMMAND; without an answer the system's class gets it.
    virtual std::optional<MessageAnswer> hearChildCommand(const Message& message);
    /// Draws the widget into an area of `size` pixels from the context's origin.
    virtual void draw(DrawingContext context, Size size);
    virtual bool isChecked() const { return false; }
    virtual void setChecked(bool checked);

    /// The widget that owns a window; null when none does.
    static Component* of(WindowHandle window);

    WindowHandle handle() const { return window_.get(); }
    WindowHandle parent() const { return parent_; }
    std::uint16_t command() const { return command_; }

    /// The stored text: a label, and behind a vertical bar the description that its tooltip shows.
    const std::string& text() const { return text_; }
    std::string_view label() const;
    /// Empty when the text has none.
    std::string_view description() const;

    /// Moves the window to `place`, in pixels of the parent's client area, and shows it the first time.
    void moveTo(const Rectangle& place);
    const Rectangle& place() const { return place_; }
    void show();
    void hide();
    void giveFocus();

    /// Dots per inch of the screen that the window is on.
    int dotsPerInch() const;

protected:
    using SystemProcedure = void (*)();  // a window procedure, stored without its types

    /// A window class of ours, made from one of the system's.
    struct WidgetClass {
        const wchar_t* name;
        SystemProcedure systemProcedure;  ///< Gets what the widget leaves to the system.
    };

    /// What a child window is created from.
    struct Creation {
        WindowHandle parent = nullptr;
        std::uint16_t command = 0;  ///< The command identifier that its notifications carry.
        std::uint32_t style = 0;    ///< Beside child.
        std::string_view text;
        std::uint32_t extendedStyle = 0;
    };

    /// Registers `name` with the description of `systemClass`, but with the widgets' window procedure in front of the
    /// system's. `cursor` is a resource of the program, shown where the program has it. Raises InternalFault
    /// when the system refuses.
    static WidgetClass registerClass(const wchar_t* systemClass, const wchar_t* name, std::uint16_t cursor = 0);

    /// Creates the window, without a size; raises InternalFault when the system refuses. `filter` hears the messages
    /// that follow the creation.
    Component(const WidgetClass& widgetClass, const Creation& creation, MessageFilter filter);

    /// Destroys the window and those that stand on it. For the destructors: no filter hears of it.
    void destroy();

    void setText(std::string_view text);
    void setPreferredSize(Size size) { preferredSize_ = size; }
    /// Adds the height of what drops down below the widget, which the system counts as the window's own.
    void setDropHeight(int height) { dropHeight_ = height; }
    /// Has the system's class write in `font`, which must outlive the widget.
    void showIn(FontHandle font);

    /// Sends a message past the filter, straight to the system's class.
    MessageAnswer sendToSystemClass(const Message& message) const;

private:
    struct Procedure;  // the window procedure, whose signature needs the system's types

    std::optional<MessageAnswer> hear(const Message& message);
    /// Ends the tie to a window that the system is destroying, be it together with its parent.
    MessageAnswer forgetWindow(const Message& message);

    MessageFilter filter_;
    WindowHandle parent_;
    std::uint16_t command_;
    SystemProcedure systemProcedure_;
    std::string text_;
    Size preferredSize_;
    Rectangle place_;
    bool placed_ = false;  ///< A widget is shown when it first gets its place.
    int dropHeight_ = 0;
    WindowOwner window_;
    WindowOwner tooltip_;
};

}  // namespace calquo
