# What every target of ours compiles with. Warnings are errors.
add_library(tarnwell_flags INTERFACE)
target_compile_options(tarnwell_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
  # GCC 12 reports these where its optimizer has inlined std::string's + and std::erase.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-dangling-pointer>)
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
