#pragma once

#if __cplusplus < 202002L
// a file that is not there ends the compilation, where #error would let pages of others follow
#include "kivo-erp-fiscal needs C++20: compile with -std=c++20"
#endif

/// Marks what the shared library exports; everything else in it is hidden.
#if !defined(_WIN32)
#define KIVO_ERP_FISCAL_EXPORT __attribute__((visibility("default")))
#elif defined(KIVO_ERP_FISCAL_BUILDS) // the library itself
#define KIVO_ERP_FISCAL_EXPORT __declspec(dllexport)
#elif defined(KIVO_ERP_FISCAL_STATIC) // its sources, as a part of a program
#define KIVO_ERP_FISCAL_EXPORT
#else
#define KIVO_ERP_FISCAL_EXPORT __declspec(dllimport)
#endif
