# tessary_httplib: cpp-httplib compiled once. As a header alone every unit that includes it compiles all of it: ten units,
# 12 MB of object code each. The header is made to be split at two marked lines.
get_target_property(include_dir Httplib::httplib INTERFACE_INCLUDE_DIRECTORIES)
set(header_file ${include_dir}/httplib.h)
set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header_file})
file(READ ${header_file} header)
set(mark "\n// ----------------------------------------------------------------------------\n")
string(FIND "${header}" "${mark}" begin)
string(FIND "${header}" "${mark}" end REVERSE)
if(NOT begin LESS end)
  message(FATAL_ERROR "cpp-httplib's header is not marked for splitting: ${header_file}")
endif()

function(write_if_changed path text)
  if(EXISTS ${path})
    file(READ ${path} present)
  endif()
  if(NOT "${present}" STREQUAL "${text}")
    file(WRITE ${path} "${text}")
  endif()
endfunction()

math(EXPR length "${end} - ${begin}")
string(SUBSTRING "${header}" 0 ${begin} declarations)
string(SUBSTRING "${header}" ${begin} ${length} definitions)
string(SUBSTRING "${header}" ${end} -1 tail)
string(REPLACE "inline " "" definitions "${definitions}")

# The library's own queue of connections is replaced by ours: src/server/connection_queue.h says why.
function(replace_in_definitions old new)
  string(REPLACE "${old}" "" without "${definitions}")
  string(LENGTH "${definitions}" before)
  string(LENGTH "${without}" after)
  string(LENGTH "${old}" once)
  math(EXPR removed "${before} - ${after}")
  if(NOT removed EQUAL once)
    message(FATAL_ERROR "cpp-httplib has changed: this stands in it not once: ${old}")
  endif()
  string(REPLACE "${old}" "${new}" definitions "${definitions}")
  set(definitions "${definitions}" PARENT_SCOPE)
endfunction()

replace_in_definitions([[new ThreadPool(CPPHTTPLIB_THREAD_POOL_COUNT,
                              CPPHTTPLIB_THREAD_POOL_MAX_COUNT)]] [[new ConnectionQueue]])
replace_in_definitions([[accept4(svr_sock_, nullptr, nullptr, SOCK_CLOEXEC)]] [[ConnectionQueue::accept(svr_sock_)]])
replace_in_definitions([[WSAAccept(svr_sock_, nullptr, nullptr, nullptr, 0)]] [[ConnectionQueue::accept(svr_sock_)]])

# The libraries share a folder of headers, and the whole header is in it. A plain include directory is searched before all
# system ones, so the split header is found whatever else a unit uses; the pragma makes it a system header again.
set(generated ${PROJECT_BINARY_DIR}/generated/httplib)
set(system_header "#ifdef __GNUC__\n#pragma GCC system_header\n#endif\n")
write_if_changed(${generated}/httplib.h "${system_header}${declarations}${tail}")
write_if_changed(${generated}/httplib.cpp
  "#include \"httplib.h\"\n#include \"server/connection_queue.h\"\nnamespace httplib {${definitions}}\n")

add_library(tessary_httplib_header INTERFACE)
target_include_directories(tessary_httplib_header INTERFACE ${generated})
target_link_libraries(tessary_httplib_header INTERFACE Httplib::httplib)

add_library(tessary_httplib STATIC ${generated}/httplib.cpp)
target_include_directories(tessary_httplib PRIVATE ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(tessary_httplib PUBLIC tessary_httplib_header PRIVATE tessary_build tessary_connections)
