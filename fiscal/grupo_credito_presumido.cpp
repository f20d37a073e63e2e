#include <fiscal/grupo_credito_presumido.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_credito_presumido::record {
    std::string codigo_beneficio_fiscal;
    decimal percentual_credito_presumido;
    decimal valor_credito_presumido;
};

grupo_credito_presumido::grupo_credito_presumido() = default;
grupo_credito_presumido::grupo_credito_presumido(const grupo_credito_presumido&) = default;
grupo_credito_presumido::grupo_credito_presumido(grupo_credito_presumido&&) = default;
grupo_credito_presumido&
grupo_credito_presumido::operator=(const grupo_credito_presumido&) = default;
grupo_credito_presumido& grupo_credito_presumido::operator=(grupo_credito_presumido&&) = default;
grupo_credito_presumido::~grupo_credito_presumido() = default;

std::string grupo_credito_presumido::get_codigo_beneficio_fiscal() const {
    return record_->codigo_beneficio_fiscal;
}
void grupo_credito_presumido::set_codigo_beneficio_fiscal(const std::string& value) {
    record_->codigo_beneficio_fiscal = value;
}

decimal grupo_credito_presumido::get_percentual_credito_presumido() const {
    return record_->percentual_credito_presumido;
}
void grupo_credito_presumido::set_percentual_credito_presumido(const decimal& value) {
    record_->percentual_credito_presumido = value;
}

decimal grupo_credito_presumido::get_valor_credito_presumido() const {
    return record_->valor_credito_presumido;
}
void grupo_credito_presumido::set_valor_credito_presumido(const decimal& value) {
    record_->valor_credito_presumido = value;
}

} // namespace kivo::erp::v12::fiscal
