// The only include of the system's headers, with the defines they need. Only files named *_windows.cpp use it.
#pragma once

#ifndef UNICODE
#define UNICODE
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif

#include <windows.h>
// Need <windows.h> before them.
#include <commctrl.h>
#include <richedit.h>
