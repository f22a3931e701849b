// save_sheets FOLDER ENDING: saves two work areas as one.ENDING and two.ENDING in the folder, then one after the other
// as sheet.ENDING, over and over, until it is killed.
#include <string>

#include "format/numeric_format.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"
#include "workarea/work_area_file.h"

namespace {

using namespace calquo;

struct Sheet {
    Sheet(HWND parent, const std::wstring& line)
        : workArea(parent, 1, 2, [] { return defaultFormats[0]; }), file(workArea) {
        workArea.moveTo({0, 0, 600, 400});
        std::wstring text;
        for (int lines = 0; lines < 500; ++lines) {
            text += line + L"\r";
        }
        workArea.replaceContentByPlainText(text);
    }

    WorkArea workArea;
    WorkAreaFile file;
};

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        return 2;
    }
    const std::wstring folder = wideText(arguments[1]);
    const std::wstring ending = L"." + wideText(arguments[2]);
    const HWND window =
        CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW, 0, 0, 600, 400, nullptr, nullptr, nullptr, nullptr);
    const Sheet one(window, L"1/3 = 0.33333");
    const Sheet two(window, L"2 pi = 6.28319 \u221E");
    one.file.write(folder + L"\\one" + ending);
    two.file.write(folder + L"\\two" + ending);
    for (;;) {
        one.file.write(folder + L"\\sheet" + ending);
        two.file.write(folder + L"\\sheet" + ending);
    }
}
