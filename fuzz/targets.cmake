# The fuzz targets, one for each reader of what comes from outside, each a row: add_target(NAME, sources beside its own,
# libraries). The fuzzer builds them, and so does the replay of the tests. The reader of layouts needs no toolkit.
function(vorbano_fuzz_targets add_target)
  set(layout ${CMAKE_SOURCE_DIR}/src/platform/qt)
  cmake_language(CALL ${add_target} record_fuzz LINKS records SOURCES ${CMAKE_SOURCE_DIR}/src/program/record_files.cpp)
  cmake_language(CALL ${add_target} election_fuzz LINKS program)
  cmake_language(CALL ${add_target} text_fuzz LINKS storage scenario_reader)
  cmake_language(CALL ${add_target} scenario_fuzz LINKS scenario_reader)
  cmake_language(CALL ${add_target} layout_fuzz LINKS base SOURCES
    ${layout}/layout_reader.cpp ${layout}/layout_text.cpp ${layout}/layout_tags.cpp ${layout}/layout_masks.cpp)
endfunction()
