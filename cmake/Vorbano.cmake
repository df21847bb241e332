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
if(VORBANO_SANITIZE)
  target_compile_options(vorbano_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
  target_link_options(vorbano_flags INTERFACE -fsanitize=address,undefined)
endif()

# vorbano_library(NAME [SOURCES ...] [LINKS ...]): one folder of src/. Headers are included as "folder/header.h";
# each folder publishes only itself, through a folder of links made for it in the build tree.
function(vorbano_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  file(RELATIVE_PATH folder ${CMAKE_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  set(door ${CMAKE_BINARY_DIR}/include/${name})
  get_filename_component(parent ${door}/${folder} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${door}/${folder} SYMBOLIC)
  if(ARG_SOURCES)
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${door})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE vorbano_flags)
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

# vorbano_test(NAME [SOURCES ...] [LINKS ...]): one test program for one folder of tests/.
function(vorbano_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} vorbano_flags GTest::gmock_main)
  # Optimising the tests themselves takes longer than they run.
  target_compile_options(${name} PRIVATE -O0)
  target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;HOME=/nonexistent;VORBANET_ROOT=/nonexistent")
endfunction()
