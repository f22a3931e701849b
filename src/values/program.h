// The program's name, its version and its maker's site, and the title made of them. The build system holds them.
#pragma once

namespace calquo {

inline constexpr char programName[] = CALQUO_NAME;
inline constexpr char programVersion[] = CALQUO_VERSION;
inline constexpr char makersSite[] = CALQUO_SITE;

/// "Calquo 2.0 - calquo.example": the main window's title and class, and the name of a running program's mutex.
inline constexpr char programTitle[] = CALQUO_NAME " " CALQUO_VERSION " - " CALQUO_SITE;

}  // namespace calquo
