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
        -fsanitize=${SKYQUILL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(skyquill_warnings INTERFACE -fsanitize=${SKYQUILL_SANITIZE})
endif()
if(SKYQUILL_FUZZ)
    target_compile_options(skyquill_warnings INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
    target_compile_definitions(skyquill_warnings INTERFACE QT_FORCE_ASSERTS)
    target_link_options(skyquill_warnings INTERFACE -fsanitize=address,undefined)
endif()

# Headers that are compiled once and shared. A target takes the set that fits it; those of tests are
# compiled without optimisation, as the tests are.
function(skyquill_add_precompiled name)
    cmake_parse_arguments(ARG "" "" "LINKS;HEADERS;OPTIONS" ${ARGN})
    file(WRITE "${CMAKE_BINARY_DIR}/precompiled/${name}.cpp" "")
    add_library(${name} OBJECT "${CMAKE_BINARY_DIR}/precompiled/${name}.cpp")
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} skyquill_warnings)
    target_compile_options(${name} PRIVATE ${ARG_OPTIONS})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF CXX_EXTENSIONS OFF)
endfunction()

set(core_headers <QtCore> <algorithm> <array> <atomic> <cmath> <functional> <future> <map> <memory>
    <optional> <string> <string_view> <variant> <vector>)
set(test_options $<$<CONFIG:Release>:-O0>)
if(SKYQUILL_PCH)
    skyquill_add_precompiled(precompiled_core LINKS Qt5::Core HEADERS ${core_headers})
    skyquill_add_precompiled(precompiled_widgets LINKS Qt5::Widgets
        HEADERS <QtWidgets> ${core_headers})
    if(NOT SKYQUILL_FUZZ)
        find_package(GTest REQUIRED)
        skyquill_add_precompiled(precompiled_gtest LINKS Qt5::Core GTest::gtest
            HEADERS <gtest/gtest.h> ${core_headers} OPTIONS ${test_options})
        skyquill_add_precompiled(precompiled_qttest LINKS Qt5::Widgets Qt5::Network Qt5::Test
            HEADERS <QtTest> <QtWidgets> ${core_headers} OPTIONS ${test_options})
    endif()
endif()

# skyquill_add_library(NAME SOURCES a.cpp ... [WITHOUT_QT] LINKS lib ... [PRIVATE_LINKS lib ...])
# Includes are written from the repository root ("protocol/Events.h") or, for the platform, from
# platform/ ("lum_sdk/Transform.h").
function(skyquill_add_library name)
    cmake_parse_arguments(ARG "WITHOUT_QT" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}" "${CMAKE_SOURCE_DIR}/platform")
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS} skyquill_warnings)
    if(ARG_WITHOUT_QT)
        set_target_properties(${name} PROPERTIES CXX_EXTENSIONS OFF)
    else()
        skyquill_defaults(${name} core)
    endif()
endfunction()

# The same for a library of windows, dialogs, layers or commands.
function(skyquill_add_widget_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}" "${CMAKE_SOURCE_DIR}/platform")
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} Qt5::Widgets
        PRIVATE ${ARG_PRIVATE_LINKS} skyquill_warnings)
    skyquill_defaults(${name} widgets)
endfunction()

# skyquill_add_program(NAME SOURCES a.cpp ... LINKS lib ...)
function(skyquill_add_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}" "${CMAKE_SOURCE_DIR}/platform")
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} skyquill_warnings)
    skyquill_defaults(${name} core)
endfunction()

# skyquill_add_test(NAME SOURCES a.cpp ... LINKS lib ...): GoogleTest without an application.
function(skyquill_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    find_package(GTest REQUIRED)
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} test_product GTest::gtest_main
        Qt5::Core skyquill_warnings)
    target_compile_options(${name} PRIVATE ${test_options})
    skyquill_defaults(${name} gtest)
    include(GoogleTest)
    gtest_discover_tests(${name} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
    skyquill_test_environment(${name} environment)
    skyquill_test_labels(${name} labels)
    # A list cannot be passed through the call above; ctest reads this script after the tests.
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${name}_environment.cmake")
    file(WRITE "${script}"
        "if(DEFINED ${name}_TESTS)\n"
        "  set_tests_properties(\${${name}_TESTS} PROPERTIES\n"
        "    ENVIRONMENT \"${environment}\" LABELS \"${labels}\")\n"
        "endif()\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${script}")
endfunction()

# skyquill_add_qt_test(NAME SOURCES a.cpp ... LINKS lib ... [ENVIRONMENT A=b ...]): one Qt Test class,
# offscreen.
function(skyquill_add_qt_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} test_product Qt5::Widgets Qt5::Network
        Qt5::Test skyquill_warnings)
    target_compile_options(${name} PRIVATE ${test_options})
    skyquill_defaults(${name} qttest)
    add_test(NAME ${name} COMMAND ${name})
    skyquill_test_environment(${name} environment)
    skyquill_test_labels(${name} labels)
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "${environment};${ARG_ENVIRONMENT}" LABELS "${labels}" TIMEOUT 300)
endfunction()

# What all targets share. `precompiled` names the set of shared headers.
function(skyquill_defaults name precompiled)
    skyquill_needs_moc(${name} needsMoc)
    set_target_properties(${name} PROPERTIES AUTOMOC ${needsMoc} CXX_EXTENSIONS OFF)
    if(SKYQUILL_PCH)
        target_precompile_headers(${name} REUSE_FROM precompiled_${precompiled})
    endif()
endfunction()

# Whether a source of the target, or its header, has a class with signals. Starting the meta-object
# compiler for nothing costs a second a target.
function(skyquill_needs_moc name result)
    set(${result} OFF PARENT_SCOPE)
    get_target_property(sources ${name} SOURCES)
    foreach(source IN LISTS sources)
        get_filename_component(path "${source}" ABSOLUTE BASE_DIR "${CMAKE_CURRENT_SOURCE_DIR}")
        string(REGEX REPLACE "\\.cpp$" ".h" header "${path}")
        foreach(file "${path}" "${header}")
            if(EXISTS "${file}")
                file(STRINGS "${file}" found REGEX "Q_OBJECT|Q_GADGET" LIMIT_COUNT 1)
                if(found)
                    set(${result} ON PARENT_SCOPE)
                endif()
            endif()
        endforeach()
    endforeach()
endfunction()
