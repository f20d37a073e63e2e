#include <fiscal/sequencia_cred_pres.hpp>

#include <fiscal/grupo_cred_pres.hpp>

namespace kivo::erp::v12::fiscal {

struct sequencia_cred_pres::record {
    variant<monostate, fiscal::grupo_cred_pres> grupo_cred_pres;
};

sequencia_cred_pres::sequencia_cred_pres() noexcept = default;
sequencia_cred_pres::sequencia_cred_pres(const sequencia_cred_pres&) noexcept = default;
sequencia_cred_pres::sequencia_cred_pres(sequencia_cred_pres&&) noexcept = default;
sequencia_cred_pres& sequencia_cred_pres::operator=(const sequencia_cred_pres&) noexcept = default;
sequencia_cred_pres& sequencia_cred_pres::operator=(sequencia_cred_pres&&) noexcept = default;
sequencia_cred_pres::~sequencia_cred_pres() = default;
void sequencia_cred_pres::swap(sequencia_cred_pres& other) noexcept { record_.swap(other.record_); }

variant<monostate, grupo_cred_pres> sequencia_cred_pres::get_grupo_cred_pres() const noexcept {
    return record_.get(&record::grupo_cred_pres);
}
void sequencia_cred_pres::set_grupo_cred_pres(const variant<monostate, grupo_cred_pres>& value) {
    record_.set(&record::grupo_cred_pres, value);
}

} // namespace kivo::erp::v12::fiscal
