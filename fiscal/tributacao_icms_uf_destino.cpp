#include <fiscal/tributacao_icms_uf_destino.hpp>

namespace kivo::erp::v12::fiscal {

struct tributacao_icms_uf_destino::record {
    decimal valor_bc;
    optional<decimal> valor_bc_fcp;
    optional<decimal> percentual_fundo_combate_pobreza;
    decimal aliquota_interna;
    decimal aliquota_interestadual;
    decimal percentual_partilha;
    optional<decimal> valor_icms_fundo_combate_pobreza;
    decimal valor_icms_uf_destino;
    decimal valor_icms_uf_remetente;
};

tributacao_icms_uf_destino::tributacao_icms_uf_destino() = default;
tributacao_icms_uf_destino::tributacao_icms_uf_destino(const tributacao_icms_uf_destino&) = default;
tributacao_icms_uf_destino::tributacao_icms_uf_destino(tributacao_icms_uf_destino&&) = default;
tributacao_icms_uf_destino&
tributacao_icms_uf_destino::operator=(const tributacao_icms_uf_destino&) = default;
tributacao_icms_uf_destino&
tributacao_icms_uf_destino::operator=(tributacao_icms_uf_destino&&) = default;
tributacao_icms_uf_destino::~tributacao_icms_uf_destino() = default;

decimal tributacao_icms_uf_destino::get_valor_bc() const { return record_->valor_bc; }
void tributacao_icms_uf_destino::set_valor_bc(const decimal& value) { record_->valor_bc = value; }

optional<decimal> tributacao_icms_uf_destino::get_valor_bc_fcp() const {
    return record_->valor_bc_fcp;
}
void tributacao_icms_uf_destino::set_valor_bc_fcp(const optional<decimal>& value) {
    record_->valor_bc_fcp = value;
}

optional<decimal> tributacao_icms_uf_destino::get_percentual_fundo_combate_pobreza() const {
    return record_->percentual_fundo_combate_pobreza;
}
void tributacao_icms_uf_destino::set_percentual_fundo_combate_pobreza(
    const optional<decimal>& value) {
    record_->percentual_fundo_combate_pobreza = value;
}

decimal tributacao_icms_uf_destino::get_aliquota_interna() const {
    return record_->aliquota_interna;
}
void tributacao_icms_uf_destino::set_aliquota_interna(const decimal& value) {
    record_->aliquota_interna = value;
}

decimal tributacao_icms_uf_destino::get_aliquota_interestadual() const {
    return record_->aliquota_interestadual;
}
void tributacao_icms_uf_destino::set_aliquota_interestadual(const decimal& value) {
    record_->aliquota_interestadual = value;
}

decimal tributacao_icms_uf_destino::get_percentual_partilha() const {
    return record_->percentual_partilha;
}
void tributacao_icms_uf_destino::set_percentual_partilha(const decimal& value) {
    record_->percentual_partilha = value;
}

optional<decimal> tributacao_icms_uf_destino::get_valor_icms_fundo_combate_pobreza() const {
    return record_->valor_icms_fundo_combate_pobreza;
}
void tributacao_icms_uf_destino::set_valor_icms_fundo_combate_pobreza(
    const optional<decimal>& value) {
    record_->valor_icms_fundo_combate_pobreza = value;
}

decimal tributacao_icms_uf_destino::get_valor_icms_uf_destino() const {
    return record_->valor_icms_uf_destino;
}
void tributacao_icms_uf_destino::set_valor_icms_uf_destino(const decimal& value) {
    record_->valor_icms_uf_destino = value;
}

decimal tributacao_icms_uf_destino::get_valor_icms_uf_remetente() const {
    return record_->valor_icms_uf_remetente;
}
void tributacao_icms_uf_destino::set_valor_icms_uf_remetente(const decimal& value) {
    record_->valor_icms_uf_remetente = value;
}

} // namespace kivo::erp::v12::fiscal
