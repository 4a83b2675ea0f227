# Httplib::httplib: cpp-httplib as a header, with Brotli and no other encoding.
find_path(Httplib_INCLUDE_DIR httplib.h)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Httplib REQUIRED_VARS Httplib_INCLUDE_DIR)

if(Httplib_FOUND AND NOT TARGET Httplib::httplib)
  add_library(Httplib::httplib INTERFACE IMPORTED)
  set_target_properties(Httplib::httplib PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES ${Httplib_INCLUDE_DIR}
    INTERFACE_COMPILE_DEFINITIONS CPPHTTPLIB_BROTLI_SUPPORT)
  target_link_libraries(Httplib::httplib INTERFACE Brotli::enc Brotli::dec Threads::Threads)
  if(WIN32)
    target_link_libraries(Httplib::httplib INTERFACE ws2_32 crypt32)
  endif()
endif()
