#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// COFINS in other situations, computed by rate (COFINSOutr).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_cofins_outros {
public:
    /// Situation code of COFINS in other situations (CST). A credit, full or presumed, is told by
    /// the revenue that the operation serves.
    enum class cst_cofins : std::uint32_t {
        nao_informado = 0,  ///< never set; not a code of the layout
        outras_saidas = 49, ///< any other outgoing operation

        credito_receita_tributada = 50,                             ///< credit: taxed, domestic
        credito_receita_nao_tributada = 51,                         ///< credit: untaxed, domestic
        credito_receita_exportacao = 52,                            ///< credit: export
        credito_receitas_tributada_e_nao_tributada = 53,            ///< credit: as 50 and 51
        credito_receitas_tributada_e_exportacao = 54,               ///< credit: as 50 and 52
        credito_receitas_nao_tributada_e_exportacao = 55,           ///< credit: as 51 and 52
        credito_receitas_tributada_nao_tributada_e_exportacao = 56, ///< credit: as 50, 51 and 52

        credito_presumido_receita_tributada = 60,                             ///< presumed, as 50
        credito_presumido_receita_nao_tributada = 61,                         ///< presumed, as 51
        credito_presumido_receita_exportacao = 62,                            ///< presumed, as 52
        credito_presumido_receitas_tributada_e_nao_tributada = 63,            ///< presumed, as 53
        credito_presumido_receitas_tributada_e_exportacao = 64,               ///< presumed, as 54
        credito_presumido_receitas_nao_tributada_e_exportacao = 65,           ///< presumed, as 55
        credito_presumido_receitas_tributada_nao_tributada_e_exportacao = 66, ///< presumed, as 56
        credito_presumido_outras_operacoes = 67,                              ///< presumed, other

        aquisicao_sem_direito_a_credito = 70,       ///< purchase without a credit
        aquisicao_isenta = 71,                      ///< purchase, exempt
        aquisicao_com_suspensao = 72,               ///< purchase, tax suspended
        aquisicao_aliquota_zero = 73,               ///< purchase, at a rate of zero
        aquisicao_sem_incidencia = 74,              ///< purchase, outside the scope of the tax
        aquisicao_por_substituicao_tributaria = 75, ///< purchase, collected by tax substitution

        outras_entradas = 98,  ///< any other incoming operation
        outras_operacoes = 99, ///< any other operation
    };

    grupo_tributacao_cofins_outros();
    grupo_tributacao_cofins_outros(const grupo_tributacao_cofins_outros& other);
    grupo_tributacao_cofins_outros(grupo_tributacao_cofins_outros&& other);
    grupo_tributacao_cofins_outros& operator=(const grupo_tributacao_cofins_outros& other);
    grupo_tributacao_cofins_outros& operator=(grupo_tributacao_cofins_outros&& other);
    ~grupo_tributacao_cofins_outros();

    /// Situation code of the COFINS (CST).
    cst_cofins get_cst_cofins() const;
    void set_cst_cofins(cst_cofins value);

    /// COFINS tax base, in R$ (vBC).
    optional<decimal> get_valor_bc_cofins() const;
    void set_valor_bc_cofins(const optional<decimal>& value);

    /// COFINS rate, in percent (pCOFINS).
    optional<decimal> get_percentual_aliquota_cofins() const;
    void set_percentual_aliquota_cofins(const optional<decimal>& value);

    /// COFINS amount, in R$ (vCOFINS).
    decimal get_valor_cofins() const;
    void set_valor_cofins(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
