// The interface by which the control asks what to do with data that is pasted into it or dropped on it.
#include "workarea/text_drop.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "widgets/kept_exception.h"
#include "widgets/windows_api.h"
#include "workarea/file_fault.h"
#include "workarea/work_area.h"

// The control's interfaces, for which the other files of the system need not wait.
#include <ole2.h>
#include <richole.h>

namespace calquo {
namespace {

/// As the system's headers give them, for which a library of theirs would be needed.
constexpr GUID unknownInterface{0x00000000, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID callbackInterface{0x00020D03, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

FORMATETC inMemory(std::uint32_t format) {
    return {static_cast<CLIPFORMAT>(format), nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

bool offers(IDataObject& data, std::uint32_t format) {
    FORMATETC wanted = inMemory(format);
    return data.QueryGetData(&wanted) == S_OK;
}

/// Data of one format, for as long as this lives.
class OfferedMemory {
public:
    OfferedMemory(IDataObject& data, std::uint32_t format) {
        FORMATETC wanted = inMemory(format);
        if (data.GetData(&wanted, &medium_) != S_OK || medium_.tymed != TYMED_HGLOBAL) {
            medium_ = {};
        }
    }
    OfferedMemory(const OfferedMemory&) = delete;
    OfferedMemory& operator=(const OfferedMemory&) = delete;
    ~OfferedMemory() {
        if (medium_.pUnkForRelease != nullptr) {
            medium_.pUnkForRelease->Release();
        } else if (medium_.hGlobal != nullptr) {
            GlobalFree(medium_.hGlobal);
        }
    }

    HGLOBAL get() const { return medium_.hGlobal; }

private:
    STGMEDIUM medium_{};
};

/// A copy of memory for somebody who frees it; null where there is none.
HGLOBAL copyOf(HGLOBAL memory) {
    const SIZE_T size = memory == nullptr ? 0 : GlobalSize(memory);
    const HGLOBAL copy = size == 0 ? nullptr : GlobalAlloc(GMEM_MOVEABLE, size);
    const void* const from = copy == nullptr ? nullptr : GlobalLock(memory);
    if (from != nullptr) {
        std::memcpy(GlobalLock(copy), from, size);
        GlobalUnlock(copy);
        GlobalUnlock(memory);
    }
    return copy;
}

class TextDrop final : public IRichEditOleCallback {
public:
    explicit TextDrop(WorkArea& workArea) : workArea_(workArea) {}

    STDMETHODIMP QueryInterface(REFIID wanted, void** found) override {
        const bool isKnown = IsEqualGUID(wanted, unknownInterface) || IsEqualGUID(wanted, callbackInterface);
        *found = isKnown ? this : nullptr;
        return isKnown ? (AddRef(), S_OK) : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++owners_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --owners_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

    // No objects in a sheet.
    STDMETHODIMP GetNewStorage(LPSTORAGE*) override { return E_NOTIMPL; }
    STDMETHODIMP QueryInsertObject(LPCLSID, LPSTORAGE, LONG) override { return E_FAIL; }
    STDMETHODIMP DeleteObject(LPOLEOBJECT) override { return S_OK; }
    STDMETHODIMP GetInPlaceContext(LPOLEINPLACEFRAME*, LPOLEINPLACEUIWINDOW*, LPOLEINPLACEFRAMEINFO) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP ShowContainerUI(BOOL) override { return E_NOTIMPL; }

    // As without this interface.
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP GetDragDropEffect(BOOL, DWORD, LPDWORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetContextMenu(WORD, LPOLEOBJECT, CHARRANGE*, HMENU*) override { return E_NOTIMPL; }
    STDMETHODIMP GetClipboardData(CHARRANGE*, DWORD operation, LPDATAOBJECT*) override {
        if (operation == RECO_DRAG) {
            workArea_.beginDragging();
        }
        return E_NOTIMPL;
    }

    /// Any answer but S_OK and a failure says that the data has been dealt with.
    STDMETHODIMP QueryAcceptData(LPDATAOBJECT data, CLIPFORMAT*, DWORD operation, BOOL isMeant, HGLOBAL) override {
        return keepingExceptions(E_FAIL, [&]() -> HRESULT {
            if (operation == RECO_DROP && isOwnText(*data)) {
                return S_OK;
            }
            if (isMeant != 0) {
                workArea_.endDragging();
                return take(*data, operation) ? S_FALSE : E_FAIL;
            }
            const bool isKnown =
                offers(*data, plainTextFormat()) || offers(*data, richTextFormat()) || offers(*data, CF_HDROP);
            return isKnown ? S_FALSE : E_FAIL;
        });
    }

private:
    ~TextDrop() = default;

    /// Whether the text that is dragged is the one that is selected, which then moves with its looks.
    bool isOwnText(IDataObject& data) const {
        if (!workArea_.isDragging()) {
            return false;
        }
        const OfferedMemory memory(data, plainTextFormat());
        std::u16string text;
        try {
            text =
                foreignText([&](std::uint32_t format) { return format == plainTextFormat() ? memory.get() : nullptr; },
                            ForeignForm::Plain)
                    .plain;
        } catch (const FileFault&) {
            return false;  // more than a sheet may have
        }
        std::erase(text, u'\n');
        const std::wstring selected = workArea_.charactersIn(workArea_.selection());
        return !text.empty() && std::equal(text.begin(), text.end(), selected.begin(), selected.end());
    }

    bool take(IDataObject& data, DWORD operation) {
        if (offers(data, CF_HDROP)) {
            const HGLOBAL files = copyOf(OfferedMemory(data, CF_HDROP).get());
            // Later, as the system does it: the other program waits here, and the user may be asked something.
            const bool isPosted = files != nullptr && PostMessageW(GetParent(workArea_.handle()), WM_DROPFILES,
                                                                   reinterpret_cast<WPARAM>(files), 0) != 0;
            if (!isPosted) {
                GlobalFree(files);
            }
            return isPosted;
        }
        const OfferedMemory plain(data, plainTextFormat());
        const OfferedMemory rich(data, richTextFormat());
        if (operation == RECO_DROP) {
            selectPlaceOfMouse();
        }
        workArea_.insertForeignText(
            [&] {
                return foreignText(
                    [&](std::uint32_t format) { return format == plainTextFormat() ? plain.get() : rich.get(); },
                    ForeignForm::Plain);
            },
            ForeignForm::Plain);
        return plain.get() != nullptr || rich.get() != nullptr;
    }

    void selectPlaceOfMouse() {
        POINT mouse{};
        RECT inside{};
        GetCursorPos(&mouse);
        ScreenToClient(workArea_.handle(), &mouse);
        GetClientRect(workArea_.handle(), &inside);
        if (PtInRect(&inside, mouse) != 0) {
            POINTL point{mouse.x, mouse.y};
            const auto place = static_cast<std::int32_t>(
                SendMessageW(workArea_.handle(), EM_CHARFROMPOS, 0, reinterpret_cast<LPARAM>(&point)));
            workArea_.select({place, place});
        }
    }

    WorkArea& workArea_;
    ULONG owners_ = 1;
};

}  // namespace

IRichEditOleCallback* newTextDrop(WorkArea& workArea) { return new TextDrop(workArea); }

void takeDroppedTextBy(WorkArea& workArea) {
    IRichEditOleCallback* const drop = newTextDrop(workArea);
    SendMessageW(workArea.handle(), EM_SETOLECALLBACK, 0, reinterpret_cast<LPARAM>(drop));
    drop->Release();  // the control is its owner now
}

}  // namespace calquo
