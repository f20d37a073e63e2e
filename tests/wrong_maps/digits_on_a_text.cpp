// error: digits are for numbers and codes
#include <fiscal/volume.hpp>
#include <layout/map.hpp>

namespace kivo::erp::v12::layout {

using fiscal::volume;

template <> struct map_of<volume> {
    using c = volume;
    static constexpr entries fields{
        field<"esp", &c::get_especie, &c::set_especie, digits(2)>,
    };
};

} // namespace kivo::erp::v12::layout
