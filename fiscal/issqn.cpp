#include <fiscal/issqn.hpp>

namespace kivo::erp::v12::fiscal {

struct issqn::record {
    decimal valor_bc;
    decimal valor_aliquota;
    decimal valor_issqn;
    std::uint32_t codigo_municio_de_ocorrencia = 0;
    std::string item_lista_servicos;
    optional<decimal> valor_deducao;
    optional<decimal> valor_outras_retencoes;
    optional<decimal> valor_desconto_incondicionado;
    optional<decimal> valor_desconto_condicionado;
    optional<decimal> valor_retencao_iss;
    std::uint16_t indicador_iss = 0;
    optional<std::string> codigo_servico;
    optional<std::uint32_t> codigo_municipio_incidencia;
    optional<std::uint16_t> codigo_pais;
    optional<std::string> numero_processo;
    std::uint16_t indicador_incentivo = 0;
};

issqn::issqn() noexcept = default;
issqn::issqn(const issqn&) = default;
issqn::issqn(issqn&&) noexcept = default;
issqn& issqn::operator=(const issqn&) = default;
issqn& issqn::operator=(issqn&&) noexcept = default;
issqn::~issqn() = default;
void issqn::swap(issqn& other) noexcept { record_.swap(other.record_); }

decimal issqn::get_valor_bc() const { return record_.get(&record::valor_bc); }
void issqn::set_valor_bc(const decimal& value) { record_.set(&record::valor_bc, value); }

decimal issqn::get_valor_aliquota() const { return record_.get(&record::valor_aliquota); }
void issqn::set_valor_aliquota(const decimal& value) {
    record_.set(&record::valor_aliquota, value);
}

decimal issqn::get_valor_issqn() const { return record_.get(&record::valor_issqn); }
void issqn::set_valor_issqn(const decimal& value) { record_.set(&record::valor_issqn, value); }

std::uint32_t issqn::get_codigo_municio_de_ocorrencia() const {
    return record_.get(&record::codigo_municio_de_ocorrencia);
}
void issqn::set_codigo_municio_de_ocorrencia(std::uint32_t value) {
    record_.set(&record::codigo_municio_de_ocorrencia, value);
}

std::string issqn::get_item_lista_servicos() const {
    return record_.get(&record::item_lista_servicos);
}
void issqn::set_item_list_servicos(const std::string& value) {
    record_.set(&record::item_lista_servicos, value);
}

optional<decimal> issqn::get_valor_deducao() const { return record_.get(&record::valor_deducao); }
void issqn::set_valor_deducao(const optional<decimal>& value) {
    record_.set(&record::valor_deducao, value);
}

optional<decimal> issqn::get_valor_outras_retencoes() const {
    return record_.get(&record::valor_outras_retencoes);
}
void issqn::set_valor_outras_retencoes(const optional<decimal>& value) {
    record_.set(&record::valor_outras_retencoes, value);
}

optional<decimal> issqn::get_valor_desconto_incondicionado() const {
    return record_.get(&record::valor_desconto_incondicionado);
}
void issqn::set_valor_desconto_incondicionado(const optional<decimal>& value) {
    record_.set(&record::valor_desconto_incondicionado, value);
}

optional<decimal> issqn::get_valor_desconto_condicionado() const {
    return record_.get(&record::valor_desconto_condicionado);
}
void issqn::set_valor_desconto_condicionado(const optional<decimal>& value) {
    record_.set(&record::valor_desconto_condicionado, value);
}

optional<decimal> issqn::get_valor_retencao_iss() const {
    return record_.get(&record::valor_retencao_iss);
}
void issqn::set_valor_retencao_iss(const optional<decimal>& value) {
    record_.set(&record::valor_retencao_iss, value);
}

std::uint16_t issqn::get_indicador_iss() const { return record_.get(&record::indicador_iss); }
void issqn::set_indicador_iss(std::uint16_t value) { record_.set(&record::indicador_iss, value); }

optional<std::uint32_t> issqn::get_codigo_municipio_incidencia() const {
    return record_.get(&record::codigo_municipio_incidencia);
}
void issqn::set_codigo_municipio_incidencia(const optional<std::uint32_t>& value) {
    record_.set(&record::codigo_municipio_incidencia, value);
}

optional<std::uint16_t> issqn::get_codigo_pais() const { return record_.get(&record::codigo_pais); }
void issqn::set_codigo_pais(const optional<std::uint16_t>& value) {
    record_.set(&record::codigo_pais, value);
}

std::uint16_t issqn::get_indicador_incentivo() const {
    return record_.get(&record::indicador_incentivo);
}
void issqn::set_indicador_incentivo(std::uint16_t value) {
    record_.set(&record::indicador_incentivo, value);
}

optional<std::string> issqn::get_numero_processo() const {
    return record_.get(&record::numero_processo);
}
void issqn::set_numero_processo(const optional<std::string>& value) {
    record_.set(&record::numero_processo, value);
}

optional<std::string> issqn::get_codigo_servico() const {
    return record_.get(&record::codigo_servico);
}
void issqn::set_codigo_servico(const optional<std::string>& value) {
    record_.set(&record::codigo_servico, value);
}

} // namespace kivo::erp::v12::fiscal
