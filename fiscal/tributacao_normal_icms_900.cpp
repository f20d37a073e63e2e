#include <fiscal/tributacao_normal_icms_900.hpp>

namespace kivo::erp::v12::fiscal {

struct tributacao_normal_icms_900::record {
    fiscal::modalidade_bc_icms modalidade_bc_icms = {};
    optional<decimal> percentual_reducao_bc_icms;
    optional<decimal> valor_bc_icms;
    optional<decimal> aliquota_icms;
    optional<decimal> valor_icms;
};

tributacao_normal_icms_900::tributacao_normal_icms_900() = default;
tributacao_normal_icms_900::tributacao_normal_icms_900(const tributacao_normal_icms_900&) = default;
tributacao_normal_icms_900::tributacao_normal_icms_900(tributacao_normal_icms_900&&) = default;
tributacao_normal_icms_900&
tributacao_normal_icms_900::operator=(const tributacao_normal_icms_900&) = default;
tributacao_normal_icms_900&
tributacao_normal_icms_900::operator=(tributacao_normal_icms_900&&) = default;
tributacao_normal_icms_900::~tributacao_normal_icms_900() = default;

modalidade_bc_icms tributacao_normal_icms_900::get_modalidade_bc_icms() const {
    return record_->modalidade_bc_icms;
}
void tributacao_normal_icms_900::set_modalidade_bc_icms(modalidade_bc_icms value) {
    record_->modalidade_bc_icms = value;
}

optional<decimal> tributacao_normal_icms_900::get_percentual_reducao_bc_icms() const {
    return record_->percentual_reducao_bc_icms;
}
void tributacao_normal_icms_900::set_percentual_reducao_bc_icms(const optional<decimal>& value) {
    record_->percentual_reducao_bc_icms = value;
}

optional<decimal> tributacao_normal_icms_900::get_valor_bc_icms() const {
    return record_->valor_bc_icms;
}
void tributacao_normal_icms_900::set_valor_bc_icms(const optional<decimal>& value) {
    record_->valor_bc_icms = value;
}

optional<decimal> tributacao_normal_icms_900::get_aliquota_icms() const {
    return record_->aliquota_icms;
}
void tributacao_normal_icms_900::set_aliquota_icms(const optional<decimal>& value) {
    record_->aliquota_icms = value;
}

optional<decimal> tributacao_normal_icms_900::get_valor_icms() const { return record_->valor_icms; }
void tributacao_normal_icms_900::set_valor_icms(const optional<decimal>& value) {
    record_->valor_icms = value;
}

} // namespace kivo::erp::v12::fiscal
