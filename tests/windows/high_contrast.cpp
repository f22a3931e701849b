// Takes the place of the system's function in the table of those that this program imports.
#include "high_contrast.h"

#include "widgets/windows_api.h"

using Ask = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT);

// The entry of the table, by the linker's name for it.
#ifdef _WIN64
extern "C" Ask importedAsk __asm__("__imp_SystemParametersInfoW");
#else
extern "C" Ask importedAsk __asm__("__imp__SystemParametersInfoW@16");
#endif

namespace calquo {
namespace {

bool isOn = false;
Ask askSystem = nullptr;

BOOL WINAPI answer(UINT what, UINT size, PVOID data, UINT flags) {
    const BOOL answered = askSystem(what, size, data, flags);
    if (what == SPI_GETHIGHCONTRAST && isOn) {
        static_cast<HIGHCONTRASTW*>(data)->dwFlags |= HCF_HIGHCONTRASTON;
    }
    return answered;
}

}  // namespace

void HighContrast::setOn(bool on) {
    isOn = on;
    if (askSystem == nullptr) {
        DWORD protection = 0;
        VirtualProtect(&importedAsk, sizeof importedAsk, PAGE_READWRITE, &protection);
        askSystem = importedAsk;
        importedAsk = answer;
    }
}

HighContrast::HighContrast(const std::vector<std::pair<int, std::uint32_t>>& colors) {
    std::vector<COLORREF> values;
    for (const auto& [index, value] : colors) {
        indexes_.push_back(index);
        before_.push_back(GetSysColor(index));
        values.push_back(value);
    }
    setOn(true);
    SetSysColors(static_cast<int>(indexes_.size()), indexes_.data(), values.data());
}

HighContrast::~HighContrast() {
    setOn(false);
    SetSysColors(static_cast<int>(indexes_.size()), indexes_.data(), before_.data());
}

}  // namespace calquo
