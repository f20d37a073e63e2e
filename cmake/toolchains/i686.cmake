set(processor i686)
set(triplet i686-linux-gnu)
set(emulated i386)
include("${CMAKE_CURRENT_LIST_DIR}/debian.cmake")
