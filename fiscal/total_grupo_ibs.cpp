#include <fiscal/total_grupo_ibs.hpp>

#include <fiscal/total_grupo_ibs_municipio.hpp>
#include <fiscal/total_grupo_ibs_uf.hpp>

namespace kivo::erp::v12::fiscal {

struct total_grupo_ibs::record {
    fiscal::total_grupo_ibs_uf total_grupo_ibs_uf;
    fiscal::total_grupo_ibs_municipio total_grupo_ibs_municipio;
    decimal total_ibs;
    decimal total_cred_pres;
    decimal total_cred_pres_sus;
};

total_grupo_ibs::total_grupo_ibs() noexcept = default;
total_grupo_ibs::total_grupo_ibs(const total_grupo_ibs&) = default;
total_grupo_ibs::total_grupo_ibs(total_grupo_ibs&&) noexcept = default;
total_grupo_ibs& total_grupo_ibs::operator=(const total_grupo_ibs&) = default;
total_grupo_ibs& total_grupo_ibs::operator=(total_grupo_ibs&&) noexcept = default;
total_grupo_ibs::~total_grupo_ibs() = default;
void total_grupo_ibs::swap(total_grupo_ibs& other) noexcept { record_.swap(other.record_); }

total_grupo_ibs_uf total_grupo_ibs::get_total_grupo_ibs_uf() const {
    return record_.get(&record::total_grupo_ibs_uf);
}
void total_grupo_ibs::set_total_grupo_ibs_uf(const total_grupo_ibs_uf& value) {
    record_.set(&record::total_grupo_ibs_uf, value);
}

total_grupo_ibs_municipio total_grupo_ibs::get_total_grupo_ibs_municipio() const {
    return record_.get(&record::total_grupo_ibs_municipio);
}
void total_grupo_ibs::set_total_grupo_ibs_municipio(const total_grupo_ibs_municipio& value) {
    record_.set(&record::total_grupo_ibs_municipio, value);
}

decimal total_grupo_ibs::get_total_ibs() const { return record_.get(&record::total_ibs); }
void total_grupo_ibs::set_total_ibs(const decimal& value) {
    record_.set(&record::total_ibs, value);
}

decimal total_grupo_ibs::get_total_cred_pres() const {
    return record_.get(&record::total_cred_pres);
}
void total_grupo_ibs::set_total_cred_pres(const decimal& value) {
    record_.set(&record::total_cred_pres, value);
}

decimal total_grupo_ibs::get_total_cred_pres_sus() const {
    return record_.get(&record::total_cred_pres_sus);
}
void total_grupo_ibs::set_total_cred_pres_sus(const decimal& value) {
    record_.set(&record::total_cred_pres_sus, value);
}

} // namespace kivo::erp::v12::fiscal
