# A Debian of another processor: its cross compiler, and its packages unpacked in KIVO_PORT_ROOT.
# What includes this has set Debian's names of the architecture and of its folders, and the triplet
# of its tools.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${processor})
set(CMAKE_C_COMPILER ${triplet}-gcc-12)
set(CMAKE_CXX_COMPILER ${triplet}-g++-12)
set(CMAKE_LIBRARY_ARCHITECTURE ${multiarch})
# what libraries themselves need
foreach(kind EXE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT
        "-Wl,-rpath-link,${KIVO_PORT_ROOT}/lib/${multiarch}:${KIVO_PORT_ROOT}/usr/lib/${multiarch}")
endforeach()
set(CMAKE_CROSSCOMPILING_EMULATOR "${emulator};-L;${KIVO_PORT_ROOT}")
set(CMAKE_FIND_ROOT_PATH "${KIVO_PORT_ROOT}")
include("${CMAKE_CURRENT_LIST_DIR}/port_root.cmake")
set(ENV{PKG_CONFIG_SYSROOT_DIR} "${KIVO_PORT_ROOT}")
set(ENV{PKG_CONFIG_LIBDIR} "${KIVO_PORT_ROOT}/usr/lib/${multiarch}/pkgconfig")
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${architecture})
set(CMAKE_INSTALL_LIBDIR lib/${multiarch})
