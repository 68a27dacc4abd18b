# clang-tidy on every source of the program as it is compiled, so that a file is looked at
# again only when it changes. Another version knows other checks and would find other
# things; the one of Debian 12 counts, and elsewhere there is no lint.
find_program(CLANG_TIDY NAMES clang-tidy-14 clang-tidy)
if(CLANG_TIDY)
  execute_process(COMMAND ${CLANG_TIDY} --version OUTPUT_VARIABLE clang_tidy_version)
endif()
if(clang_tidy_version MATCHES "version 14\\.")
  set(CMAKE_CXX_CLANG_TIDY ${CLANG_TIDY} --quiet --extra-arg=-Wno-unknown-warning-option)
  if(NOT ORRAVANE_LINT_DEEP)
    foreach(argument -Xclang -analyzer-config -Xclang mode=shallow)
      list(APPEND CMAKE_CXX_CLANG_TIDY --extra-arg=${argument})
    endforeach()
  endif()
  # What the toolkit generates lies in the build folder and is not looked at. A
  # configuration without any check is an error, so it has one.
  file(WRITE ${PROJECT_BINARY_DIR}/.clang-tidy "Checks: '-*,readability-misleading-indentation'\n")
else()
  message(STATUS "No clang-tidy 14: the sources are not linted")
endif()
