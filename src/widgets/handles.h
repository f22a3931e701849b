// Owners of the system's handles. The types are declared here as the system's headers declare them, so that no header
// of ours includes those.
#pragma once

#include <utility>

struct HWND__;
struct HINSTANCE__;

namespace calquo {

using WindowHandle = HWND__*;
using ModuleHandle = HINSTANCE__*;

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

void destroyWindow(WindowHandle window);
void freeLibrary(ModuleHandle library);

using WindowOwner = HandleOwner<WindowHandle, destroyWindow>;
using LibraryOwner = HandleOwner<ModuleHandle, freeLibrary>;

}  // namespace calquo
