# Compiler options of our own code, as one target that every library links.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

set(TESSARY_SANITIZERS "" CACHE STRING "Sanitizers to build with, such as address,undefined")

add_library(tessary_options INTERFACE)
target_include_directories(tessary_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(MSVC)
  target_compile_options(tessary_options INTERFACE /W4 /utf-8 /permissive-)
else()
  target_compile_options(tessary_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror=return-type)
endif()
if(TESSARY_SANITIZERS)
  target_compile_options(tessary_options INTERFACE -fsanitize=${TESSARY_SANITIZERS} -fno-omit-frame-pointer)
  target_link_options(tessary_options INTERFACE -fsanitize=${TESSARY_SANITIZERS})
endif()
