#include <fiscal/grupo_cred_pres.hpp>

#include <fiscal/grupo_cbs_cred_pres.hpp>
#include <fiscal/grupo_ibs_cred_pres.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_cred_pres::record {
    decimal valor_base_calculo;
    std::uint8_t codigo = 0;
    optional<grupo_ibs_cred_pres> ibs_cred_pres;
    optional<grupo_cbs_cred_pres> cbs_cred_pres;
};

grupo_cred_pres::grupo_cred_pres() noexcept = default;
grupo_cred_pres::grupo_cred_pres(const grupo_cred_pres&) noexcept = default;
grupo_cred_pres::grupo_cred_pres(grupo_cred_pres&&) noexcept = default;
grupo_cred_pres& grupo_cred_pres::operator=(const grupo_cred_pres&) noexcept = default;
grupo_cred_pres& grupo_cred_pres::operator=(grupo_cred_pres&&) noexcept = default;
grupo_cred_pres::~grupo_cred_pres() = default;
void grupo_cred_pres::swap(grupo_cred_pres& other) noexcept { record_.swap(other.record_); }

decimal grupo_cred_pres::get_valor_base_calculo() const {
    return record_.get(&record::valor_base_calculo);
}
void grupo_cred_pres::set_valor_base_calculo(const decimal& value) {
    record_.set(&record::valor_base_calculo, value);
}

std::uint8_t grupo_cred_pres::get_codigo() const { return record_.get(&record::codigo); }
void grupo_cred_pres::set_codigo(std::uint8_t value) { record_.set(&record::codigo, value); }

optional<grupo_ibs_cred_pres> grupo_cred_pres::get_ibs_cred_pres() const {
    return record_.get(&record::ibs_cred_pres);
}
void grupo_cred_pres::set_ibs_cred_pres(const optional<grupo_ibs_cred_pres>& value) {
    record_.set(&record::ibs_cred_pres, value);
}

optional<grupo_cbs_cred_pres> grupo_cred_pres::get_cbs_cred_pres() const {
    return record_.get(&record::cbs_cred_pres);
}
void grupo_cred_pres::set_cbs_cred_pres(const optional<grupo_cbs_cred_pres>& value) {
    record_.set(&record::cbs_cred_pres, value);
}

} // namespace kivo::erp::v12::fiscal
