#include <fiscal/cobranca.hpp>

#include <fiscal/duplicata.hpp>

namespace kivo::erp::v12::fiscal {

struct cobranca::record {
    optional<std::string> numero_fatura;
    optional<decimal> valor_original_fatura;
    optional<decimal> valor_desconto;
    optional<decimal> valor_liquido;
    std::vector<duplicata> duplicatas;
};

cobranca::cobranca() = default;
cobranca::cobranca(const cobranca&) = default;
cobranca::cobranca(cobranca&&) = default;
cobranca& cobranca::operator=(const cobranca&) = default;
cobranca& cobranca::operator=(cobranca&&) = default;
cobranca::~cobranca() = default;

optional<std::string> cobranca::get_numero_fatura() const { return record_->numero_fatura; }
void cobranca::set_numero_fatura(const optional<std::string>& value) {
    record_->numero_fatura = value;
}

optional<decimal> cobranca::get_valor_original_fatura() const {
    return record_->valor_original_fatura;
}
void cobranca::set_valor_original_fatura(const optional<decimal>& value) {
    record_->valor_original_fatura = value;
}

optional<decimal> cobranca::get_valor_desconto() const { return record_->valor_desconto; }
void cobranca::set_valor_desconto(const optional<decimal>& value) {
    record_->valor_desconto = value;
}

optional<decimal> cobranca::get_valor_liquido() const { return record_->valor_liquido; }
void cobranca::set_valor_liquido(const optional<decimal>& value) { record_->valor_liquido = value; }

std::vector<duplicata> cobranca::get_duplicatas() const { return record_->duplicatas; }
void cobranca::set_duplicatas(const std::vector<duplicata>& value) { record_->duplicatas = value; }

} // namespace kivo::erp::v12::fiscal
