# One static library a folder of src/, one executable a test file.

# Headers compiled once: reading the toolkit's anew took most of the time of every file. Three sets, since
# the compiler takes a set only where all that it saw is defined alike. clang-tidy reads without them, so
# that a file that lacks an include of its own is found.
function(quartela_headers name)
  cmake_parse_arguments(ARG "" "" "HEADERS;LINKS" ${ARGN})
  file(WRITE "${CMAKE_BINARY_DIR}/headers/${name}.cpp" "")
  add_library(${name} STATIC "${CMAKE_BINARY_DIR}/headers/${name}.cpp")
  target_link_libraries(${name} PUBLIC ${ARG_LINKS})
  if(NOT QUARTELA_TIDY)
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
  endif()
endfunction()

function(quartela_use_headers target headers)
  if(NOT QUARTELA_TIDY)
    target_precompile_headers(${target} REUSE_FROM ${headers})
  endif()
endfunction()

set(QUARTELA_CORE_HEADERS
  <algorithm> <array> <cmath> <cstdint> <functional> <map> <memory> <optional> <string> <string_view>
  <utility> <variant> <vector>
  <QByteArray> <QDir> <QFile> <QHash> <QList> <QObject> <QString> <QStringList> <QStringView>)
set(QUARTELA_WIDGET_HEADERS
  ${QUARTELA_CORE_HEADERS}
  <QAbstractItemView> <QApplication> <QComboBox> <QDialog> <QKeyEvent> <QLabel> <QLineEdit> <QMenu>
  <QPainter> <QPlainTextEdit> <QPushButton> <QTimer> <QVBoxLayout> <QWidget>)

quartela_headers(q_core_headers HEADERS ${QUARTELA_CORE_HEADERS} LINKS Qt6::Core)
quartela_headers(q_widget_headers HEADERS ${QUARTELA_WIDGET_HEADERS} LINKS Qt6::Widgets)

# The toolkit's test library without the folder names that it defines for each target (for data files,
# which no test here has): a set of headers serves targets whose definitions are alike.
add_library(q_test_library INTERFACE)
target_include_directories(q_test_library SYSTEM INTERFACE
  $<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>)
target_link_libraries(q_test_library INTERFACE $<TARGET_FILE:Qt6::Test> Qt6::Widgets)

# quartela_library(name LINKS ...): every .cpp and .ui of the current folder, and of the
# subfolders named after SUBFOLDERS, as the static library `name`. NO_WIDGETS: it shows nothing.
function(quartela_library name)
  cmake_parse_arguments(ARG "NO_WIDGETS" "" "LINKS;SUBFOLDERS" ${ARGN})
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
  if(ARG_NO_WIDGETS)
    quartela_use_headers(${name} q_core_headers)
  else()
    quartela_use_headers(${name} q_widget_headers)
  endif()
endfunction()

# A test's own code runs once: compiling it quickly counts for more. What it calls keeps every
# sanitizer; the test itself keeps the address sanitizer.
function(quartela_compile_quickly target)
  target_compile_options(${target} PRIVATE $<$<CONFIG:Debug>:-O0>)
  if(QUARTELA_SANITIZE)
    target_compile_options(${target} PRIVATE -fno-sanitize=undefined)
  endif()
endfunction()

# quartela_test_on_desktop(test): the CTest test of that name runs once more, as `test`.desktop, in real
# windows: under the X platform, on a display of its own with a window manager.
function(quartela_test_on_desktop test)
  add_test(NAME "${test}.desktop"
    COMMAND ${Python3_EXECUTABLE} "${PROJECT_SOURCE_DIR}/tests/support/on_a_desktop.py"
            $<TARGET_FILE:test.${test}>)
  set_tests_properties("${test}.desktop" PROPERTIES
    TIMEOUT 600
    ENVIRONMENT "${QUARTELA_TEST_ENVIRONMENT}")
endfunction()

# quartela_tests(LINKS ...): every *_test.cpp of the current folder becomes one executable and one
# CTest test, named after its path below tests/. ON_DESKTOP: and a second one in real windows.
function(quartela_tests)
  cmake_parse_arguments(ARG "ON_DESKTOP" "" "LINKS" ${ARGN})
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
    quartela_compile_quickly(${target})
    target_link_libraries(${target} PRIVATE ${ARG_LINKS} q_test_support)
    quartela_use_headers(${target} q_test_headers)
    add_test(NAME "${prefix}.${stem}" COMMAND ${target})
    set_tests_properties("${prefix}.${stem}" PROPERTIES
      TIMEOUT 600
      ENVIRONMENT "${QUARTELA_TEST_ENVIRONMENT}")
    if(ARG_ON_DESKTOP)
      quartela_test_on_desktop("${prefix}.${stem}")
    endif()
  endforeach()
endfunction()
