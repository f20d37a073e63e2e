#include <fiscal/grupo_ibs_cred_pres.hpp>

#include <fiscal/choice.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_ibs_cred_pres::record {
    std::uint32_t codigo_classificacao = 0;
    decimal percentual_credito_presumido;
    variant<valor_cred_pres, valor_cred_pres_sus> valor_credito_presumido;
};

grupo_ibs_cred_pres::grupo_ibs_cred_pres() noexcept = default;
grupo_ibs_cred_pres::grupo_ibs_cred_pres(const grupo_ibs_cred_pres&) noexcept = default;
grupo_ibs_cred_pres::grupo_ibs_cred_pres(grupo_ibs_cred_pres&&) noexcept = default;
grupo_ibs_cred_pres& grupo_ibs_cred_pres::operator=(const grupo_ibs_cred_pres&) noexcept = default;
grupo_ibs_cred_pres& grupo_ibs_cred_pres::operator=(grupo_ibs_cred_pres&&) noexcept = default;
grupo_ibs_cred_pres::~grupo_ibs_cred_pres() = default;
void grupo_ibs_cred_pres::swap(grupo_ibs_cred_pres& other) noexcept { record_.swap(other.record_); }

std::uint32_t grupo_ibs_cred_pres::get_codigo_classificacao() const {
    return record_.get(&record::codigo_classificacao);
}
void grupo_ibs_cred_pres::set_codigo_classificacao(std::uint32_t value) {
    record_.set(&record::codigo_classificacao, value);
}

decimal grupo_ibs_cred_pres::get_percentual_credito_presumido() const {
    return record_.get(&record::percentual_credito_presumido);
}
void grupo_ibs_cred_pres::set_percentual_credito_presumido(const decimal& value) {
    record_.set(&record::percentual_credito_presumido, value);
}

variant<valor_cred_pres, valor_cred_pres_sus>
grupo_ibs_cred_pres::get_valor_credito_presumido() const {
    return record_.get(&record::valor_credito_presumido);
}
void grupo_ibs_cred_pres::set_valor_credito_presumido(
    const variant<valor_cred_pres, valor_cred_pres_sus>& value) {
    replace_choice(record_.filled().valor_credito_presumido, value);
}

} // namespace kivo::erp::v12::fiscal
