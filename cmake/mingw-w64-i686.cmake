# 32-bit Windows from Linux. The variant with POSIX threads is the one whose standard library is complete; all of it is
# linked in, so that nothing made here needs a library of the compiler's beside it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)
set(CMAKE_C_COMPILER i686-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)
# SQLite is no package for it: tools/windows_sqlite.sh makes it.
set(CMAKE_FIND_ROOT_PATH /usr/i686-w64-mingw32 ${CMAKE_CURRENT_LIST_DIR}/../build/windows-sqlite)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
foreach(kind IN ITEMS EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
endforeach()
# Programs run under Wine, with a Windows of their own inside the build folder.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine.sh ${CMAKE_BINARY_DIR}/wine)
