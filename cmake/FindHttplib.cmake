# Httplib::httplib: cpp-httplib as a header, with Brotli and no other encoding.
find_path(Httplib_INCLUDE_DIR httplib.h)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Httplib REQUIRED_VARS Httplib_INCLUDE_DIR)

if(Httplib_FOUND AND NOT TARGET Httplib::httplib)
  add_library(Httplib::httplib INTERFACE IMPORTED)
  # No route takes a body, so little of one is read. Page and programs connect in bursts, for which the library's backlog
  # of 5 is short. The loop that accepts looks after its connections once a second. Threads with an idle connection need
  # not wake a hundred times a second to see whether the server has ended: it wakes them.
  set_target_properties(Httplib::httplib PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES ${Httplib_INCLUDE_DIR}
    INTERFACE_COMPILE_DEFINITIONS
      "CPPHTTPLIB_BROTLI_SUPPORT;CPPHTTPLIB_PAYLOAD_MAX_LENGTH=65536;CPPHTTPLIB_LISTEN_BACKLOG=1024;CPPHTTPLIB_IDLE_INTERVAL_SECOND=1;CPPHTTPLIB_IDLE_INTERVAL_USECOND=0;CPPHTTPLIB_KEEPALIVE_TIMEOUT_CHECK_INTERVAL_USECOND=1000000")
  target_link_libraries(Httplib::httplib INTERFACE Brotli::enc Brotli::dec Threads::Threads)
  if(WIN32)
    target_link_libraries(Httplib::httplib INTERFACE ws2_32 crypt32)
  endif()
endif()
