#pragma once

#include "report.hpp"

/// Invoices as XML documents: read into objects and written from them, beside the XML library alone
/// and, where their schemas are at hand, bindings made from the official schemas.
namespace kivo::benchmarks {

/// Registers the benchmarks. Throws std::logic_error where a document that is read and written is
/// not the same.
void measure_documents();

void print_documents(const results& measured);

} // namespace kivo::benchmarks
