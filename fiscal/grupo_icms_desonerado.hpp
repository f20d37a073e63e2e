#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// ICMS that a relief leaves uncharged (its elements stand in the ICMS group).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_icms_desonerado {
public:
    /// Reason for the relief (motDesICMS). Each ICMS group admits some of these codes only.
    enum class motivo : std::uint32_t {
        nao_informado = 0,                       ///< never set; not a code of the layout
        taxi = 1,                                ///< vehicle for use as a taxi
        uso_na_agropecuaria = 3,                 ///< farmer, use in farming
        frotista_ou_locadora = 4,                ///< fleet owner or rental company
        diplomatico_ou_consular = 5,             ///< diplomatic or consular mission
        utilitarios_e_motocicletas_amazonia = 6, ///< utility vehicles and motorcycles of the
                                                 ///< Western Amazon and the free trade areas
        suframa = 7,               ///< benefit of the incentive areas, under the authority SUFRAMA
        venda_a_orgao_publico = 8, ///< sale to a public body
        outros = 9,                ///< another reason
        deficiente_condutor = 10,  ///< disabled person who drives the vehicle
        deficiente_nao_condutor = 11, ///< disabled person who does not drive the vehicle
        fomento_agropecuario = 12,    ///< farming development body
        olimpiadas_rio_2016 = 16,     ///< Olympic Games Rio 2016
        solicitado_pelo_fisco = 90,   ///< requested by the tax authority
    };

    /// Whether the relieved amount is deducted from the item and from the total (indDeduzDeson).
    enum class indicador_deducao : std::uint32_t {
        nao_deduz = 0, ///< not deducted from the value of the item or the total of the invoice
        deduz = 1,     ///< deducted from the value of the item and the total of the invoice
    };

    grupo_icms_desonerado();
    grupo_icms_desonerado(const grupo_icms_desonerado& other);
    grupo_icms_desonerado(grupo_icms_desonerado&& other);
    grupo_icms_desonerado& operator=(const grupo_icms_desonerado& other);
    grupo_icms_desonerado& operator=(grupo_icms_desonerado&& other);
    ~grupo_icms_desonerado();

    /// Relieved ICMS amount, in R$ (vICMSDeson).
    decimal get_valor_icms_desonerado() const;
    void set_valor_icms_desonerado(const decimal& value);

    /// Reason for the relief (motDesICMS).
    motivo get_motivo() const;
    void set_motivo(const motivo& value);

    /// Whether the relieved amount is deducted from the item and from the total (indDeduzDeson).
    optional<indicador_deducao> get_indicador_deducao() const;
    void set_indicador_deducao(const optional<indicador_deducao>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
