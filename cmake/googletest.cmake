# Makes GTest::gmock_main: Debian's library for the native tests; for Windows built here from its source package
# (in an MSYS2 shell, set GOOGLETEST_SOURCE or install pacman's gtest).
if(NOT WIN32)
    find_package(GTest REQUIRED)
    return()
endif()

set(GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "googletest's sources")
if(EXISTS ${GOOGLETEST_SOURCE})
    add_library(gmock_main OBJECT
        ${GOOGLETEST_SOURCE}/googletest/src/gtest-all.cc
        ${GOOGLETEST_SOURCE}/googlemock/src/gmock-all.cc
        ${GOOGLETEST_SOURCE}/googlemock/src/gmock_main.cc)
    target_include_directories(gmock_main SYSTEM PUBLIC
        ${CMAKE_SOURCE_DIR}/tests/googletest
        ${GOOGLETEST_SOURCE}/googletest/include ${GOOGLETEST_SOURCE}/googlemock/include)
    target_compile_options(gmock_main PRIVATE -O0)  # a third faster to compile, and seldom called
    target_include_directories(gmock_main PRIVATE ${GOOGLETEST_SOURCE}/googletest ${GOOGLETEST_SOURCE}/googlemock)
    add_library(GTest::gmock_main ALIAS gmock_main)
else()
    find_package(GTest REQUIRED)
endif()
