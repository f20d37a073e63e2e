#pragma once

#include <layout/xml.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace kivo::tests {

/// What is wrong with how an invoice is read and written; empty where nothing is. Applied to the
/// document that was read, the report has to give the one that is written, element for element;
/// and that one has to come back as it is. Throws what reading throws.
std::vector<std::string> faults_of_round_trip(std::string_view xml);

} // namespace kivo::tests
