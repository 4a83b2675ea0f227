# Compiler options, as targets: tessary_build for everything that is compiled here, tessary_options for our own code.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

option(TESSARY_WERROR "Refuse our own code where the compiler warns; for packagers with a newer compiler to turn off" ON)
set(TESSARY_SANITIZERS "" CACHE STRING "Sanitizers to build with, such as address,undefined")

# Bytes of stack for each of the server's threads: the standard library's regular expressions recurse once per character of
# a request path, and a path may have 8,191 of them.
set(TESSARY_WORKER_STACK 16777216)

add_library(tessary_build INTERFACE)
if(WIN32)
  target_compile_definitions(tessary_build INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN= _WIN32_WINNT=0x0A00)
endif()
if(MINGW)
  # The executable imports Windows' own DLLs only.
  target_link_options(tessary_build INTERFACE -static -Wl,--stack,${TESSARY_WORKER_STACK})
endif()
# What Debian hardens its own programs with. Sanitizers have checks of their own, and are in the way of these.
include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(TESSARY_HARDENING -fstack-protector-strong -fstack-clash-protection -fcf-protection)
if(NOT CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
  list(REMOVE_ITEM TESSARY_HARDENING -fcf-protection)
endif()
if(MINGW)
  # The linker's defaults move the program about in memory and keep data from being run.
  target_compile_options(tessary_build INTERFACE -fstack-protector-strong)
  target_link_options(tessary_build INTERFACE -fstack-protector-strong)
elseif(NOT MSVC AND NOT TESSARY_SANITIZERS)
  target_compile_options(tessary_build INTERFACE ${TESSARY_HARDENING} -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
  target_link_options(tessary_build INTERFACE -Wl,-z,relro -Wl,-z,now)
endif()
if(TESSARY_SANITIZERS)
  # Without the check of virtual tables: the web engine's libraries have no run-time type information and share templates of
  # the standard library with us, so that our copy would report their objects.
  target_compile_options(tessary_build INTERFACE
    -fsanitize=${TESSARY_SANITIZERS} -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tessary_build INTERFACE -fsanitize=${TESSARY_SANITIZERS})
endif()

add_library(tessary_options INTERFACE)
target_link_libraries(tessary_options INTERFACE tessary_build)
target_include_directories(tessary_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(MSVC)
  target_compile_options(tessary_options INTERFACE /W4 /utf-8 /permissive- $<$<BOOL:${TESSARY_WERROR}>:/WX>)
else()
  target_compile_options(tessary_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<BOOL:${TESSARY_WERROR}>:-Werror>)
  # GCC 12 takes "text" + std::string for an overlapping copy.
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(tessary_options INTERFACE -Wno-restrict)
  endif()
  # The sanitizers' instructions hide from GCC's optimiser what the standard library's code makes sure of.
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND TESSARY_SANITIZERS)
    target_compile_options(tessary_options INTERFACE
      -Wno-array-bounds -Wno-maybe-uninitialized -Wno-stringop-overflow -Wno-stringop-overread)
  endif()
endif()
