// error: only lists are numbered
#include <fiscal/volume.hpp>
#include <layout/map.hpp>

namespace kivo::erp::v12::layout {

using fiscal::volume;

template <> struct map_of<volume> {
    using c = volume;
    static constexpr entries fields{
        numbered<"esp", &c::get_especie, &c::set_especie, "@nItem">,
    };
};

} // namespace kivo::erp::v12::layout
