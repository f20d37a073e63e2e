#pragma once

#include <cstddef>
#include <string>

namespace kivo::tests {

/// How often something was tried; every count is printed when the tests end.
std::size_t& tried(const std::string& what);

} // namespace kivo::tests
