// The base of every widget: a child window made from one of the system's classes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "widgets/widget_text.h"
#include "widgets/window.h"

namespace calquo {

class Component : public Window {
public:
    ~Component() override = default;
    /// The size in pixels that shows all of the widget.
    virtual Size preferredSize() const { return preferredSize_; }
    /// Takes over the scale in force: fonts, and the preferred size. Constructors do so, too.
    virtual void fitToScale() {}
    /// Places the widgets that stand on this one.
    virtual void layOut() {}
    /// A child window of the widget tells something.
    bool onCommand(const Notification& notification) override;
    /// Draws the widget into an area of `size` pixels from the context's origin.
    virtual void draw(DrawingContext context, Size size);
    virtual bool isChecked() const { return false; }
    virtual void setChecked(bool checked);
    /// Makes the window of a widget that was created without a parent, unless it has one; it shows if the widget has a
    /// rectangle. Raises InternalFault when the system refuses.
    virtual void makeWindow(WindowHandle parent);

    /// The widget that owns a window; null when none does.
    static Component* of(WindowHandle window);

    WindowHandle parent() const { return parent_; }
    std::uint16_t command() const { return command_; }

    /// The stored text: a label, and after a vertical bar the description that its tooltip shows.
    const std::string& text() const { return text_; }
    std::string_view label() const { return labelOf(text_); }
    /// Empty when the text has none.
    std::string_view description() const { return descriptionOf(text_); }
    /// What screen readers say in place of the window's text; empty where they are to say the text.
    virtual std::string spokenName() const { return spokenNameOf(text_, true); }

    /// Moves the window to a rectangle in the parent's client area, and shows it the first time.
    void moveTo(const Rectangle& rectangle);
    const Rectangle& rectangle() const { return rectangle_; }
    void show();
    void hide();
    void giveFocus();

protected:
    /// A window class of ours, made from one of the system's.
    struct WidgetClass {
        const wchar_t* name;
        SystemProcedure systemProcedure;  ///< Gets what the widget leaves to the system.
    };

    /// What a widget is created from.
    struct Creation {
        WindowHandle parent = nullptr;  ///< Null for a widget whose window is made later.
        std::uint16_t command = 0;      ///< The command identifier that its notifications carry.
        std::uint32_t style = 0;        ///< Beside child.
        std::string_view text;
        std::uint32_t extendedStyle = 0;
    };

    /// Registers `name` with the description of `systemClass`, but with our window procedure before the system's.
    /// `cursor` is a resource of the program, shown where the program has it. Raises InternalFault when the system
    /// refuses.
    static WidgetClass registerClass(const wchar_t* systemClass, const wchar_t* name, std::uint16_t cursor = 0);

    /// Creates the window, if there is a parent, without a size; raises InternalFault when the system refuses.
    Component(const WidgetClass& widgetClass, const Creation& creation);

    /// moveTo() has given the window another rectangle.
    virtual void onPlaced() {}
    bool onMouse(const MouseEvent& event) override;
    void onDescriptionWanted() override;
    void onDestroy() override;
    void onGone() override { tooltip_.reset(); }

    void setText(std::string_view text);
    void setPreferredSize(Size size) { preferredSize_ = size; }
    /// Adds the height of what drops down below the widget, which the system counts as the window's own.
    void setDropHeight(int height) { dropHeight_ = height; }
    /// Has the system's class write in `font`, which must outlive the widget.
    void showIn(FontHandle font);

private:
    void place(std::uint32_t flags) const;

    const wchar_t* className_;
    WindowStyle style_;
    WindowHandle parent_ = nullptr;
    std::uint16_t command_;
    std::string text_;
    Size preferredSize_;
    Rectangle rectangle_;
    bool placed_ = false;  ///< A widget is shown when it first gets its rectangle.
    int dropHeight_ = 0;
    WindowOwner tooltip_;
    bool annotated_ = false;  ///< The spoken name stands in an annotation of the window.
};

}  // namespace calquo
