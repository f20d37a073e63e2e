#include <fiscal/tributacao_pis_cofins.hpp>

#include <fiscal/grupo_tributacao_cofins_aliquota.hpp>
#include <fiscal/grupo_tributacao_cofins_nt.hpp>
#include <fiscal/grupo_tributacao_cofins_outros.hpp>
#include <fiscal/grupo_tributacao_pis_aliquota.hpp>
#include <fiscal/grupo_tributacao_pis_nt.hpp>
#include <fiscal/grupo_tributacao_pis_outros.hpp>

namespace kivo::erp::v12::fiscal {

struct tributacao_pis_cofins::record {
    variant<grupo_tributacao_pis_aliquota, grupo_tributacao_pis_nt, grupo_tributacao_pis_outros>
        grupo_tributacao_pis;
    variant<grupo_tributacao_cofins_aliquota, grupo_tributacao_cofins_nt,
            grupo_tributacao_cofins_outros>
        grupo_tributacao_cofins;
};

tributacao_pis_cofins::tributacao_pis_cofins() = default;
tributacao_pis_cofins::tributacao_pis_cofins(const tributacao_pis_cofins&) = default;
tributacao_pis_cofins::tributacao_pis_cofins(tributacao_pis_cofins&&) = default;
tributacao_pis_cofins& tributacao_pis_cofins::operator=(const tributacao_pis_cofins&) = default;
tributacao_pis_cofins& tributacao_pis_cofins::operator=(tributacao_pis_cofins&&) = default;
tributacao_pis_cofins::~tributacao_pis_cofins() = default;

variant<grupo_tributacao_pis_aliquota, grupo_tributacao_pis_nt, grupo_tributacao_pis_outros>
tributacao_pis_cofins::get_grupo_tributacao_pis() const {
    return record_->grupo_tributacao_pis;
}
void tributacao_pis_cofins::set_grupo_tributacao_pis(
    const variant<grupo_tributacao_pis_aliquota, grupo_tributacao_pis_nt,
                  grupo_tributacao_pis_outros>& value) {
    record_->grupo_tributacao_pis = value;
}

variant<grupo_tributacao_cofins_aliquota, grupo_tributacao_cofins_nt,
        grupo_tributacao_cofins_outros>
tributacao_pis_cofins::get_grupo_tributacao_cofins() const {
    return record_->grupo_tributacao_cofins;
}
void tributacao_pis_cofins::set_grupo_tributacao_cofins(
    const variant<grupo_tributacao_cofins_aliquota, grupo_tributacao_cofins_nt,
                  grupo_tributacao_cofins_outros>& value) {
    record_->grupo_tributacao_cofins = value;
}

} // namespace kivo::erp::v12::fiscal
