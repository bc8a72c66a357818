# The flags that every target of the house is built with.
add_library(keelmark_flags INTERFACE)
target_include_directories(keelmark_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(keelmark_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(KEELMARK_WERROR)
    target_compile_options(keelmark_flags INTERFACE -Werror)
endif()
if(KEELMARK_SANITIZE)
    # The sanitizers' own code makes g++ warn of uninitialized values in the standard library where there are none.
    target_compile_options(keelmark_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(keelmark_flags INTERFACE -fsanitize=address,undefined)
endif()
if(KEELMARK_FUZZ)
    target_compile_options(keelmark_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# keelmark_room(NAME SOURCES ... KNOWS ...): one room of the house as a static library. KNOWS names the rooms and
# libraries it may include; what those know, it knows too.
function(keelmark_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;KNOWS" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(${name} PUBLIC keelmark_flags ${ROOM_KNOWS})
endfunction()

# keelmark_qt_room(NAME SOURCES ... KNOWS ...): the same for a room with windows. Only these use Qt's code makers. Told of
# the compiler's own macros, Qt's moc fails on the standard header <concepts>.
function(keelmark_qt_room name)
    keelmark_room(${name} ${ARGN})
    target_link_libraries(${name} PUBLIC Qt6::Widgets)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOMOC_COMPILER_PREDEFINES OFF AUTOUIC ON AUTORCC ON)
    # What uic makes of a window is there for the rooms that build on it too.
    target_include_directories(${name} SYSTEM PUBLIC ${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/include)
endfunction()
