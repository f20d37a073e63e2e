#include "exceptions.hpp"

namespace kivo::tests {

INSTANTIATE_TYPED_TEST_SUITE_P(parties, every_failure, parties);

} // namespace kivo::tests
