#include <fiscal/tributacao_imposto_importacao.hpp>

namespace kivo::erp::v12::fiscal {

struct tributacao_imposto_importacao::record {
    decimal valor_bc_imposto_importacao;
    decimal valor_despesas_aduaneiras;
    decimal valor_imposto_importacao;
    optional<decimal> valor_imposto_operacoes_financeiras;
};

tributacao_imposto_importacao::tributacao_imposto_importacao() = default;
tributacao_imposto_importacao::tributacao_imposto_importacao(const tributacao_imposto_importacao&) =
    default;
tributacao_imposto_importacao::tributacao_imposto_importacao(tributacao_imposto_importacao&&) =
    default;
tributacao_imposto_importacao&
tributacao_imposto_importacao::operator=(const tributacao_imposto_importacao&) = default;
tributacao_imposto_importacao&
tributacao_imposto_importacao::operator=(tributacao_imposto_importacao&&) = default;
tributacao_imposto_importacao::~tributacao_imposto_importacao() = default;

decimal tributacao_imposto_importacao::get_valor_bc_imposto_importacao() const {
    return record_->valor_bc_imposto_importacao;
}
void tributacao_imposto_importacao::set_valor_bc_imposto_importacao(const decimal& value) {
    record_->valor_bc_imposto_importacao = value;
}

decimal tributacao_imposto_importacao::get_valor_despesas_aduaneiras() const {
    return record_->valor_despesas_aduaneiras;
}
void tributacao_imposto_importacao::set_valor_despesas_aduaneiras(const decimal& value) {
    record_->valor_despesas_aduaneiras = value;
}

decimal tributacao_imposto_importacao::get_valor_imposto_importacao() const {
    return record_->valor_imposto_importacao;
}
void tributacao_imposto_importacao::set_valor_imposto_importacao(const decimal& value) {
    record_->valor_imposto_importacao = value;
}

optional<decimal> tributacao_imposto_importacao::get_valor_imposto_operacoes_financeiras() const {
    return record_->valor_imposto_operacoes_financeiras;
}
void tributacao_imposto_importacao::set_valor_imposto_operacoes_financeiras(
    const optional<decimal>& value) {
    record_->valor_imposto_operacoes_financeiras = value;
}

} // namespace kivo::erp::v12::fiscal
