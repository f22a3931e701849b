// The program's top-level window, which the work area fills.
#pragma once

#include <memory>
#include <optional>

#include "widgets/component.h"
#include "workarea/work_area.h"

namespace calquo {

class MainWindow {
public:
    /// Creates the window, not yet shown. Raises InternalFault when the system refuses.
    MainWindow();
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow();

    WindowHandle handle() const { return window_.get(); }
    /// Shows the window as the program's starter asks for it, `showCommand`, with the focus in the work area.
    void show(int showCommand);

private:
    struct Procedure;  // the window procedure, whose signature needs the system's types
    struct MessageRow;
    static const MessageRow messageRows[];

    std::optional<MessageAnswer> hear(const Message& message);
    MessageAnswer sizeChanged(const Message& message);
    MessageAnswer giveFocus(const Message& message);
    MessageAnswer endProgram(const Message& message);
    MessageAnswer forgetWindow(const Message& message);

    void layOut();

    WindowOwner window_;
    std::unique_ptr<WorkArea> workArea_;
};

}  // namespace calquo
