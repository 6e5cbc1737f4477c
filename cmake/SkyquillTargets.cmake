# One function to add a library, one to add a test; both link the common warnings.

add_library(skyquill_warnings INTERFACE)
target_compile_options(skyquill_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wformat=2 -Wundef
    $<$<CXX_COMPILER_ID:GNU>:-Wsuggest-override -Wduplicated-cond -Wlogical-op>
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict> # GCC 12 sees overlaps in std::string that are not there
    $<$<BOOL:${SKYQUILL_WERROR}>:-Werror>)
# Qt wants position-independent code; calls between our own functions may be inlined all the same.
target_compile_options(skyquill_warnings INTERFACE -fno-semantic-interposition)
target_compile_features(skyquill_warnings INTERFACE cxx_std_20)
target_compile_definitions(skyquill_warnings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
    QT_DEPRECATED_WARNINGS QT_STRICT_ITERATORS)
if(SKYQUILL_SANITIZE)
    target_compile_options(skyquill_warnings INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(skyquill_warnings INTERFACE -fsanitize=address,undefined)
endif()
if(SKYQUILL_FUZZ)
    target_compile_options(skyquill_warnings INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
    target_compile_definitions(skyquill_warnings INTERFACE QT_FORCE_ASSERTS)
    target_link_options(skyquill_warnings INTERFACE -fsanitize=address,undefined)
endif()

# skyquill_add_library(NAME SOURCES a.cpp ... LINKS lib ... [PRIVATE_LINKS lib ...])
# Includes are written from the repository root ("app/protocol/Events.h") or, for the platform,
# from platform/ ("lum_sdk/Transform.h").
function(skyquill_add_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}" "${CMAKE_SOURCE_DIR}/platform")
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS} skyquill_warnings)
    skyquill_qt_defaults(${name})
endfunction()

# skyquill_add_test(NAME SOURCES a.cpp ... LINKS lib ...): GoogleTest without an application.
function(skyquill_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    find_package(GTest REQUIRED)
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gtest_main skyquill_warnings)
    skyquill_qt_defaults(${name})
    include(GoogleTest)
    gtest_discover_tests(${name} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
    skyquill_test_environment(${name} environment)
    # A list cannot be passed through the call above; ctest reads this script after the tests.
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${name}_environment.cmake")
    file(WRITE "${script}"
        "if(DEFINED ${name}_TESTS)\n"
        "  set_tests_properties(\${${name}_TESTS} PROPERTIES\n"
        "    ENVIRONMENT \"${environment}\")\n"
        "endif()\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${script}")
endfunction()

# skyquill_add_qt_test(NAME SOURCES a.cpp ... LINKS lib ... [ENVIRONMENT A=b ...]): one Qt Test class,
# offscreen.
function(skyquill_add_qt_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt5::Test skyquill_warnings)
    skyquill_qt_defaults(${name})
    add_test(NAME ${name} COMMAND ${name})
    skyquill_test_environment(${name} environment)
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "${environment};${ARG_ENVIRONMENT}" TIMEOUT 300)
endfunction()

function(skyquill_qt_defaults name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON CXX_EXTENSIONS OFF)
    # Precompiling pays from a handful of sources on.
    get_target_property(sources ${name} SOURCES)
    list(LENGTH sources count)
    get_target_property(links ${name} LINK_LIBRARIES)
    if(SKYQUILL_PCH AND count GREATER 4 AND "${links}" MATCHES "Qt5::Widgets|lum_desktop")
        target_precompile_headers(${name} PRIVATE <QtWidgets> <memory> <string> <vector>)
    endif()
endfunction()
