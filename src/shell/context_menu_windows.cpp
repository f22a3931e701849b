// The context menu as a menu of the system.
#include "shell/context_menu.h"

#include "values/errors.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

void append(HMENU menu, const ContextMenuEntry& entry) {
    const UINT state = entry.label.empty() ? MF_SEPARATOR : entry.isEnabled ? MF_STRING : MF_STRING | MF_GRAYED;
    if (AppendMenuW(menu, state, identifierOf(entry.command), wideText(entry.label).c_str()) == 0) {
        raise(ErrorCode::InternalFault);
    }
}

}  // namespace

void showContextMenu(WindowHandle owner, Point corner, const std::vector<ContextMenuEntry>& entries) {
    const MenuOwner menu(CreatePopupMenu());
    if (!menu) {
        raise(ErrorCode::InternalFault);
    }
    for (const ContextMenuEntry& entry : entries) {
        append(menu.get(), entry);
    }
    const UINT side = GetSystemMetrics(SM_MENUDROPALIGNMENT) != 0 ? TPM_RIGHTALIGN : TPM_LEFTALIGN;
    TrackPopupMenu(menu.get(), side | TPM_TOPALIGN | TPM_RIGHTBUTTON, corner.left, corner.top, 0, owner, nullptr);
}

}  // namespace calquo
