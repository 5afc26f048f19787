# How everything here is compiled: the language, the warnings, the sanitizers. Every target gets it through ondel_options.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# See OndelCore/Export.h.
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

set(ONDEL_SANITIZE "" CACHE STRING "Sanitizers to build with, as the compiler's -fsanitize= takes them")
option(ONDEL_UNITY_BUILD "Compile a room's sources several at a time, in a quarter of the processor time" ON)
set(ONDEL_UNITY_BATCH 8 CACHE STRING "How many at a time: many for a build from nothing, few for one after a change")
option(ONDEL_WARNINGS_ARE_ERRORS "Stop the build at a warning, as CI does" OFF)

# The cache is shared by all checkouts on a machine: paths below this one count as relative.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
endif()

# A program loads the libraries that it calls, and not all that some room of it could.
add_link_options(LINKER:--as-needed)

add_library(ondel_options INTERFACE)
target_include_directories(ondel_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_definitions(ondel_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
target_compile_options(ondel_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual -Wcast-align -Wformat=2 -Wimplicit-fallthrough
  # A name of one file may well be a local one of another that is compiled with it.
  $<IF:$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:${ONDEL_UNITY_BUILD}>>,-Wshadow=local,-Wshadow>
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>
  $<$<BOOL:${ONDEL_WARNINGS_ARE_ERRORS}>:-Werror>)

if(ONDEL_SANITIZE)
  # Also for what Qt's generators compile, hence directory-wide.
  add_compile_options(-fsanitize=${ONDEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${ONDEL_SANITIZE})
endif()
