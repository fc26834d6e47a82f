# The verbs that the folders' lists are written in. A target sees the headers of
# the targets it links and of no other, so a forbidden arrow does not compile.

# lctrlsex_add_library(NAME TYPE SOURCES ... [LINK ...])
function(lctrlsex_add_library name type)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} ${type} ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>)
  target_link_libraries(${name}
    PUBLIC ${ARG_LINK}
    PRIVATE $<BUILD_INTERFACE:lctrlsex_warnings> $<BUILD_INTERFACE:lctrlsex_strict_strings>)
endfunction()

# lctrlsex_forbid_widgets(TARGET): no header of QtWidgets compiles in it, however
# it is spelt, because the module's own export macro is never defined.
function(lctrlsex_forbid_widgets target)
  target_compile_definitions(${target} PRIVATE QTWIDGETSGLOBAL_H)
endfunction()

# lctrlsex_forbid_gui(TARGET): the same for QtGui and QtWidgets.
function(lctrlsex_forbid_gui target)
  target_compile_definitions(${target} PRIVATE QTGUIGLOBAL_H QTWIDGETSGLOBAL_H)
endfunction()

# lctrlsex_add_test(NAME SOURCES ... [LINK ...] [LABELS ...] [TIMEOUT n])
# A QTest program, run offscreen with a fixed hash seed in a home of its own.
function(lctrlsex_add_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINK;LABELS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt5::Test lctrlsex_warnings)
  target_compile_definitions(${name} PRIVATE
    LCTRLSEX_SOURCE_DIR="${CMAKE_SOURCE_DIR}" LCTRLSEX_BINARY_DIR="${CMAKE_BINARY_DIR}")
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${ARG_TIMEOUT}
    LABELS "${ARG_LABELS}"
    ENVIRONMENT "${LCTRLSEX_TEST_ENVIRONMENT}")
endfunction()

set(LCTRLSEX_TEST_ENVIRONMENT
  QT_QPA_PLATFORM=offscreen
  QT_HASH_SEED=0
  LC_ALL=C.UTF-8
  HOME=${CMAKE_BINARY_DIR}/test-home
  XDG_RUNTIME_DIR=${CMAKE_BINARY_DIR}/test-home
  ASAN_OPTIONS=detect_leaks=0:abort_on_error=1:allocator_may_return_null=1
  UBSAN_OPTIONS=print_stacktrace=1)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/test-home)
# Qt complains of a runtime folder that others can read.
file(CHMOD ${CMAKE_BINARY_DIR}/test-home PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
