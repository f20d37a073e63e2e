#include <fiscal/encerrante_bomba_combustiveis.hpp>

namespace kivo::erp::v12::fiscal {

struct encerrante_bomba_combustiveis::record {
    std::uint16_t identificacao_bico = 0;
    optional<std::uint16_t> identificacao_bomba;
    std::uint16_t identificacao_tanque = 0;
    decimal valor_inicial;
    decimal valor_final;
    optional<decimal> percentual_biodiesel;
};

encerrante_bomba_combustiveis::encerrante_bomba_combustiveis() = default;
encerrante_bomba_combustiveis::encerrante_bomba_combustiveis(const encerrante_bomba_combustiveis&) =
    default;
encerrante_bomba_combustiveis::encerrante_bomba_combustiveis(encerrante_bomba_combustiveis&&) =
    default;
encerrante_bomba_combustiveis&
encerrante_bomba_combustiveis::operator=(const encerrante_bomba_combustiveis&) = default;
encerrante_bomba_combustiveis&
encerrante_bomba_combustiveis::operator=(encerrante_bomba_combustiveis&&) = default;
encerrante_bomba_combustiveis::~encerrante_bomba_combustiveis() = default;

std::uint16_t encerrante_bomba_combustiveis::get_identificacao_bico() const {
    return record_->identificacao_bico;
}
void encerrante_bomba_combustiveis::set_identificacao_bico(std::uint16_t value) {
    record_->identificacao_bico = value;
}

optional<std::uint16_t> encerrante_bomba_combustiveis::get_identificacao_bomba() const {
    return record_->identificacao_bomba;
}
void encerrante_bomba_combustiveis::set_identificacao_bomba(const optional<std::uint16_t>& value) {
    record_->identificacao_bomba = value;
}

std::uint16_t encerrante_bomba_combustiveis::get_identificacao_tanque() const {
    return record_->identificacao_tanque;
}
void encerrante_bomba_combustiveis::set_identificacao_tanque(std::uint16_t value) {
    record_->identificacao_tanque = value;
}

decimal encerrante_bomba_combustiveis::get_valor_inicial() const { return record_->valor_inicial; }
void encerrante_bomba_combustiveis::set_valor_inicial(const decimal& value) {
    record_->valor_inicial = value;
}

decimal encerrante_bomba_combustiveis::get_valor_final() const { return record_->valor_final; }
void encerrante_bomba_combustiveis::set_valor_final(const decimal& value) {
    record_->valor_final = value;
}

optional<decimal> encerrante_bomba_combustiveis::get_percentual_biodiesel() const {
    return record_->percentual_biodiesel;
}
void encerrante_bomba_combustiveis::set_percentual_biodiesel(const optional<decimal>& value) {
    record_->percentual_biodiesel = value;
}

} // namespace kivo::erp::v12::fiscal
