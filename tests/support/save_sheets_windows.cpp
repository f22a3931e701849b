// save_sheets FOLDER ENDING: saves two work areas as one.ENDING and two.ENDING in the folder, then one after the other
// as sheet.ENDING, over and over, until it is killed.
#include <string>

#include "format/numeric_format.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"
#include "workarea/work_area_file.h"

namespace {

using namespace calquo;

std::wstring sheetOf(const std::wstring& line) {
    std::wstring text;
    for (int lines = 0; lines < 500; ++lines) {
        text += line + L"\r";
    }
    return text;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        return 2;
    }
    const std::wstring folder = wideText(arguments[1]);
    const std::wstring ending = L"." + wideText(arguments[2]);
    const HWND window =
        CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW, 0, 0, 600, 400, nullptr, nullptr, nullptr, nullptr);
    WorkArea workArea(window, 1, {}, [] { return defaultFormats[0]; });
    workArea.moveTo({0, 0, 600, 400});
    WorkAreaFile file(workArea);
    const std::wstring sheets[] = {sheetOf(L"1/3 = 0.33333"), sheetOf(L"2 pi = 6.28319 \u221E")};
    const auto save = [&](int sheet, const wchar_t* name) {
        workArea.replaceContentByPlainText(sheets[sheet]);
        file.write(folder + L"\\" + name + ending);
    };
    save(0, L"one");
    save(1, L"two");
    for (int count = 0;; ++count) {
        save(count % 2, L"sheet");
    }
}
