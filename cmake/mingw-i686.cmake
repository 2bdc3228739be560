set(Triple i686-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR x86)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
