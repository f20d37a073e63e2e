#include <fiscal/grupo_processo_referenciado.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_processo_referenciado::record {
    std::string identificador;
    grupo_processo_referenciado::indicador_da_origem indicador_da_origem = {};
    optional<grupo_processo_referenciado::tipo_ato_concessorio> tipo_ato_concessorio;
};

grupo_processo_referenciado::grupo_processo_referenciado() noexcept = default;
grupo_processo_referenciado::grupo_processo_referenciado(
    const grupo_processo_referenciado&) noexcept = default;
grupo_processo_referenciado::grupo_processo_referenciado(grupo_processo_referenciado&&) noexcept =
    default;
grupo_processo_referenciado&
grupo_processo_referenciado::operator=(const grupo_processo_referenciado&) noexcept = default;
grupo_processo_referenciado&
grupo_processo_referenciado::operator=(grupo_processo_referenciado&&) noexcept = default;
grupo_processo_referenciado::~grupo_processo_referenciado() = default;
void grupo_processo_referenciado::swap(grupo_processo_referenciado& other) noexcept {
    record_.swap(other.record_);
}

std::string grupo_processo_referenciado::get_identificador() const {
    return record_.get(&record::identificador);
}
void grupo_processo_referenciado::set_identificador(const std::string& value) {
    record_.set(&record::identificador, value);
}

grupo_processo_referenciado::indicador_da_origem
grupo_processo_referenciado::get_indicador_da_origem() const {
    return record_.get(&record::indicador_da_origem);
}
void grupo_processo_referenciado::set_indicador_da_origem(indicador_da_origem value) {
    record_.set(&record::indicador_da_origem, value);
}

optional<grupo_processo_referenciado::tipo_ato_concessorio>
grupo_processo_referenciado::get_tipo_ato_concessorio() const {
    return record_.get(&record::tipo_ato_concessorio);
}
void grupo_processo_referenciado::set_tipo_ato_concessorio(
    const optional<tipo_ato_concessorio>& value) {
    record_.set(&record::tipo_ato_concessorio, value);
}

} // namespace kivo::erp::v12::fiscal
