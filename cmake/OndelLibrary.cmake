# The libraries that other programs link.
#
# They are made of the same objects as the rooms' static libraries, which this project's own programs link: those start
# without looking up thousands of symbols, and may use what no other program may.

# What the libraries promise to keep: the number in their names ("libondel.so.0"). A release that takes something away, or
# changes it, counts it up.
set(ONDEL_ABI 0)

# ondel_library(ondel COMPONENT Core NAMESPACE Ondel EXPORTS OndelCore ROOMS OndelCore::platform … LINK … PRIVATE_LINK … HEADERS a.h …)
#   makes lib<name>.so of all that is in ROOMS, called NAMESPACE::COMPONENT by those who link it. EXPORTS is the C++
#   namespace whose marked names others see. LINK is what its headers need. HEADERS are the public ones, by their names from the project's root; they are installed under the same names.
function(ondel_library name)
  cmake_parse_arguments(LIBRARY "" "COMPONENT;NAMESPACE;EXPORTS" "ROOMS;LINK;PRIVATE_LINK;HEADERS" ${ARGN})
  set(target ${name}-shared)
  add_library(${target} SHARED)
  add_library(${LIBRARY_NAMESPACE}::${LIBRARY_COMPONENT} ALIAS ${target})
  foreach(room IN LISTS LIBRARY_ROOMS)
    string(REPLACE "::" "_" room ${room})
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:${room}>)
    # The files inside the program: fonts, symbols, views.
    get_target_property(linked ${room} INTERFACE_LINK_LIBRARIES)
    string(REGEX MATCHALL "${room}_resources_[0-9]+" resources "${linked}")
    list(REMOVE_DUPLICATES resources)
    foreach(resource IN LISTS resources)
      target_sources(${target} PRIVATE $<TARGET_OBJECTS:${resource}>)
    endforeach()
  endforeach()
  target_link_libraries(${target} PUBLIC ${LIBRARY_LINK} PRIVATE ${LIBRARY_PRIVATE_LINK})
  string(TOUPPER ${name} ONDEL_SYMBOLS)
  string(REPLACE "-" "_" ONDEL_SYMBOLS ${ONDEL_SYMBOLS})
  set(ONDEL_EXPORTS ${LIBRARY_EXPORTS})
  set(map ${CMAKE_CURRENT_BINARY_DIR}/${name}.map)
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/library.map.in ${map} @ONLY)
  target_link_options(${target} PRIVATE LINKER:--version-script=${map})
  set_target_properties(${target} PROPERTIES LINK_DEPENDS ${map})
  # A run goes on, and ends well, when its caller was unloaded in the middle of it.
  target_link_options(${target} PRIVATE LINKER:-z,nodelete LINKER:-z,defs)
  target_compile_features(${target} INTERFACE cxx_std_20)
  target_include_directories(${target} INTERFACE
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/ondel-tarnwick>)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME ${name} EXPORT_NAME ${LIBRARY_COMPONENT} LINKER_LANGUAGE CXX
    VERSION ${PROJECT_VERSION} SOVERSION ${ONDEL_ABI})

  string(REGEX REPLACE "-.*" "" family ${name}) # a package has a family of libraries
  set(package lib${family}${ONDEL_ABI})
  install(TARGETS ${target} EXPORT OndelTarnwick${LIBRARY_COMPONENT}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${package} NAMELINK_COMPONENT libtarnwick-dev)
  install(EXPORT OndelTarnwick${LIBRARY_COMPONENT} NAMESPACE ${LIBRARY_NAMESPACE}::
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/OndelTarnwick COMPONENT libtarnwick-dev)
  foreach(header IN LISTS LIBRARY_HEADERS)
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${PROJECT_SOURCE_DIR}/${header}
      DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ondel-tarnwick/${folder} COMPONENT libtarnwick-dev)
  endforeach()
endfunction()

# ondel_pkg_config(ondel DESCRIPTION "…" REQUIRES "Qt6Core >= 6.4")
function(ondel_pkg_config name)
  cmake_parse_arguments(PC "" "DESCRIPTION;REQUIRES" "" ${ARGN})
  file(RELATIVE_PATH up /${CMAKE_INSTALL_LIBDIR}/pkgconfig /) # wherever the prefix is at installation
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/library.pc.in ${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT libtarnwick-dev)
endfunction()
