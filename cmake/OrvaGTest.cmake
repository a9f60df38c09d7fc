# Natively GoogleTest comes from Debian's libgtest-dev; the mingw builds compile it from the
# sources Debian's googletest package installs, with the same toolchain as the code under test.
if(WIN32)
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
    set(gtest_disable_pthreads OFF CACHE BOOL "" FORCE)
    add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
    # Newer googletest sources define these aliases themselves.
    foreach(_lib gtest gtest_main gmock)
        if(NOT TARGET GTest::${_lib})
            add_library(GTest::${_lib} ALIAS ${_lib})
        endif()
    endforeach()
else()
    find_package(GTest REQUIRED)
endif()
include(GoogleTest)
