// The whole main window for the tests, on settings in memory: commands, mouse presses, and what its parts look like.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/main_window.h"
#include "support/memory_storage.h"
#include "widgets/windows_api.h"

namespace calquo {

class Program {
public:
    /// A window on the settings that `stored` holds, whose user is asked by `dialogs`.
    explicit Program(MemoryStorage stored = {}, UserDialogs dialogs = systemDialogs(), StartFiles files = {});

    MainWindow& window() { return *window_; }
    HWND handle() const { return window_->handle(); }
    MemoryStorage& storage() { return storage_; }
    const Settings& settings() const { return settings_; }

    HWND workArea() const;
    std::wstring text() const;
    void setText(std::wstring_view text);
    void select(std::size_t begin, std::size_t end);
    std::size_t caret() const;

    void command(unsigned identifier);

    /// The child window of an identifier, wherever it stands; null when there is none.
    HWND child(unsigned identifier) const;
    /// The buttons of a panel, row by row.
    std::vector<HWND> buttonsOf(unsigned panel) const;
    /// Presses and releases the left mouse button in the middle of a window.
    static void click(HWND window);

    /// Sends a key's message to a window with `held` (or no key, 0) held. Menus that open are counted and closed.
    void press(HWND window, UINT message, WPARAM key, LPARAM details, int held = 0);
    static inline int menusOpened = 0;

    /// The place of a child in the client area.
    RECT placeOf(HWND child) const;
    RECT client() const;

    /// Serves the messages that wait.
    static void serveMessages();

    /// Closes the window as its user would.
    void close();

private:
    MemoryStorage storage_;
    Settings settings_;
    std::optional<MainWindow> window_;
};

}  // namespace calquo
