#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_tributacao_cofins_aliquota;
class grupo_tributacao_cofins_nt;
class grupo_tributacao_cofins_outros;
class grupo_tributacao_pis_aliquota;
class grupo_tributacao_pis_nt;
class grupo_tributacao_pis_outros;

/// The social contributions PIS and COFINS of an item (PIS and COFINS, without an element around
/// both). Each always holds one of its groups, a rate group of defaults when never set.
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT tributacao_pis_cofins {
public:
    tributacao_pis_cofins();
    tributacao_pis_cofins(const tributacao_pis_cofins& other);
    tributacao_pis_cofins(tributacao_pis_cofins&& other);
    tributacao_pis_cofins& operator=(const tributacao_pis_cofins& other);
    tributacao_pis_cofins& operator=(tributacao_pis_cofins&& other);
    ~tributacao_pis_cofins();

    /// PIS: charged by rate, not charged, or otherwise (PISAliq, PISNT, PISOutr).
    variant<grupo_tributacao_pis_aliquota, grupo_tributacao_pis_nt, grupo_tributacao_pis_outros>
    get_grupo_tributacao_pis() const;
    void
    set_grupo_tributacao_pis(const variant<grupo_tributacao_pis_aliquota, grupo_tributacao_pis_nt,
                                           grupo_tributacao_pis_outros>& value);

    /// COFINS: charged by rate, not charged, or otherwise (COFINSAliq, COFINSNT, COFINSOutr).
    variant<grupo_tributacao_cofins_aliquota, grupo_tributacao_cofins_nt,
            grupo_tributacao_cofins_outros>
    get_grupo_tributacao_cofins() const;
    void set_grupo_tributacao_cofins(
        const variant<grupo_tributacao_cofins_aliquota, grupo_tributacao_cofins_nt,
                      grupo_tributacao_cofins_outros>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
