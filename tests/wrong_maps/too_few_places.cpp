// error: a place for each alternative, in index order
#include <fiscal/transportador.hpp>
#include <layout/engine.hpp>

namespace kivo::erp::v12::layout {

using fiscal::transportador;

template <> struct map_of<transportador> {
    using c = transportador;
    static constexpr entries fields{
        one_of<&c::get_documento, &c::set_documento, as<"CPF">>,
    };
};

const table& known = table_of<map_of<transportador>>();

} // namespace kivo::erp::v12::layout
