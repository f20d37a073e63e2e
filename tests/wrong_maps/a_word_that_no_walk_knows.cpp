// error: a word of the map that the walk does not know
#include <fiscal/volume.hpp>
#include <layout/map.hpp>

namespace kivo::erp::v12::layout {

using fiscal::volume;

struct unknown_word {};

template <> struct map_of<volume> {
    using c = volume;
    static constexpr entries fields{
        unknown_word(),
    };
};

using known = accessors<volume>;

} // namespace kivo::erp::v12::layout
