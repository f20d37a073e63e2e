#pragma once

/// Marks what the shared library exports; everything else in it is hidden.
#define KIVO_ERP_FISCAL_EXPORT __attribute__((visibility("default")))
