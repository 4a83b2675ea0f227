# Httplib::httplib: cpp-httplib as a header, with Brotli and no other encoding.
find_path(Httplib_INCLUDE_DIR httplib.h)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Httplib REQUIRED_VARS Httplib_INCLUDE_DIR)

if(Httplib_FOUND AND NOT TARGET Httplib::httplib)
  add_library(Httplib::httplib INTERFACE IMPORTED)
  # A connection keeps a thread of the library's pool for as long as it is open. By default there are 8 to 32 threads, and
  # connections that nobody uses keep the page waiting behind them. With none kept in reserve each connection starts one
  # of its own: the library miscounts those in reserve when connections come faster than they wake.
  set_target_properties(Httplib::httplib PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES ${Httplib_INCLUDE_DIR}
    INTERFACE_COMPILE_DEFINITIONS
      "CPPHTTPLIB_BROTLI_SUPPORT;CPPHTTPLIB_THREAD_POOL_COUNT=0;CPPHTTPLIB_THREAD_POOL_MAX_COUNT=256")
  target_link_libraries(Httplib::httplib INTERFACE Brotli::enc Brotli::dec Threads::Threads)
  if(WIN32)
    target_link_libraries(Httplib::httplib INTERFACE ws2_32 crypt32)
  endif()
endif()
