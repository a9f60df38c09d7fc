# Warnings are on for everything we compile and must stay clean.
add_library(orva_warnings INTERFACE)
target_compile_options(orva_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    -Woverloaded-virtual -Wnull-dereference -Wformat=2 -Wimplicit-fallthrough)
if(ORVA_WARNINGS_AS_ERRORS)
    target_compile_options(orva_warnings INTERFACE -Werror)
endif()

if(WIN32)
    # Unicode Win32 API, no min/max macros, Windows 7 API surface (what the mail client runs on).
    add_library(orva_win32_defs INTERFACE)
    target_compile_definitions(orva_win32_defs INTERFACE
        UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601 WINVER=0x0601)
    # Static runtime: the add-in and the test programs must not need libstdc++, libgcc or
    # libwinpthread DLLs beside them.
    add_link_options(-static -static-libgcc -static-libstdc++)
endif()
