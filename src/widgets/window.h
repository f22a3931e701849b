// The base of every window of the program. Its one window procedure leads the system's messages to the object that owns
// the window, keeps what they throw for the message loop, and turns them into calls with typed arguments.
#pragma once

#include <cstdint>
#include <optional>

#include "widgets/color.h"
#include "widgets/geometry.h"
#include "widgets/handles.h"
#include "widgets/screens.h"

struct tagWNDCLASSEXW;

namespace calquo {

/// What a control tells its parent, or a menu its window.
struct Notification {
    std::uint16_t command = 0;       ///< The identifier of the control or of the menu's entry.
    std::uint16_t code = 0;          ///< What has happened to a control.
    WindowHandle control = nullptr;  ///< Null for a menu.
};

enum class MouseAction : std::uint8_t { Move, Press, Release, CaptureLost };

struct MouseEvent {
    MouseAction action = MouseAction::Move;
    Point position;  ///< In the client area; without meaning when the capture is lost.
};

/// A turn of the mouse's wheel.
struct WheelEvent {
    Point position;  ///< Of the mouse on the screen.
    int delta = 0;   ///< 120 for each notch away from the user, negative towards the user.
};

/// A key that goes down or up, with the modifier keys held at that time.
struct KeyEvent {
    std::uint32_t key = 0;  ///< The system's virtual key.
    bool released = false;
    bool repeated = false;  ///< It was down already.
    bool system = false;    ///< The Alt key, F10, or any key pressed together with Alt.
    bool shift = false;
    bool control = false;
    bool alt = false;
};

enum class Activation : std::uint8_t { Inactive, Active, ByClick };

/// Which part of a window a point belongs to: some of the system's answers.
enum class HitArea : std::intptr_t { Client = 1, Caption = 2 };

/// What the user may make of a window's size.
struct SizeLimits {
    Rectangle maximized;  ///< From the upper left corner of the screen; also the largest size.
    std::optional<Size> smallest;
};

class Window {
public:
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    /// Destroys the window. Derived classes that are to be told call destroy() in their own destructors.
    virtual ~Window() { destroy(); }

    /// The object that owns a window; null for windows that are none of the program's.
    static Window* of(WindowHandle window);

    /// Null before the window is made and after its end.
    WindowHandle handle() const { return window_.get(); }

    /// The colour behind a child window; none for the system's own.
    virtual std::optional<Color> backgroundOf(WindowHandle) const { return std::nullopt; }

protected:
    using SystemProcedure = void (*)();  // a window procedure, stored without its types

    /// What a window is created from.
    struct Creation {
        const wchar_t* windowClass = nullptr;
        const wchar_t* title = L"";
        WindowStyle style;
        Rectangle rectangle;
        WindowHandle parent = nullptr;  ///< Or the owner of a top-level window.
        std::uint16_t command = 0;      ///< Of a child window.
    };

    /// `systemProcedure` gets what the window leaves to its class; none for the system's default.
    explicit Window(SystemProcedure systemProcedure = nullptr) : systemProcedure_(systemProcedure) {}

    /// Registers a window class with the one window procedure, unless that has been done. Raises InternalFault when the
    /// system refuses.
    static void registerClass(tagWNDCLASSEXW& description);

    /// Creates the window; raises what its creation throws, or InternalFault when the system refuses.
    void create(const Creation& creation);
    void destroy();
    /// Lets go of the window, which its class alone serves from now on, and takes over such a window in its place.
    WindowOwner detach();
    void attach(WindowOwner window);
    /// Lets go of the window, which lives on without a handle here until its owner's end.
    WindowOwner release() { return WindowOwner(window_.release()); }

    // What the system tells the window. An event is dealt with where the answer is true, or has a value; all others go
    // on to the window's class. What is dealt with may have ended the object.

    virtual void onCreate() {}
    /// The window is about to be destroyed, or is gone together with its children.
    virtual void onDestroy() {}
    virtual void onGone() {}
    /// A program that reads the screen, or one like it, is about to ask what the window is.
    virtual void onDescriptionWanted() {}
    virtual bool onClose() { return false; }
    /// Whether the system may end the session; it has then ended, or not. A critical end comes whatever the answer, and
    /// leaves no time for questions.
    virtual bool maySessionEnd(bool /*critical*/) { return true; }
    virtual void onSessionEnd(bool /*ends*/) {}

    /// The window is about to be placed; another rectangle may be given to it.
    virtual bool onPlacing(Rectangle& /*rectangle*/) { return false; }
    virtual bool onMoved() { return false; }
    /// The window is on a screen of another scale, for which the system suggests a rectangle.
    virtual bool onScaleChanged(int /*dotsPerInch*/, const Rectangle& /*suggested*/) { return false; }
    virtual std::optional<SizeLimits> sizeLimits() const { return std::nullopt; }
    virtual HitArea onHitTest(HitArea byClass) const { return byClass; }

    virtual void onActivation(Activation) {}
    /// The window that gets the focus in place of this one; null for this one.
    virtual WindowHandle focusTarget() const { return nullptr; }
    /// A dialog is to move the focus to `control` or, without one, to the next or previous of its controls.
    virtual bool onFocusMove(WindowHandle /*control*/, bool /*backwards*/) { return false; }

    virtual bool onKey(const KeyEvent&) { return false; }
    virtual bool onCharacter(wchar_t) { return false; }
    /// The system would open the window's menu for a key that was pressed alone.
    virtual bool onMenuKey() { return false; }
    virtual bool onMouse(const MouseEvent&) { return false; }
    /// The wheel is turned while any part of this top-level window has the focus, or the mouse over it.
    virtual bool onWheel(const WheelEvent&) { return false; }
    /// An entry of the window's system menu is chosen that the program has put there.
    virtual bool onSystemMenu(std::uint16_t /*command*/) { return false; }
    /// The context menu is wanted at a point of the screen, or without one by a key.
    virtual bool onContextMenu(std::optional<Point>) { return false; }
    /// A mouse button goes down in a child window or on the frame.
    virtual void onPressInside() {}
    virtual bool onTimer(std::uintptr_t /*timer*/) { return false; }
    virtual bool onCommand(const Notification&) { return false; }
    /// Files were dropped on the window; the system tells of them by `drop`.
    virtual bool onFilesDropped(std::uintptr_t /*drop*/) { return false; }
    /// A message of which the number alone counts: the dialog's question what a control is, a step of undo, pasting,
    /// the beginning of a composition by an input method, or one of the messages that mean something to windows of one
    /// class alone.
    virtual std::optional<std::intptr_t> onSimpleMessage(std::uint32_t /*message*/) { return std::nullopt; }

    virtual bool onPaint() { return false; }
    virtual bool onPaintBackground(DrawingContext) { return false; }
    virtual bool onPaintFrame() { return false; }
    /// A child window is to be drawn into an area of `size` pixels from the context's origin.
    virtual bool onDrawChild(WindowHandle /*child*/, DrawingContext, Size) { return false; }
    virtual std::optional<Color> textColorOf(WindowHandle /*child*/) const { return std::nullopt; }
    /// The system may have other colours than before, or high contrast; only top-level windows are told.
    virtual void onSystemColors() {}

    /// Tells `receiver` what its onCommand() is called with; it may destroy this window before the call returns.
    static void sendCommand(WindowHandle receiver, const Notification& notification);

    /// Gives a key to the top-level window of this one, in place of the window's class.
    void passToTopLevel(const KeyEvent& event) const;

private:
    struct Procedure;  // the window procedure, whose signature needs the system's types
    struct Message;
    using Result = std::optional<std::intptr_t>;

    Result dispatch(const Message& message);
    Result dispatchLife(const Message& message);
    Result dispatchPlacement(const Message& message);
    Result dispatchInput(const Message& message);
    Result dispatchPainting(const Message& message);

    Result takeKey(const Message& message);
    Result takeSystemCommand(const Message& message);
    Result takeMouse(MouseAction action, const Message& message);
    Result takeWheel(const Message& message) const;
    Result takeContextMenu(const Message& message);
    Result takePlace(const Message& message);
    Result takeSizeLimits(const Message& message) const;
    Result takeDrawing(const Message& message);
    Result colorsOfChild(const Message& message) const;

    std::intptr_t passToClass(const Message& message) const;
    /// Ends the tie to a window that the system is destroying, be it together with its parent.
    std::intptr_t forget(const Message& message);

    SystemProcedure systemProcedure_;
    WindowOwner window_;
};

}  // namespace calquo
