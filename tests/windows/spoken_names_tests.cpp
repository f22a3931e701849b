// What a screen reader gets for the windows' names: a manager of annotations stands in for the system's.
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>

#include "program.h"

// Need the system's headers before them.
#include <initguid.h>
#include <ole2.h>
#include <oleacc.h>

namespace calquo {
namespace {

using Names = std::map<HWND, std::wstring>;

/// The manager of annotations and its factory in one, which nobody frees. It refuses where it is told to.
class FakeManager : public IAccPropServices, public IClassFactory {
public:
    Names names;
    HRESULT answer = S_OK;

    HRESULT WINAPI QueryInterface(REFIID wanted, void** found) override {
        *found = wanted == IID_IAccPropServices ? static_cast<void*>(static_cast<IAccPropServices*>(this))
                                                : static_cast<IClassFactory*>(this);
        return S_OK;
    }
    ULONG WINAPI AddRef() override { return 1; }
    ULONG WINAPI Release() override { return 1; }
    HRESULT WINAPI CreateInstance(IUnknown*, REFIID wanted, void** made) override {
        return QueryInterface(wanted, made);
    }
    HRESULT WINAPI LockServer(BOOL) override { return S_OK; }

    HRESULT WINAPI SetHwndPropStr(HWND window, DWORD object, DWORD child, MSAAPROPID property, LPCWSTR name) override {
        EXPECT_TRUE(object == static_cast<DWORD>(OBJID_CLIENT) && child == CHILDID_SELF && property == PROPID_ACC_NAME);
        if (SUCCEEDED(answer)) {
            names[window] = name;
        }
        return answer;
    }
    HRESULT WINAPI ClearHwndProps(HWND window, DWORD, DWORD, const MSAAPROPID*, int) override {
        EXPECT_EQ(names.erase(window), 1u) << "was not annotated";
        return S_OK;
    }

    // The program has no use for the rest.
    HRESULT WINAPI SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    HRESULT WINAPI SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override {
        return E_NOTIMPL;
    }
    HRESULT WINAPI ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHwndProp(HWND, DWORD, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override {
        return E_NOTIMPL;
    }
    HRESULT WINAPI ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override {
        return E_NOTIMPL;
    }
    HRESULT WINAPI ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    HRESULT WINAPI ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override { return E_NOTIMPL; }
};

FakeManager& fakeManager() {
    // From here on the process finds it in place of the system's.
    static FakeManager* const manager = [] {
        auto* const made = new FakeManager;
        DWORD registration = 0;
        CoInitialize(nullptr);
        EXPECT_EQ(CoRegisterClassObject(CLSID_AccPropServices, static_cast<IClassFactory*>(made), CLSCTX_INPROC_SERVER,
                                        REGCLS_MULTIPLEUSE, &registration),
                  S_OK);
        return made;
    }();
    return *manager;
}

/// Asks for the window as screen readers do; what they are told by an annotation, empty for nothing.
std::wstring spokenNameOf(HWND window) {
    SendMessageW(window, WM_GETOBJECT, 0, OBJID_CLIENT);
    const Names& names = fakeManager().names;
    const auto found = names.find(window);
    return found == names.end() ? L"" : found->second;
}

std::wstring textOf(HWND window) {
    std::array<wchar_t, 100> text{};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

constexpr unsigned leftCaption = 0x9011, rightCaption = 0x9012, operators = 0xA114, powers = 0xA331;

TEST(SpokenNames, AreGivenToWindowsThatAreAskedAndTakenBackAtTheirEnd) {
    const Names& names = fakeManager().names;
    Program program;
    program.command(operators);
    program.command(powers);
    EXPECT_TRUE(names.empty()) << "at the price of every start";
    struct Row {
        unsigned panel;
        std::size_t button;
        const wchar_t *name, *text;
    };
    const Row rows[] = {
        {leftCaption, 0, L"Main menu", L"O"},
        {leftCaption, 2, L"Help", L"?"},
        {rightCaption, 1, L"Maximize the window", L"M"},
        {operators, 0, L"Addition operator", L"+"},
        {operators, 17, L"Space", L""},
        {powers, 9, L"sqrt, Square root of a value", L"sqrt"},
    };
    for (const Row& row : rows) {
        const HWND button = program.buttonsOf(row.panel).at(row.button);
        EXPECT_EQ(spokenNameOf(button), row.name);
        EXPECT_EQ(textOf(button), row.text) << "the text changes for others";
    }
    EXPECT_EQ(spokenNameOf(program.child(powers)), L"Mathematics, Exponential functions");
    EXPECT_EQ(spokenNameOf(program.workArea()), L"Work area");

    ShowWindow(program.handle(), SW_MAXIMIZE);
    EXPECT_EQ(names.at(program.buttonsOf(rightCaption).at(1)), L"Restore the window");
    const std::size_t before = names.size();
    program.command(powers);
    EXPECT_EQ(names.size(), before - 2);
    program.close();
    EXPECT_TRUE(names.empty());
}

TEST(SpokenNames, AreTheTextsWhereTheSystemRefusesAnnotations) {
    FakeManager& manager = fakeManager();
    manager.answer = E_FAIL;
    Program program;
    EXPECT_EQ(spokenNameOf(program.buttonsOf(leftCaption).front()), L"");
    manager.answer = S_OK;
    EXPECT_EQ(spokenNameOf(program.buttonsOf(leftCaption).front()), L"Main menu") << "is not tried again";
}

}  // namespace
}  // namespace calquo
