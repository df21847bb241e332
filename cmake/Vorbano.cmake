# How every target of the project is made. A target is linked only with the neighbours it may know;
# its headers are found through those links and in no other way, so an include across a border does not compile.

add_library(vorbano_flags INTERFACE)
target_compile_options(vorbano_flags INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor -Wold-style-cast
  -Woverloaded-virtual -Wimplicit-fallthrough -Wunused-result)
# With full optimisation GCC 12 follows std::string and std::optional into paths that cannot be taken, and warns of them
# in its own headers. These four are left to the static analyser and the sanitizers.
target_compile_options(vorbano_flags INTERFACE
  -Wno-restrict -Wno-stringop-overflow -Wno-maybe-uninitialized -Wno-array-bounds)
# The toolkit wants it of all that include its headers, and what shares precompiled headers is compiled alike.
target_compile_options(vorbano_flags INTERFACE -fPIC)
if(WIN32)
  target_compile_definitions(vorbano_flags INTERFACE UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
endif()
if(CMAKE_UNITY_BUILD)
  # In one go with others a source looks like a header, whose types may not hold what is its own.
  target_compile_options(vorbano_flags INTERFACE -Wno-subobject-linkage)
endif()
# Lets the compiler cache look through precompiled headers.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  target_compile_options(vorbano_flags INTERFACE -fpch-preprocess)
endif()
if(VORBANO_SANITIZE)
  target_compile_options(vorbano_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
  target_link_options(vorbano_flags INTERFACE -fsanitize=address,undefined)
endif()

# The headers of the standard library are compiled once for all libraries, and those of the test framework once for all
# test programs: reading them took half the time of a build. The toolkit's own are worth it only where it is at home.
set(standardHeaders <algorithm> <array> <cstdint> <deque> <functional> <map> <memory> <optional> <span> <string> <string_view>
                    <utility> <variant> <vector>)
set(testHeaders ${standardHeaders} <gmock/gmock.h> <gtest/gtest.h>)
set(toolkitHeaders <QtWidgets/QtWidgets> <QtSql/QtSql> <QtPrintSupport/QtPrintSupport>)
add_library(vorbano_headers OBJECT ${CMAKE_SOURCE_DIR}/cmake/headers.cpp)
target_link_libraries(vorbano_headers PRIVATE vorbano_flags)
target_precompile_headers(vorbano_headers PRIVATE ${standardHeaders})
if(VORBANO_TESTS)
  # A package has it built for the machine itself, and its sources for any other.
  if(CMAKE_CROSSCOMPILING)
    add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  else()
    find_package(GTest REQUIRED)
  endif()
  add_library(vorbano_test_headers OBJECT ${CMAKE_SOURCE_DIR}/cmake/headers.cpp)
  target_link_libraries(vorbano_test_headers PRIVATE vorbano_flags GTest::gmock)
  # Optimising the tests themselves takes longer than they run.
  target_compile_options(vorbano_test_headers PRIVATE -O0)
  target_precompile_headers(vorbano_test_headers PRIVATE ${testHeaders})
endif()

# vorbano_lint(NAME SOURCES... LINKS ...): the same sources, eight at a time, for the linter alone. It spends most of its
# time in headers, and so reads them once for eight. A name in an unnamed namespace is therefore used once in a folder.
function(vorbano_lint name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  set(written ${ARG_UNPARSED_ARGUMENTS})
  list(FILTER written EXCLUDE REGEX "^/")  # what is generated is not ours to mend
  add_library(lint_${name} OBJECT EXCLUDE_FROM_ALL ${written})
  target_link_libraries(lint_${name} PUBLIC ${ARG_LINKS} PRIVATE vorbano_flags)
  target_include_directories(lint_${name} PRIVATE $<TARGET_PROPERTY:${name},INCLUDE_DIRECTORIES>)
  set_target_properties(lint_${name} PROPERTIES AUTOMOC OFF UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
endfunction()

# vorbano_library(NAME [TOOLKIT] [SOURCES ...] [LINKS ...]): one folder of src/; TOOLKIT for the one that is made of it.
# Headers are included as "folder/header.h";
# each folder publishes only itself, through a folder of links made for it in the build tree.
function(vorbano_library name)
  cmake_parse_arguments(ARG "TOOLKIT" "" "SOURCES;LINKS" ${ARGN})
  file(RELATIVE_PATH folder ${CMAKE_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  set(door ${CMAKE_BINARY_DIR}/include/${name})
  get_filename_component(parent ${door}/${folder} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${door}/${folder} SYMBOLIC)
  if(ARG_SOURCES)
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${door})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE vorbano_flags)
    if(ARG_TOOLKIT)
      target_precompile_headers(${name} PRIVATE ${standardHeaders} ${toolkitHeaders})
    else()
      target_precompile_headers(${name} REUSE_FROM vorbano_headers)
    endif()
    if(VORBANO_SANITIZE)
      # Built whole and rarely: eight sources at a time, as the linter reads them. What is generated stands alone.
      set(generated ${ARG_SOURCES})
      list(FILTER generated INCLUDE REGEX "^/")
      set_source_files_properties(${generated} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
      set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
      target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
    vorbano_lint(${name} ${ARG_SOURCES} LINKS ${ARG_LINKS})
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${door})
    target_link_libraries(${name} INTERFACE ${ARG_LINKS})
  endif()
endfunction()

# vorbano_form(FILE.ui ...): windows of this folder's screens; the toolkit side compiles them all (src/platform/qt).
function(vorbano_form)
  foreach(file ${ARGN})
    set_property(GLOBAL APPEND PROPERTY VORBANO_FORMS ${CMAKE_CURRENT_SOURCE_DIR}/${file})
  endforeach()
endfunction()

# What ./test runs under sanitizers, and the target that builds it: the tests with the label "short". They reach all of
# the program; every test runs under sanitizers with the whole preset.
add_custom_target(short)
function(vorbano_short target)
  add_dependencies(short ${target})
  if(ARGN)
    set_property(TEST ${ARGN} APPEND PROPERTY LABELS short)
  endif()
endfunction()

# vorbano_test(NAME [BATCHES] [SHORT] [SOURCES ...] [LINKS ...]): one test program for one folder of tests/. With
# BATCHES its sources are compiled eight at a time, a third of the work; a name in an unnamed namespace is then used once a
# folder. With SHORT it is part of the short run.
function(vorbano_test name)
  cmake_parse_arguments(ARG "BATCHES;SHORT" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} vorbano_flags GTest::gmock_main)
  target_compile_options(${name} PRIVATE -O0)
  if(ARG_BATCHES)
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
    target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  endif()
  target_precompile_headers(${name} REUSE_FROM vorbano_test_headers)
  set(label whole)
  if(ARG_SHORT)
    vorbano_short(${name})
    set(label short)
  endif()
  if(CMAKE_CROSSCOMPILING)
    # Each start under the emulator takes its time: the whole folder is one test.
    add_test(NAME ${name} COMMAND ${name})
    return()
  endif()
  # Two properties of one value each: a list would be taken apart on its way to the tests.
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS ${label} FIXTURES_SETUP unit
    ENVIRONMENT QT_QPA_PLATFORM=offscreen ENVIRONMENT_MODIFICATION VORBANO_FAULTS=set:${CMAKE_BINARY_DIR}/faults)
endfunction()
