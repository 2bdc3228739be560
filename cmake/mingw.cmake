# Cross-compiling for Windows with Debian's mingw-w64, win32 thread model. The including file sets Triple.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${Triple}-gcc-win32)
set(CMAKE_CXX_COMPILER ${Triple}-g++-win32)
set(CMAKE_RC_COMPILER ${Triple}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${Triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
