#include <fiscal/ibs_cbs.hpp>

#include <fiscal/sequencia_cred_pres.hpp>
#include <fiscal/sequencia_ibs_cbs.hpp>

namespace kivo::erp::v12::fiscal {

struct ibs_cbs::record {
    std::uint32_t codigo_situacao_tributaria = 0;
    std::uint32_t codigo_classificacao_tributaria = 0;
    optional<fiscal::sequencia_ibs_cbs> sequencia_ibs_cbs;
    optional<fiscal::sequencia_cred_pres> sequencia_cred_pres;
};

ibs_cbs::ibs_cbs() noexcept = default;
ibs_cbs::ibs_cbs(const ibs_cbs&) noexcept = default;
ibs_cbs::ibs_cbs(ibs_cbs&&) noexcept = default;
ibs_cbs& ibs_cbs::operator=(const ibs_cbs&) noexcept = default;
ibs_cbs& ibs_cbs::operator=(ibs_cbs&&) noexcept = default;
ibs_cbs::~ibs_cbs() = default;
void ibs_cbs::swap(ibs_cbs& other) noexcept { record_.swap(other.record_); }

std::uint32_t ibs_cbs::get_codigo_situacao_tributaria() const {
    return record_.get(&record::codigo_situacao_tributaria);
}
void ibs_cbs::set_codigo_situacao_tributaria(std::uint32_t value) {
    record_.set(&record::codigo_situacao_tributaria, value);
}

std::uint32_t ibs_cbs::get_codigo_classificacao_tributaria() const {
    return record_.get(&record::codigo_classificacao_tributaria);
}
void ibs_cbs::set_codigo_classificacao_tributaria(std::uint32_t value) {
    record_.set(&record::codigo_classificacao_tributaria, value);
}

optional<sequencia_ibs_cbs> ibs_cbs::get_sequencia_ibs_cbs() const {
    return record_.get(&record::sequencia_ibs_cbs);
}
void ibs_cbs::set_sequencia_ibs_cbs(const optional<sequencia_ibs_cbs>& value) {
    record_.set(&record::sequencia_ibs_cbs, value);
}

optional<sequencia_cred_pres> ibs_cbs::get_sequencia_cred_pres() const {
    return record_.get(&record::sequencia_cred_pres);
}
void ibs_cbs::set_sequencia_cred_pres(const optional<sequencia_cred_pres>& value) {
    record_.set(&record::sequencia_cred_pres, value);
}

} // namespace kivo::erp::v12::fiscal
