#include <fiscal/informacoes_icms_efetivo.hpp>

namespace kivo::erp::v12::fiscal {

struct informacoes_icms_efetivo::record {
    decimal percentual_reducao_bc;
    decimal valor_bc;
    decimal aliquota;
    decimal valor;
};

informacoes_icms_efetivo::informacoes_icms_efetivo() = default;
informacoes_icms_efetivo::informacoes_icms_efetivo(const informacoes_icms_efetivo&) = default;
informacoes_icms_efetivo::informacoes_icms_efetivo(informacoes_icms_efetivo&&) = default;
informacoes_icms_efetivo&
informacoes_icms_efetivo::operator=(const informacoes_icms_efetivo&) = default;
informacoes_icms_efetivo& informacoes_icms_efetivo::operator=(informacoes_icms_efetivo&&) = default;
informacoes_icms_efetivo::~informacoes_icms_efetivo() = default;

decimal informacoes_icms_efetivo::get_percentual_reducao_bc() const {
    return record_->percentual_reducao_bc;
}
void informacoes_icms_efetivo::set_percentual_reducao_bc(const decimal& value) {
    record_->percentual_reducao_bc = value;
}

decimal informacoes_icms_efetivo::get_valor_bc() const { return record_->valor_bc; }
void informacoes_icms_efetivo::set_valor_bc(const decimal& value) { record_->valor_bc = value; }

decimal informacoes_icms_efetivo::get_aliquota() const { return record_->aliquota; }
void informacoes_icms_efetivo::set_aliquota(const decimal& value) { record_->aliquota = value; }

decimal informacoes_icms_efetivo::get_valor() const { return record_->valor; }
void informacoes_icms_efetivo::set_valor(const decimal& value) { record_->valor = value; }

} // namespace kivo::erp::v12::fiscal
