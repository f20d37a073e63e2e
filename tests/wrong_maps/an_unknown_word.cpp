// error: a word of the map that the engine does not know
#include <fiscal/volume.hpp>
#include <layout/engine.hpp>

namespace kivo::erp::v12::layout {

using fiscal::volume;

struct unknown_word {};

template <> struct map_of<volume> {
    using c = volume;
    static constexpr entries fields{
        unknown_word(),
    };
};

const table& known = table_of<map_of<volume>>();

} // namespace kivo::erp::v12::layout
