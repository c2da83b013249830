# What every target of ours compiles with. Warnings are errors, but not where a user builds the program
# to run it: another year's compiler warns of other things.
add_library(tarnwell_flags INTERFACE)
target_compile_options(tarnwell_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<NOT:$<CONFIG:Release>>:-Werror>)
# Clang means more by -Wconversion than GCC does.
target_compile_options(tarnwell_flags INTERFACE $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion;-Wno-shadow>)
# Fully optimised, GCC 12 sees strings overlap where two are joined by operator+, the content of an
# empty std::optional used, and pointers dangle behind std::erase. The debug builds look for all three.
target_compile_options(tarnwell_flags INTERFACE
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-restrict;-Wno-maybe-uninitialized;-Wno-dangling-pointer>)
target_include_directories(tarnwell_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)

# tarnwell_room(NAME [DEPENDS room...]): the static library of one folder of src/, from all its
# .cpp files. DEPENDS names the rooms below it; a room that isn't named isn't reachable.
function(tarnwell_room name)
  cmake_parse_arguments(room "" "" "DEPENDS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  string(REPLACE "/" "_" target tarnwell_${name})
  add_library(${target} STATIC ${sources})
  list(TRANSFORM room_DEPENDS PREPEND tarnwell_)
  target_link_libraries(${target} PUBLIC tarnwell_flags ${room_DEPENDS})
endfunction()

# tarnwell_precompile(TARGET header...): reads headers that most files of the target include, and that
# rarely change, once for all of them. Every file still includes what it uses. GCC's compiler cache
# needs the flag, and the sloppiness that CMakePresets.json gives it.
function(tarnwell_precompile target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()
