# Boost thread and date_time are used header-only. The cross builds must not see the host's
# /usr/include (its glibc headers would shadow mingw's), so they get a folder that holds only a
# link named boost.
find_path(ORVA_BOOST_INCLUDE boost/thread/shared_mutex.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH
          REQUIRED)
add_library(orva_boost INTERFACE)
if(WIN32)
    set(_shim ${CMAKE_BINARY_DIR}/boost-include)
    file(MAKE_DIRECTORY ${_shim})
    file(CREATE_LINK ${ORVA_BOOST_INCLUDE}/boost ${_shim}/boost SYMBOLIC)
    target_include_directories(orva_boost SYSTEM INTERFACE ${_shim})
else()
    target_include_directories(orva_boost SYSTEM INTERFACE ${ORVA_BOOST_INCLUDE})
endif()
# Header-only use: no boost_thread or boost_date_time library is linked, so no interruption
# points either (they live in the compiled library).
target_compile_definitions(orva_boost INTERFACE BOOST_DATE_TIME_NO_LIB BOOST_ALL_NO_LIB
                                                BOOST_THREAD_DONT_PROVIDE_INTERRUPTIONS)
find_package(Threads REQUIRED)
target_link_libraries(orva_boost INTERFACE Threads::Threads)
