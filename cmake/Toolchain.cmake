# How everything is compiled and linked: C++20, every warning an error,
# ccache and mold where the machine has them.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

option(QUARTELA_SANITIZE "Build with the address and undefined behaviour sanitizers" OFF)
option(QUARTELA_TIDY "Run clang-tidy on every file that is compiled" OFF)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # Without these words ccache takes nothing that is compiled with a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
      "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
      "${CCACHE_PROGRAM}")
  add_compile_options(-fpch-preprocess)
endif()

find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
  add_link_options(-fuse-ld=mold)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                    -Woverloaded-virtual -Wold-style-cast -Werror)
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
                        QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH)

# GCC 12 sees overlaps and overflows in std::string's own operator+ that are not there, once it
# optimises (GCC bug 105651).
foreach(false_alarm restrict stringop-overflow array-bounds)
  add_compile_options($<$<CONFIG:Release>:-Wno-${false_alarm}>)
endforeach()

# What keeps a slip from becoming a hole in what offices run; packaging/hardening.py reads it off the
# program.
set(QUARTELA_HARDENING -fPIE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
  list(APPEND QUARTELA_HARDENING -fcf-protection)
endif()
set(QUARTELA_HARDENED_LINK -pie -Wl,-z,relro,-z,now,-z,noexecstack)
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  add_compile_options(${QUARTELA_HARDENING})
  add_link_options(${QUARTELA_HARDENED_LINK})
endif()

if(QUARTELA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(QUARTELA_TIDY)
  find_program(CLANG_TIDY_PROGRAM clang-tidy REQUIRED)
  set(CMAKE_CXX_CLANG_TIDY "${CLANG_TIDY_PROGRAM};--quiet")
endif()

# A static library is compiled without waiting for the ones it will be linked with.
set(CMAKE_OPTIMIZE_DEPENDENCIES ON)
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)
