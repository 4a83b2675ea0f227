# Webview::webview: the web-view library, a header. WEBVIEW_INCLUDE_DIR names another folder for it.
if(NOT WEBVIEW_INCLUDE_DIR)
  find_path(Webview_INCLUDE_DIR webview.h)
else()
  set(Webview_INCLUDE_DIR ${WEBVIEW_INCLUDE_DIR})
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Webview REQUIRED_VARS Webview_INCLUDE_DIR)

if(Webview_FOUND AND NOT TARGET Webview::webview)
  add_library(Webview::webview INTERFACE IMPORTED)
  set_target_properties(Webview::webview PROPERTIES
    INTERFACE_SYSTEM_INCLUDE_DIRECTORIES ${Webview_INCLUDE_DIR}
    INTERFACE_INCLUDE_DIRECTORIES ${Webview_INCLUDE_DIR})
endif()
