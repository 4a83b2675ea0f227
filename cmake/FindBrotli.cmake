# Brotli::enc and Brotli::dec. Brotli installs no CMake files of its own.
find_path(Brotli_INCLUDE_DIR brotli/encode.h)
find_library(Brotli_COMMON_LIBRARY brotlicommon)
find_library(Brotli_ENC_LIBRARY brotlienc)
find_library(Brotli_DEC_LIBRARY brotlidec)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Brotli REQUIRED_VARS
  Brotli_ENC_LIBRARY Brotli_DEC_LIBRARY Brotli_COMMON_LIBRARY Brotli_INCLUDE_DIR)

if(Brotli_FOUND AND NOT TARGET Brotli::enc)
  foreach(part enc dec)
    string(TOUPPER ${part} upper)
    add_library(Brotli::${part} UNKNOWN IMPORTED)
    set_target_properties(Brotli::${part} PROPERTIES
      IMPORTED_LOCATION ${Brotli_${upper}_LIBRARY}
      INTERFACE_INCLUDE_DIRECTORIES ${Brotli_INCLUDE_DIR}
      INTERFACE_LINK_LIBRARIES ${Brotli_COMMON_LIBRARY})
  endforeach()
endif()
