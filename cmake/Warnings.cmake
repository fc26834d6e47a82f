# lctrlsex_warnings: what every target of ours is compiled with.
option(LCTRLSEX_WERROR "Treat warnings as errors" ON)

add_library(lctrlsex_warnings INTERFACE)
target_compile_options(lctrlsex_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Woverloaded-virtual -Wnon-virtual-dtor -Wshadow -Wvla
  $<$<CXX_COMPILER_ID:GNU>:-Wsuggest-override -Wlogical-op -Wduplicated-cond>
  $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>
  $<$<BOOL:${LCTRLSEX_WERROR}>:-Werror>)
target_compile_definitions(lctrlsex_warnings INTERFACE QT_DEPRECATED_WARNINGS)

# Relaxed for tests only: there string literals are data.
add_library(lctrlsex_strict_strings INTERFACE)
target_compile_definitions(lctrlsex_strict_strings INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
