// error: the setter does not take what the getter returns
#include <fiscal/volume.hpp>
#include <layout/map.hpp>

namespace kivo::erp::v12::layout {

using fiscal::volume;

template <> struct map_of<volume> {
    using c = volume;
    static constexpr entries fields{
        field<"esp", &c::get_especie, &c::set_peso_bruto>,
    };
};

} // namespace kivo::erp::v12::layout
