# The libraries LateLibraries: what the DLLs marked in windows2000_imports.txt export is bound at its first call. Such a
# library comes before the one of the same DLL that the compiler has. What the loader of Windows binds before a program
# begins it also looks for in the program's folder, where anybody may have put it; a program can only choose where the
# others come from (SearchSystemFolderOnly in base/win32/late_bound.h).
set(ImportList ${CMAKE_CURRENT_LIST_DIR}/windows2000_imports.txt)
set(LateScripts ${CMAKE_CURRENT_LIST_DIR}/late_library.sh ${CMAKE_CURRENT_LIST_DIR}/listed_imports.sh)
file(STRINGS ${ImportList} sections REGEX "^\\[[^ ]+ late\\]")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${ImportList})
foreach(section ${sections})
    string(REGEX REPLACE "^.(.*) late.*" "\\1" dll "${section}")
    set(library ${CMAKE_CURRENT_BINARY_DIR}/late_${dll}.a)
    add_custom_command(OUTPUT ${library} DEPENDS ${ImportList} ${LateScripts}
        COMMAND ${CMAKE_CURRENT_LIST_DIR}/late_library.sh ${Triple} ${dll} ${library} VERBATIM)
    list(APPEND LateLibraries ${library})
endforeach()
