#pragma once

#if __cplusplus < 202002L
// a file that is not there ends the compilation, where #error would let pages of others follow
#include "kivo-erp-fiscal needs C++20: compile with -std=c++20"
#endif

/// Marks what the shared library exports; everything else in it is hidden.
#define KIVO_ERP_FISCAL_EXPORT __attribute__((visibility("default")))
