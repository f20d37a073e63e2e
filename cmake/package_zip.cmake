# The zip for Windows: the library, what it takes to compile against it, the tool, the DLLs with
# which they run, and the licences of what is linked in. Both stand in a MinGW-w64 of Debian, and in
# what is built by it in KIVO_PORT_ROOT.

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME "kivo-erp-fiscal-${PROJECT_VERSION}-windows-x86_64")
set(CPACK_PACKAGE_VENDOR kivo)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development)

set(dlls libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
if(KIVO_BUILD_LAYOUT)
    list(APPEND CPACK_COMPONENTS_ALL layout)
endif()
if(KIVO_BUILD_TOOLS)
    list(APPEND CPACK_COMPONENTS_ALL tools)
    list(APPEND dlls libintl-8 libzint)
endif()
foreach(dll IN LISTS dlls)
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-B${KIVO_PORT_ROOT}/usr/bin/"
            "-print-file-name=${dll}.dll"
        OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    install(FILES "${file}" DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime)
    install(CODE "execute_process(COMMAND \"${CMAKE_STRIP}\"
        \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/${dll}.dll\"
        COMMAND_ERROR_IS_FATAL ANY)" COMPONENT runtime)
endforeach()

file(GLOB licences "${KIVO_PORT_ROOT}/usr/share/doc/*/copyright"
    /usr/share/doc/*-mingw-w64-x86-64-posix-runtime/copyright
    /usr/share/doc/mingw-w64-x86-64-dev/copyright)
foreach(licence IN LISTS licences)
    cmake_path(GET licence PARENT_PATH folder)
    cmake_path(GET folder FILENAME package)
    install(FILES "${licence}" DESTINATION "${CMAKE_INSTALL_DATADIR}/licences" RENAME "${package}.txt"
        COMPONENT runtime)
endforeach()
# to which some of them refer
install(FILES /usr/share/common-licenses/GPL-3 /usr/share/common-licenses/LGPL-2.1
    DESTINATION "${CMAKE_INSTALL_DATADIR}/licences" COMPONENT runtime)
include(CPack)
