# One static library a folder of src/, one executable a test file.

# quartela_library(name LINKS ...): every .cpp and .ui of the current folder, and of the
# subfolders named after SUBFOLDERS, as the static library `name`.
function(quartela_library name)
  cmake_parse_arguments(ARG "" "" "LINKS;SUBFOLDERS" ${ARGN})
  set(patterns "*.cpp" "*.h" "*.ui" "*.qrc")
  foreach(folder IN LISTS ARG_SUBFOLDERS)
    list(APPEND patterns "${folder}/*.cpp" "${folder}/*.h")
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE ${ARG_LINKS})
    return()
  endif()
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON LINKER_LANGUAGE CXX)
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name} PUBLIC ${ARG_LINKS})
endfunction()

# quartela_tests(LINKS ...): every *_test.cpp of the current folder becomes one executable and one
# CTest test, named after its path below tests/.
function(quartela_tests)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB tests CONFIGURE_DEPENDS "*_test.cpp")
  file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}/tests" "${CMAKE_CURRENT_SOURCE_DIR}")
  string(REPLACE "/" "." prefix "${folder}")
  foreach(source IN LISTS tests)
    get_filename_component(stem "${source}" NAME_WE)
    string(REGEX REPLACE "_test$" "" stem "${stem}")
    set(target "test.${prefix}.${stem}")
    add_executable(${target} "${source}")
    set_target_properties(${target} PROPERTIES AUTOMOC ON
      RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    # A test's own code runs once: compiling it quickly counts for more. What it calls keeps every
    # sanitizer; the test itself keeps the address sanitizer.
    target_compile_options(${target} PRIVATE $<$<CONFIG:Debug>:-O0>)
    if(QUARTELA_SANITIZE)
      target_compile_options(${target} PRIVATE -fno-sanitize=undefined)
    endif()
    target_link_libraries(${target} PRIVATE ${ARG_LINKS} q_test_support Qt6::Test)
    add_test(NAME "${prefix}.${stem}" COMMAND ${target})
    set_tests_properties("${prefix}.${stem}" PROPERTIES
      TIMEOUT 600
      ENVIRONMENT "${QUARTELA_TEST_ENVIRONMENT}")
  endforeach()
endfunction()
