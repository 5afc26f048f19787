# The libraries that other programs link.
#
# They are made of the same objects as the rooms' static libraries, which this project's own programs link: those start
# without looking up thousands of symbols, and may use what no other program may.

# ondel_library(ondel COMPONENT Core NAMESPACE Ondel ROOMS OndelCore::platform … LINK … PRIVATE_LINK … HEADERS a.h …)
#   makes lib<name>.so with the whole of ROOMS, exported as NAMESPACE::COMPONENT. LINK: what its headers need.
#   HEADERS: the public ones, named from the project's root; they are installed under the same names.
function(ondel_library name)
  cmake_parse_arguments(LIBRARY "" "COMPONENT;NAMESPACE" "ROOMS;LINK;PRIVATE_LINK;HEADERS" ${ARGN})
  set(target ${name}_shared)
  file(CONFIGURE OUTPUT ${name}.cpp CONTENT "// All of the library is in the rooms that it is made of.\n")
  add_library(${target} SHARED ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  add_library(${LIBRARY_NAMESPACE}::${LIBRARY_COMPONENT} ALIAS ${target})
  set(rooms ${LIBRARY_ROOMS})
  list(TRANSFORM rooms REPLACE "::" "_")
  list(JOIN rooms "," whole)
  target_link_libraries(${target}
    PUBLIC ${LIBRARY_LINK}
    PRIVATE $<BUILD_INTERFACE:$<LINK_LIBRARY:WHOLE_ARCHIVE,${whole}>> ${LIBRARY_PRIVATE_LINK})
  # A run goes on after its caller was unloaded.
  target_link_options(${target} PRIVATE LINKER:-z,nodelete LINKER:-z,defs)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME ${name}
    EXPORT_NAME ${LIBRARY_COMPONENT}
    VERSION ${PROJECT_VERSION}
    SOVERSION ${ONDEL_ABI})
  target_include_directories(${target} INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/ondel-tarnwick>)
  target_compile_features(${target} INTERFACE cxx_std_20)
endfunction()
