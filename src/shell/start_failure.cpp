// The texts for each reason, and what to do about it.
#include "shell/start_failure.h"

#include "values/program.h"

namespace calquo {
namespace {

const wchar_t* reasonOf(StartFailure failure) {
    switch (failure) {
        case StartFailure::NoMemory:
            return L"There is not enough memory.\nClose other programs and try again.";
        case StartFailure::NoTextControl:
            return L"Riched20.dll, the part of Windows that shows the text, cannot be loaded.\n"
                   L"Repair Windows, or ask whoever looks after this computer.";
        case StartFailure::NoWindow:
            break;
    }
    return L"Windows refuses to open the window.\nClose other programs and try again.";
}

}  // namespace

BoxText cannotStartBox(StartFailure failure) {
    return {BoxKind::Failure, wideProgramName, std::wstring(L"Calquo cannot start.\n\n") + reasonOf(failure)};
}

}  // namespace calquo
