# One room = one folder = one static library = one namespace.
#
# ondel_room(OndelCore::benchmark SOURCES a.cpp a.h … LINK OndelCore::platform … [PRIVATE_LINK …])
#   makes the target OndelCore_benchmark with the alias OndelCore::benchmark. LINK is what the room's headers need,
#   PRIVATE_LINK what only its sources need.
function(ondel_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
  string(REPLACE "::" "_" target ${name})
  add_library(${target} STATIC ${ROOM_SOURCES})
  if(NOT name STREQUAL target)
    add_library(${name} ALIAS ${target})
  endif()
  target_link_libraries(${target} PUBLIC ${ROOM_LINK} PRIVATE ondel_options ${ROOM_PRIVATE_LINK})
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${ONDEL_UNITY_BUILD} UNITY_BUILD_BATCH_SIZE ${ONDEL_UNITY_BATCH})
endfunction()

# ondel_test(NAME [THREADS] SOURCES … LINK …): a GoogleTest program that CTest runs once, with its own home and without a
# display. THREADS: it has threads that meet, so the thread sanitizer is worth its time. The target test-programs
# builds all of them, threaded-test-programs those.
function(ondel_test name)
  cmake_parse_arguments(TEST "THREADS" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ondel_options ondel_test_support ${TEST_LINK} GTest::gtest)
  if(ONDEL_SANITIZE) # GCC then guesses wrongly about optional members of values in the tests' tables
    target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  endif()
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/thread-sanitizer.supp:die_after_fork=0"
    LABELS program)
  add_dependencies(test-programs ${name})
  if(TEST_THREADS)
    add_dependencies(threaded-test-programs ${name})
    set_tests_properties(${name} PROPERTIES LABELS "program;threads")
  endif()
endfunction()

# ondel_bench(NAME SOURCES … LINK …): a Google Benchmark program under build/<preset>/bin.
function(ondel_bench name)
  cmake_parse_arguments(BENCH "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${BENCH_SOURCES})
  target_link_libraries(${name} PRIVATE ondel_options ${BENCH_LINK} benchmark::benchmark)
endfunction()

# For a target with QML: call it after qt_add_qml_module. From Qt 6.5 on, C++ made of QML calls functions that each Qt update
# may change, and would tie a package to one exact version of Qt: byte code does not. What Qt's generators write is not ours
# to keep free of warnings; of files of our own that are compiled in one with others, clang-tidy sees each alone.
function(ondel_generated_qml target)
  if(Qt6_VERSION VERSION_GREATER_EQUAL 6.5)
    set_property(TARGET ${target} APPEND PROPERTY QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
  endif()
  get_target_property(sources ${target} SOURCES)
  set(cached ${sources})
  list(FILTER cached INCLUDE REGEX "^${CMAKE_CURRENT_BINARY_DIR}/.*_qml\\.cpp$")
  set(own ${sources})
  list(FILTER own EXCLUDE REGEX "^${CMAKE_BINARY_DIR}/")
  list(FILTER own INCLUDE REGEX "\\.cpp$")
  list(REMOVE_ITEM sources ${cached} ${own})
  math(EXPR cached_batch "${ONDEL_UNITY_BATCH} * 3 / 2") # what is made of QML is short
  ondel_unity_groups(qml ${cached_batch} ${cached})
  if(ONDEL_UNITY_BUILD)
    set(registrations ${sources}) # they include what the room's own files include
    list(FILTER registrations INCLUDE REGEX "_qmltyperegistrations\\.cpp$")
    list(REMOVE_ITEM sources ${registrations})
    ondel_unity_groups(own ${ONDEL_UNITY_BATCH} ${registrations} ${own})
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP
    UNITY_BUILD_CODE_BEFORE_INCLUDE [[
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wshadow"
#pragma GCC diagnostic ignored "-Wshadow=local"
#pragma GCC diagnostic ignored "-Wshadow=compatible-local"]])

  list(FILTER sources INCLUDE REGEX "^${CMAKE_CURRENT_BINARY_DIR}/.*\\.cpp$")
  set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
endfunction()

# Has the files compiled `size` at a time.
function(ondel_unity_groups name size)
  set(count 0)
  foreach(file IN LISTS ARGN)
    math(EXPR group "${count} / ${size}")
    math(EXPR count "${count} + 1")
    set_source_files_properties(${file} PROPERTIES UNITY_GROUP ${name}${group} SKIP_UNITY_BUILD_INCLUSION OFF)
  endforeach()
endfunction()
