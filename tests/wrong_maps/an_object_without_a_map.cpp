// error: a class without a map
#include <fiscal/volume.hpp>
#include <layout/engine.hpp>

namespace kivo::erp::v12::layout {

const table& known = table_of<map_of<fiscal::volume>>();

} // namespace kivo::erp::v12::layout
