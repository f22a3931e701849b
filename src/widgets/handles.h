// Owners of the system's handles. The types are declared here as the system's headers declare them, so that no header
// of ours includes those.
#pragma once

#include <string>
#include <utility>

// NOLINTBEGIN(bugprone-reserved-identifier): the system's own names.
struct HBITMAP__;
struct HDC__;
struct HFONT__;
struct HINSTANCE__;
struct HMENU__;
struct HRGN__;
struct HWND__;
// NOLINTEND(bugprone-reserved-identifier)

namespace calquo {

using BitmapHandle = HBITMAP__*;
using DrawingContext = HDC__*;
using FontHandle = HFONT__*;
using MenuHandle = HMENU__*;
using ModuleHandle = HINSTANCE__*;
using RegionHandle = HRGN__*;
using WindowHandle = HWND__*;

/// Owns one handle and hands it to `dispose` at the end.
template <typename Handle, void (*dispose)(Handle)>
class HandleOwner {
public:
    HandleOwner() = default;
    explicit HandleOwner(Handle handle) : handle_(handle) {}
    HandleOwner(HandleOwner&& other) noexcept : handle_(other.release()) {}
    HandleOwner& operator=(HandleOwner&& other) noexcept {
        reset(other.release());
        return *this;
    }
    HandleOwner(const HandleOwner&) = delete;
    HandleOwner& operator=(const HandleOwner&) = delete;
    ~HandleOwner() { reset(); }

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }
    /// Gives the handle up without disposing of it.
    Handle release() { return std::exchange(handle_, nullptr); }
    void reset(Handle handle = nullptr) {
        const Handle old = std::exchange(handle_, handle);
        if (old != nullptr) {
            dispose(old);
        }
    }

private:
    Handle handle_ = nullptr;
};

void deleteBitmap(BitmapHandle bitmap);
void deleteDrawingContext(DrawingContext context);
void deleteFont(FontHandle font);
void deleteRegion(RegionHandle region);
void destroyMenu(MenuHandle menu);
void destroyWindow(WindowHandle window);
void freeLibrary(ModuleHandle library);

using BitmapOwner = HandleOwner<BitmapHandle, deleteBitmap>;
using DrawingContextOwner = HandleOwner<DrawingContext, deleteDrawingContext>;
using FontOwner = HandleOwner<FontHandle, deleteFont>;
using LibraryOwner = HandleOwner<ModuleHandle, freeLibrary>;
using MenuOwner = HandleOwner<MenuHandle, destroyMenu>;
using RegionOwner = HandleOwner<RegionHandle, deleteRegion>;
using WindowOwner = HandleOwner<WindowHandle, destroyWindow>;

/// The library of a full path; none when it cannot be loaded.
LibraryOwner loadLibraryAt(const std::wstring& path);

/// A library of the system's own, never one of that name that lies beside the program; none when it cannot be loaded.
LibraryOwner loadSystemLibrary(const wchar_t* name);

}  // namespace calquo
