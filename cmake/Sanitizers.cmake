# LCTRLSEX_SANITIZE: a comma-separated list for -fsanitize, for example
# "address,undefined" or "thread"; empty for none.
set(LCTRLSEX_SANITIZE "" CACHE STRING "Sanitizers to build with")

if(LCTRLSEX_SANITIZE)
  add_compile_options(-fsanitize=${LCTRLSEX_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${LCTRLSEX_SANITIZE})
else()
  # Sanitizer runtimes are resolved at run time only, so this holds without them.
  add_link_options(-Wl,--no-undefined)
endif()
