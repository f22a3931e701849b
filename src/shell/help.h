// The compiled help: the system's HTML Help control, looked for once, and the help file beside the program.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "widgets/handles.h"

namespace calquo {

/// A function of a library, to be cast to its real type.
using EntryPoint = void (*)();

/// What is asked of the system to find the control.
class HelpLibraries {
public:
    virtual ~HelpLibraries() = default;
    /// The path of the control's library as the registry has it; nothing when there is none.
    virtual std::optional<std::wstring> registeredPath() = 0;
    /// Loads a library, for the rest of the program's run; null when that fails.
    virtual ModuleHandle load(const std::wstring& path) = 0;
    /// The entry point of an ordinal, null when the library has none.
    virtual EntryPoint entryPoint(ModuleHandle library, std::uint16_t ordinal) = 0;
};

/// One of the control's entry points.
class HelpEntryPoint {
public:
    explicit HelpEntryPoint(std::uint16_t ordinal) : ordinal_(ordinal) {}

    /// The entry point, null when the system has no help. Searched for in the registered library, or in the one of the
    /// usual name when that is not registered or does not load; at the first call only, whatever it finds.
    EntryPoint find(HelpLibraries& libraries);

private:
    std::uint16_t ordinal_;
    std::optional<EntryPoint> found_;
};

/// The control's two functions: with texts in the system's code page, and in UTF-16.
inline constexpr std::uint16_t ansiHelpOrdinal = 14;
inline constexpr std::uint16_t wideHelpOrdinal = 15;

/// Shows the table of contents and the default topic of a help file; takes no data.
inline constexpr std::uint32_t displayTopic = 0;

class Help {
public:
    /// Gives a command of the control for a help file and returns the help's window, null when there is no help. Paths
    /// that the system's code page cannot express go to the function that takes UTF-16.
    WindowHandle open(WindowHandle owner, const std::wstring& file, std::uint32_t command, std::uintptr_t data);

private:
    HelpEntryPoint ansi_{ansiHelpOrdinal};
    HelpEntryPoint wide_{wideHelpOrdinal};
};

/// The full path of the help file in the folder of a program. The control looks for a bare name in the current folder.
std::wstring helpFileBeside(std::wstring_view program);

/// The help file of the running program.
std::wstring helpFile();

}  // namespace calquo
