# The libraries that the host calls. TESSARY_DEPS is the prefix that scripts/bootstrap fills; a packager may hand over
# other prefixes through CMAKE_PREFIX_PATH and leave it empty.
set(TESSARY_DEPS "" CACHE PATH "Prefix with the statically built libraries")
set(WEBVIEW_INCLUDE_DIR "" CACHE PATH "Folder with webview.h, when not the one in TESSARY_DEPS")
if(TESSARY_DEPS)
  list(PREPEND CMAKE_PREFIX_PATH ${TESSARY_DEPS})
  list(PREPEND CMAKE_FIND_ROOT_PATH ${TESSARY_DEPS})
endif()

find_package(Threads REQUIRED)
find_package(fmt REQUIRED CONFIG)
find_package(json-c REQUIRED CONFIG)
find_package(argparse REQUIRED CONFIG)
find_package(Brotli REQUIRED)
find_package(Httplib REQUIRED)
find_package(Webview REQUIRED)

if(NOT WIN32)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(GTK3 REQUIRED IMPORTED_TARGET gtk+-3.0)
  pkg_check_modules(GIO REQUIRED IMPORTED_TARGET gio-2.0)
  pkg_check_modules(WEBKIT REQUIRED IMPORTED_TARGET webkit2gtk-4.1)
endif()
