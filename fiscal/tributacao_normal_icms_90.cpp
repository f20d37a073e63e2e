#include <fiscal/tributacao_normal_icms_90.hpp>

#include <fiscal/grupo_fcp.hpp>

namespace kivo::erp::v12::fiscal {

struct tributacao_normal_icms_90::record {
    fiscal::modalidade_bc_icms modalidade_bc_icms = {};
    optional<decimal> percentual_reducao_bc_icms;
    optional<decimal> valor_bc_icms;
    optional<decimal> aliquota_icms;
    optional<decimal> valor_icms;
    optional<grupo_fcp> fcp;
};

tributacao_normal_icms_90::tributacao_normal_icms_90() = default;
tributacao_normal_icms_90::tributacao_normal_icms_90(const tributacao_normal_icms_90&) = default;
tributacao_normal_icms_90::tributacao_normal_icms_90(tributacao_normal_icms_90&&) = default;
tributacao_normal_icms_90&
tributacao_normal_icms_90::operator=(const tributacao_normal_icms_90&) = default;
tributacao_normal_icms_90&
tributacao_normal_icms_90::operator=(tributacao_normal_icms_90&&) = default;
tributacao_normal_icms_90::~tributacao_normal_icms_90() = default;

modalidade_bc_icms tributacao_normal_icms_90::get_modalidade_bc_icms() const {
    return record_->modalidade_bc_icms;
}
void tributacao_normal_icms_90::set_modalidade_bc_icms(modalidade_bc_icms value) {
    record_->modalidade_bc_icms = value;
}

optional<decimal> tributacao_normal_icms_90::get_percentual_reducao_bc_icms() const {
    return record_->percentual_reducao_bc_icms;
}
void tributacao_normal_icms_90::set_percentual_reducao_bc_icms(const optional<decimal>& value) {
    record_->percentual_reducao_bc_icms = value;
}

optional<decimal> tributacao_normal_icms_90::get_valor_bc_icms() const {
    return record_->valor_bc_icms;
}
void tributacao_normal_icms_90::set_valor_bc_icms(const optional<decimal>& value) {
    record_->valor_bc_icms = value;
}

optional<decimal> tributacao_normal_icms_90::get_aliquota_icms() const {
    return record_->aliquota_icms;
}
void tributacao_normal_icms_90::set_aliquota_icms(const optional<decimal>& value) {
    record_->aliquota_icms = value;
}

optional<decimal> tributacao_normal_icms_90::get_valor_icms() const { return record_->valor_icms; }
void tributacao_normal_icms_90::set_valor_icms(const optional<decimal>& value) {
    record_->valor_icms = value;
}

optional<grupo_fcp> tributacao_normal_icms_90::get_fcp() const { return record_->fcp; }
void tributacao_normal_icms_90::set_fcp(const optional<grupo_fcp>& value) { record_->fcp = value; }

} // namespace kivo::erp::v12::fiscal
