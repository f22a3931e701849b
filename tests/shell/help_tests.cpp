// Where the program looks for the system's help control.
#include "shell/help.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace calquo {
namespace {

void anEntryPoint() {}

/// A system that has some libraries with some entry points, and notes what it is asked for.
struct StatedLibraries : HelpLibraries {
    std::optional<std::wstring> path;
    std::map<std::wstring, std::set<std::uint16_t>> ordinals;  ///< Of each library that loads.
    std::wstring asked{};

    std::optional<std::wstring> registeredPath() override {
        asked += L"registry;";
        return path;
    }
    ModuleHandle load(const std::wstring& name) override {
        asked += L"load " + name + L";";
        const auto library = ordinals.find(name);
        return library == ordinals.end() ? nullptr : reinterpret_cast<ModuleHandle>(&library->second);
    }
    EntryPoint entryPoint(ModuleHandle library, std::uint16_t ordinal) override {
        asked += L"ordinal " + std::to_wstring(ordinal) + L";";
        return reinterpret_cast<std::set<std::uint16_t>*>(library)->contains(ordinal) ? anEntryPoint : nullptr;
    }
};

TEST(HelpControl, IsLookedForOnceWhereItIsRegisteredThenByName) {
    struct Row {
        std::optional<std::wstring> path;
        std::map<std::wstring, std::set<std::uint16_t>> ordinals;
        std::uint16_t ordinal;
        std::wstring asked;
        bool found;
    };
    const Row rows[] = {
        {L"C:\\help.dll", {{L"C:\\help.dll", {14, 15}}}, 14, L"registry;load C:\\help.dll;ordinal 14;", true},
        {L"C:\\help.dll", {{L"C:\\help.dll", {14, 15}}}, 15, L"registry;load C:\\help.dll;ordinal 15;", true},
        {std::nullopt, {{L"hhctrl.ocx", {14}}}, 14, L"registry;load hhctrl.ocx;ordinal 14;", true},
        {L"C:\\gone.dll", {{L"hhctrl.ocx", {14}}}, 14, L"registry;load C:\\gone.dll;load hhctrl.ocx;ordinal 14;", true},
        {L"C:\\gone.dll", {}, 14, L"registry;load C:\\gone.dll;load hhctrl.ocx;", false},
        {std::nullopt, {}, 14, L"registry;load hhctrl.ocx;", false},
        {L"C:\\old.dll",
         {{L"C:\\old.dll", {15}}, {L"hhctrl.ocx", {14}}},
         14,
         L"registry;load C:\\old.dll;ordinal 14;",
         false},
    };
    for (const Row& row : rows) {
        StatedLibraries libraries;
        libraries.path = row.path;
        libraries.ordinals = row.ordinals;
        HelpEntryPoint entry(row.ordinal);
        EXPECT_EQ(entry.find(libraries), row.found ? anEntryPoint : nullptr) << "row " << &row - rows;
        EXPECT_EQ(libraries.asked, row.asked);

        // Not again, even where it would be found by now.
        libraries.ordinals = {{L"hhctrl.ocx", {14, 15}}};
        EXPECT_EQ(entry.find(libraries), row.found ? anEntryPoint : nullptr) << "row " << &row - rows;
        EXPECT_EQ(libraries.asked, row.asked) << "row " << &row - rows;
    }
}

}  // namespace
}  // namespace calquo
