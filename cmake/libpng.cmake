# Makes the target PNG::PNG, static and with zlib: cross-compiled from Debian's source package by scripts/deps.sh, or,
# in an MSYS2 shell on Windows, the one that pacman installed.
if(CMAKE_CROSSCOMPILING)
    execute_process(
        COMMAND ${CMAKE_SOURCE_DIR}/scripts/deps.sh ${Triple}
        OUTPUT_VARIABLE LibpngFolder OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    add_library(PNG::PNG STATIC IMPORTED)
    set_target_properties(PNG::PNG PROPERTIES
        IMPORTED_LOCATION ${LibpngFolder}/lib/libpng.a
        INTERFACE_INCLUDE_DIRECTORIES ${LibpngFolder}/include
        INTERFACE_LINK_LIBRARIES ${ZlibArchive})
else()
    set(CMAKE_FIND_LIBRARY_SUFFIXES .a)
    find_package(PNG REQUIRED)
endif()
