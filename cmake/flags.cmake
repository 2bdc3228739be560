# The compiler's and linker's options, carried by the interface target quilltune_flags.
add_library(quilltune_flags INTERFACE)

# Includes are written from the project's folder.
target_include_directories(quilltune_flags INTERFACE ${CMAKE_SOURCE_DIR})

# A catalogue row names only the fields it sets; the others have their defaults, which is the point of such a row.
target_compile_options(quilltune_flags INTERFACE -Wall -Wextra -Werror -Wno-missing-field-initializers)

# Of the program itself, not of its tests.
set(QUILLTUNE_STRICT_WARNINGS -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    list(APPEND QUILLTUNE_STRICT_WARNINGS -Wreserved-identifier)
endif()

if(WIN32)
    # Windows 2000 is the oldest system: its headers hide whatever came later.
    target_compile_definitions(quilltune_flags INTERFACE
        UNICODE _UNICODE WINVER=0x0500 _WIN32_WINNT=0x0500 _WIN32_IE=0x0500 NOMINMAX)
    target_compile_options(quilltune_flags INTERFACE -ffunction-sections -fdata-sections)

    # The oldest x86_64 Windows reports 5.2.
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        set(MinorVersion 2)
    else()
        set(MinorVersion 0)
    endif()
    target_link_options(quilltune_flags INTERFACE
        -static
        -Wl,--gc-sections
        -Wl,--major-os-version=5,--minor-os-version=${MinorVersion}
        -Wl,--major-subsystem-version=5,--minor-subsystem-version=${MinorVersion}
        -Wl,--dynamicbase,--nxcompat)
elseif(CMAKE_BUILD_TYPE STREQUAL "Debug")
    # Of the debugging information a report of the sanitizers shows the lines only; all of it would take longer to write.
    target_compile_options(quilltune_flags INTERFACE
        -fsanitize=address,undefined -fsanitize-ignorelist=${CMAKE_SOURCE_DIR}/cmake/ubsan_ignore.txt
        -fno-sanitize-recover=undefined -fno-omit-frame-pointer -g1)
    target_compile_definitions(quilltune_flags INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(quilltune_flags INTERFACE -fsanitize=address,undefined)
endif()
