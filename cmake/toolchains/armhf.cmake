set(processor armv7l)
set(triplet arm-linux-gnueabihf)
set(emulated arm)
include("${CMAKE_CURRENT_LIST_DIR}/debian.cmake")
