// The window about the program, and its picture, which is the program's icon.
#include "dialogs/about.h"

#include <algorithm>
#include <string>
#include <vector>

#include "values/program.h"
#include "widgets/label.h"
#include "widgets/push_button.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

// Lengths at 96 dots per inch.
constexpr int margin = 16;
constexpr int pictureSide = 64;
constexpr int besidePicture = 18;
constexpr int betweenLines = 5;
constexpr int betweenParagraphs = 12;

/// The program's icon on the ground of a dialog; a program without one gets the icon that the system gives it.
BitmapOwner paintIcon(int side) {
    const auto load = [side](HINSTANCE program, LPCWSTR name) {
        return static_cast<HICON>(LoadImageW(program, name, IMAGE_ICON, side, side, LR_DEFAULTCOLOR));
    };
    const HICON own = load(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(programIcon));
    const HICON icon = own != nullptr ? own : CopyIcon(LoadIconW(nullptr, IDI_APPLICATION));
    const HDC screen = GetDC(nullptr);
    BitmapOwner bitmap(CreateCompatibleBitmap(screen, side, side));
    const DrawingContextOwner context(CreateCompatibleDC(screen));
    ReleaseDC(nullptr, screen);
    const HGDIOBJ previous = SelectObject(context.get(), bitmap.get());
    const RECT area{0, 0, side, side};
    FillRect(context.get(), &area, GetSysColorBrush(COLOR_3DFACE));
    DrawIconEx(context.get(), 0, 0, icon, side, side, 0, nullptr, DI_NORMAL);
    SelectObject(context.get(), previous);
    DestroyIcon(icon);
    return bitmap;
}

}  // namespace

About::~About() { close(); }

WindowHandle About::open(WindowHandle parent) { return DialogWindow::open({L"CalquoAbout", "About Calquo 2", parent}); }

Size About::build() {
    panel_ = std::make_unique<Panel>(handle(), Panel::Creation{.holdsTabStops = true});
    constexpr std::uint16_t none = 0;
    const Rectangle picture{scaled(margin), scaled(margin), scaled(pictureSide), scaled(pictureSide)};
    picture_ = &panel_->add<BitMapImage>(none, paintIcon(picture.width));
    picture_->moveTo(picture);

    const int left = picture.left + picture.width + scaled(besidePicture);
    int top = picture.top;
    int right = left;
    const auto addLine = [&](Component& widget, int distance) {
        const Size size = widget.preferredSize();
        // Into the margin: some systems write a text a little longer than they measure it.
        widget.moveTo({left, top, size.width + scaled(margin) / 2, size.height});
        top += size.height + scaled(distance);
        right = std::max(right, left + size.width);
    };
    addLine(panel_->add<Label>(none, programName, headingFont), betweenLines);
    addLine(panel_->add<Label>(none, std::string("Version ") + programVersion), betweenParagraphs);
    addLine(panel_->add<Label>(none, "A scientific calculator in which you write as on paper:"), betweenLines);
    addLine(panel_->add<Label>(none, "what you type and what comes out stay in one text."), betweenParagraphs);
    addLine(panel_->add<Label>(none, makersSite), betweenParagraphs);

    const auto& button = panel_->add<PushButton>(closeCommand, "Close", PushButton::Look::Default);
    const Size size = button.preferredSize();
    top = std::max(top, picture.top + picture.height + scaled(betweenParagraphs));
    panel_->children().back()->moveTo({right - size.width, top, size.width, size.height});
    close_ = &button;
    const Size client{right + scaled(margin), top + size.height + scaled(margin)};
    panel_->moveTo({0, 0, client.width, client.height});
    return client;
}

void About::onGone() {
    picture_ = nullptr;
    close_ = nullptr;
    panel_.reset();
}

void About::onSystemColors() {
    if (picture_ != nullptr) {
        picture_->show(paintIcon(picture_->preferredSize().width));
    }
    DialogWindow::onSystemColors();
}

WindowHandle About::focusTarget() const { return close_ == nullptr ? nullptr : close_->handle(); }

}  // namespace calquo
