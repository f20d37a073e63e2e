// error: neither a class with a map nor a single value
#include <fiscal/informacoes_transporte.hpp>
#include <fiscal/volume.hpp>
#include <layout/engine.hpp>

namespace kivo::erp::v12::layout {

using fiscal::informacoes_transporte;

template <> struct map_of<informacoes_transporte> {
    using c = informacoes_transporte;
    static constexpr entries fields{
        field<"vol", &c::get_volumes, &c::set_volumes>,
    };
};

const table& known = table_of<map_of<informacoes_transporte>>();

} // namespace kivo::erp::v12::layout
