// The program's name, its version and its maker's site, which the build system holds, the title made of them, and the
// icon.
#pragma once

namespace calquo {

inline constexpr char programName[] = CALQUO_NAME;
inline constexpr char programVersion[] = CALQUO_VERSION;
/// "2.0" for version 2.0.1: the versions that share their settings and run one at a time.
inline constexpr char programSeries[] = CALQUO_SERIES;
inline constexpr char makersSite[] = CALQUO_SITE;
inline constexpr wchar_t wideProgramName[] = L"" CALQUO_NAME;

/// "Calquo 2.0 - calquo.example": the main window's title and class, and the name of a running program's mutex.
inline constexpr char programTitle[] = CALQUO_NAME " " CALQUO_SERIES " - " CALQUO_SITE;
inline constexpr wchar_t wideProgramTitle[] = L"" CALQUO_NAME " " CALQUO_SERIES " - " CALQUO_SITE;

/// The number of the icon among the program's resources.
inline constexpr int programIcon = 101;

}  // namespace calquo
