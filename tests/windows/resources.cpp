// Counts by the system's own lists, and by that of operator new.
#include "resources.h"

#include <cstring>

#include "support/allocations.h"
#include "widgets/windows_api.h"

// Needs <windows.h> before it.
#include <winternl.h>

namespace calquo {
namespace {

/// The table of drawing objects that the system shows to every process: the place of its address in the process
/// environment block, and the part of its entries that is read here. Wine keeps it too, but counts nothing itself.
constexpr std::size_t tablePlace = sizeof(void*) == 8 ? 0xF8 : 0x94;
constexpr std::size_t tableEntries = 65536;
constexpr std::size_t entryLength = 24;
constexpr std::size_t typePlace = 14;

const char* tableOfDrawingObjects() {
    using Query = NTSTATUS(NTAPI*)(HANDLE, PROCESSINFOCLASS, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryInformationProcess")));
    PROCESS_BASIC_INFORMATION process{};
    query(GetCurrentProcess(), ProcessBasicInformation, &process, sizeof process, nullptr);
    const char* table = nullptr;
    std::memcpy(&table, reinterpret_cast<const char*>(process.PebBaseAddress) + tablePlace, sizeof table);
    return table;
}

int usedTableEntries() {
    const char* const table = tableOfDrawingObjects();
    int used = 0;
    for (std::size_t entry = 0; entry < tableEntries; ++entry) {
        used += table[entry * entryLength + typePlace] != 0 ? 1 : 0;
    }
    return used;
}

int drawingObjects() {
    const DWORD told = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    return told != 0 ? static_cast<int>(told) : usedTableEntries();
}

BOOL CALLBACK countChild(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK countTopLevel(HWND window, LPARAM count) {
    EnumChildWindows(window, countChild, count);
    return countChild(window, count);
}

}  // namespace

Resources heldResources() {
    Resources held;
    held.drawingObjects = drawingObjects();
    held.allocations = allocationsHeld();
    EnumThreadWindows(GetCurrentThreadId(), countTopLevel, reinterpret_cast<LPARAM>(&held.windows));
    return held;
}

}  // namespace calquo
