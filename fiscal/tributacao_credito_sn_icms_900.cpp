#include <fiscal/tributacao_credito_sn_icms_900.hpp>

namespace kivo::erp::v12::fiscal {

struct tributacao_credito_sn_icms_900::record {
    decimal aliquota_de_credito_sn;
    decimal valor_de_credito_sn;
};

tributacao_credito_sn_icms_900::tributacao_credito_sn_icms_900() = default;
tributacao_credito_sn_icms_900::tributacao_credito_sn_icms_900(
    const tributacao_credito_sn_icms_900&) = default;
tributacao_credito_sn_icms_900::tributacao_credito_sn_icms_900(tributacao_credito_sn_icms_900&&) =
    default;
tributacao_credito_sn_icms_900&
tributacao_credito_sn_icms_900::operator=(const tributacao_credito_sn_icms_900&) = default;
tributacao_credito_sn_icms_900&
tributacao_credito_sn_icms_900::operator=(tributacao_credito_sn_icms_900&&) = default;
tributacao_credito_sn_icms_900::~tributacao_credito_sn_icms_900() = default;

decimal tributacao_credito_sn_icms_900::get_aliquota_de_credito_sn() const {
    return record_->aliquota_de_credito_sn;
}
void tributacao_credito_sn_icms_900::set_aliquota_de_credito_sn(const decimal& value) {
    record_->aliquota_de_credito_sn = value;
}

decimal tributacao_credito_sn_icms_900::get_valor_de_credito_sn() const {
    return record_->valor_de_credito_sn;
}
void tributacao_credito_sn_icms_900::set_valor_de_credito_sn(const decimal& value) {
    record_->valor_de_credito_sn = value;
}

} // namespace kivo::erp::v12::fiscal
