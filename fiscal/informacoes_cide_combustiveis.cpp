#include <fiscal/informacoes_cide_combustiveis.hpp>

namespace kivo::erp::v12::fiscal {

struct informacoes_cide_combustiveis::record {
    decimal base_de_calculo;
    decimal valor_aliquota;
    decimal valor_cide;
};

informacoes_cide_combustiveis::informacoes_cide_combustiveis() = default;
informacoes_cide_combustiveis::informacoes_cide_combustiveis(const informacoes_cide_combustiveis&) =
    default;
informacoes_cide_combustiveis::informacoes_cide_combustiveis(informacoes_cide_combustiveis&&) =
    default;
informacoes_cide_combustiveis&
informacoes_cide_combustiveis::operator=(const informacoes_cide_combustiveis&) = default;
informacoes_cide_combustiveis&
informacoes_cide_combustiveis::operator=(informacoes_cide_combustiveis&&) = default;
informacoes_cide_combustiveis::~informacoes_cide_combustiveis() = default;

decimal informacoes_cide_combustiveis::get_base_de_calculo() const {
    return record_->base_de_calculo;
}
void informacoes_cide_combustiveis::set_base_de_calculo(const decimal& value) {
    record_->base_de_calculo = value;
}

decimal informacoes_cide_combustiveis::get_valor_aliquota() const {
    return record_->valor_aliquota;
}
void informacoes_cide_combustiveis::set_valor_aliquota(const decimal& value) {
    record_->valor_aliquota = value;
}

decimal informacoes_cide_combustiveis::get_valor_cide() const { return record_->valor_cide; }
void informacoes_cide_combustiveis::set_valor_cide(const decimal& value) {
    record_->valor_cide = value;
}

} // namespace kivo::erp::v12::fiscal
