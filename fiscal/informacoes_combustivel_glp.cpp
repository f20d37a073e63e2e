#include <fiscal/informacoes_combustivel_glp.hpp>

namespace kivo::erp::v12::fiscal {

struct informacoes_combustivel_glp::record {
    decimal percentual_derivado_do_petroleo;
    decimal percentual_gas_natural_nacional;
    decimal percentual_gas_natural_importado;
    decimal valor_partida;
};

informacoes_combustivel_glp::informacoes_combustivel_glp() = default;
informacoes_combustivel_glp::informacoes_combustivel_glp(const informacoes_combustivel_glp&) =
    default;
informacoes_combustivel_glp::informacoes_combustivel_glp(informacoes_combustivel_glp&&) = default;
informacoes_combustivel_glp&
informacoes_combustivel_glp::operator=(const informacoes_combustivel_glp&) = default;
informacoes_combustivel_glp&
informacoes_combustivel_glp::operator=(informacoes_combustivel_glp&&) = default;
informacoes_combustivel_glp::~informacoes_combustivel_glp() = default;

decimal informacoes_combustivel_glp::get_percentual_derivado_do_petroleo() const {
    return record_->percentual_derivado_do_petroleo;
}
void informacoes_combustivel_glp::set_percentual_derivado_do_petroleo(const decimal& value) {
    record_->percentual_derivado_do_petroleo = value;
}

decimal informacoes_combustivel_glp::get_percentual_gas_natural_nacional() const {
    return record_->percentual_gas_natural_nacional;
}
void informacoes_combustivel_glp::set_percentual_gas_natural_nacional(const decimal& value) {
    record_->percentual_gas_natural_nacional = value;
}

decimal informacoes_combustivel_glp::get_percentual_gas_natural_importado() const {
    return record_->percentual_gas_natural_importado;
}
void informacoes_combustivel_glp::set_percentual_gas_natural_importado(const decimal& value) {
    record_->percentual_gas_natural_importado = value;
}

decimal informacoes_combustivel_glp::get_valor_partida() const { return record_->valor_partida; }
void informacoes_combustivel_glp::set_valor_partida(const decimal& value) {
    record_->valor_partida = value;
}

} // namespace kivo::erp::v12::fiscal
