# Compiles for Windows with Debian's mingw-w64; CALQUO_WINDOWS says for which: win64 or win32.
set(CALQUO_WINDOWS "win64" CACHE STRING "Windows of 64 or of 32 bits: win64 or win32")
# The compiler checks run in projects of their own, which read this file again.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CALQUO_WINDOWS)

if(CALQUO_WINDOWS STREQUAL "win64")
    set(CMAKE_SYSTEM_PROCESSOR x86_64)
elseif(CALQUO_WINDOWS STREQUAL "win32")
    set(CMAKE_SYSTEM_PROCESSOR i686)
else()
    message(FATAL_ERROR "CALQUO_WINDOWS is \"${CALQUO_WINDOWS}\"; it must be win64 or win32")
endif()

set(CMAKE_SYSTEM_NAME Windows)
set(tools ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
# The "-win32" compilers beside the "-posix" ones lack std::mutex and std::thread.
set(CMAKE_C_COMPILER ${tools}-gcc-posix)  # GoogleTest asks for one
set(CMAKE_CXX_COMPILER ${tools}-g++-posix)
set(CMAKE_RC_COMPILER ${tools}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${tools})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# No DLL stands beside the programs, and no time of the build within, so that the same sources give the same bytes.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")

# Runs what was built: Wine in a prefix of this project's own.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../script/wine ${CALQUO_WINDOWS})
