#include <fiscal/total_nfe_issqn.hpp>

namespace kivo::erp::v12::fiscal {

struct total_nfe_issqn::record {
    optional<decimal> valor_servico;
    optional<decimal> valor_base_calculo;
    optional<decimal> valor_iss;
    optional<decimal> valor_pis;
    optional<decimal> valor_cofins;
    date data_prestacao_servico;
    optional<decimal> valor_deducao;
    optional<decimal> valor_outras_retencoes;
    optional<decimal> valor_desconto_incondicionado;
    optional<decimal> valor_desconto_condicionado;
    optional<decimal> valor_iss_retido;
    optional<std::uint16_t> codigo_regime_tributacao;
};

total_nfe_issqn::total_nfe_issqn() noexcept = default;
total_nfe_issqn::total_nfe_issqn(const total_nfe_issqn&) = default;
total_nfe_issqn::total_nfe_issqn(total_nfe_issqn&&) noexcept = default;
total_nfe_issqn& total_nfe_issqn::operator=(const total_nfe_issqn&) = default;
total_nfe_issqn& total_nfe_issqn::operator=(total_nfe_issqn&&) noexcept = default;
total_nfe_issqn::~total_nfe_issqn() = default;
void total_nfe_issqn::swap(total_nfe_issqn& other) noexcept { record_.swap(other.record_); }

optional<decimal> total_nfe_issqn::get_valor_servico() const {
    return record_.get(&record::valor_servico);
}
void total_nfe_issqn::set_valor_servico(const optional<decimal>& value) {
    record_.set(&record::valor_servico, value);
}

optional<decimal> total_nfe_issqn::get_valor_base_calculo() const {
    return record_.get(&record::valor_base_calculo);
}
void total_nfe_issqn::set_valor_base_calculo(const optional<decimal>& value) {
    record_.set(&record::valor_base_calculo, value);
}

optional<decimal> total_nfe_issqn::get_valor_iss() const { return record_.get(&record::valor_iss); }
void total_nfe_issqn::set_valor_iss(const optional<decimal>& value) {
    record_.set(&record::valor_iss, value);
}

optional<decimal> total_nfe_issqn::get_valor_pis() const { return record_.get(&record::valor_pis); }
void total_nfe_issqn::set_valor_pis(const optional<decimal>& value) {
    record_.set(&record::valor_pis, value);
}

optional<decimal> total_nfe_issqn::get_valor_cofins() const {
    return record_.get(&record::valor_cofins);
}
void total_nfe_issqn::set_valor_cofins(const optional<decimal>& value) {
    record_.set(&record::valor_cofins, value);
}

date total_nfe_issqn::get_data_prestacao_servico() const {
    return record_.get(&record::data_prestacao_servico);
}
void total_nfe_issqn::set_data_prestacao_servico(const date& value) {
    record_.set(&record::data_prestacao_servico, value);
}

optional<decimal> total_nfe_issqn::get_valor_deducao() const {
    return record_.get(&record::valor_deducao);
}
void total_nfe_issqn::set_valor_deducao(const optional<decimal>& value) {
    record_.set(&record::valor_deducao, value);
}

optional<decimal> total_nfe_issqn::get_valor_outras_retencoes() const {
    return record_.get(&record::valor_outras_retencoes);
}
void total_nfe_issqn::set_valor_outras_retencoes(const optional<decimal>& value) {
    record_.set(&record::valor_outras_retencoes, value);
}

optional<decimal> total_nfe_issqn::get_valor_desconto_incondicionado() const {
    return record_.get(&record::valor_desconto_incondicionado);
}
void total_nfe_issqn::set_valor_desconto_incondicionado(const optional<decimal>& value) {
    record_.set(&record::valor_desconto_incondicionado, value);
}

optional<decimal> total_nfe_issqn::get_valor_desconto_condicionado() const {
    return record_.get(&record::valor_desconto_condicionado);
}
void total_nfe_issqn::set_valor_desconto_condicionado(const optional<decimal>& value) {
    record_.set(&record::valor_desconto_condicionado, value);
}

optional<decimal> total_nfe_issqn::get_valor_iss_retido() const {
    return record_.get(&record::valor_iss_retido);
}
void total_nfe_issqn::set_valor_iss_retido(const optional<decimal>& value) {
    record_.set(&record::valor_iss_retido, value);
}

optional<std::uint16_t> total_nfe_issqn::get_codigo_regime_tributacao() const {
    return record_.get(&record::codigo_regime_tributacao);
}
void total_nfe_issqn::set_codigo_regime_tributacao(const optional<std::uint16_t>& value) {
    record_.set(&record::codigo_regime_tributacao, value);
}

} // namespace kivo::erp::v12::fiscal
