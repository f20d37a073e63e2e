#pragma once

#include <layout/map.hpp>

#include <fiscal/grupo_tributacao_cofins_aliquota.hpp>
#include <fiscal/grupo_tributacao_cofins_nt.hpp>
#include <fiscal/grupo_tributacao_cofins_outros.hpp>
#include <fiscal/grupo_tributacao_pis_aliquota.hpp>
#include <fiscal/grupo_tributacao_pis_nt.hpp>
#include <fiscal/grupo_tributacao_pis_outros.hpp>
#include <fiscal/ipi_devolvido.hpp>
#include <fiscal/issqn.hpp>
#include <fiscal/tributacao_imposto_importacao.hpp>
#include <fiscal/tributacao_ipi.hpp>
#include <fiscal/tributacao_ipi_calculo_aliquota.hpp>
#include <fiscal/tributacao_ipi_calculo_valor.hpp>
#include <fiscal/tributacao_pis_cofins.hpp>
#include <fiscal/tributos_devolvidos.hpp>

#include <variant>

namespace kivo::erp::v12::layout {

using fiscal::cst_ipi;
using fiscal::grupo_tributacao_cofins_aliquota;
using fiscal::grupo_tributacao_cofins_nt;
using fiscal::grupo_tributacao_cofins_outros;
using fiscal::grupo_tributacao_pis_aliquota;
using fiscal::grupo_tributacao_pis_nt;
using fiscal::grupo_tributacao_pis_outros;
using fiscal::ipi_devolvido;
using fiscal::issqn;
using fiscal::tributacao_imposto_importacao;
using fiscal::tributacao_ipi;
using fiscal::tributacao_ipi_calculo_aliquota;
using fiscal::tributacao_ipi_calculo_valor;
using fiscal::tributacao_pis_cofins;
using fiscal::tributos_devolvidos;

template <> struct map_of<tributacao_ipi_calculo_aliquota> {
    using c = tributacao_ipi_calculo_aliquota;
    static constexpr entries fields{
        field<"vBC", &c::get_valor_bc_ipi, &c::set_valor_bc_ipi>,
        field<"pIPI", &c::get_aliquota_ipi, &c::set_aliquota_ipi>,
    };
};

template <> struct map_of<tributacao_ipi_calculo_valor> {
    using c = tributacao_ipi_calculo_valor;
    static constexpr entries fields{
        field<"vUnid", &c::get_valor_unidade_tributavel, &c::set_valor_unidade_tributavel>,
    };
};

/// The situation code decides between IPITrib and IPINT.
inline bool stands_in_ipi_trib(const tributacao_ipi& ipi) {
    const cst_ipi code = ipi.get_cst_ipi();
    return code == cst_ipi::entrada_com_recuperacao_de_credito ||
           code == cst_ipi::outras_entradas || code == cst_ipi::saida_tributada ||
           code == cst_ipi::outras_saidas;
}

inline bool stands_in_ipi_nt(const tributacao_ipi& ipi) { return !stands_in_ipi_trib(ipi); }

template <> struct map_of<tributacao_ipi> {
    using c = tributacao_ipi;
    static constexpr entries fields{
        no_element<&c::get_classe_enquadramento_ipi_cigarros_bebidas,
                   &c::set_classe_enquadramento_ipi_cigarros_bebidas>,
        no_element<&c::get_classe_enquadramento_ipi, &c::set_classe_enquadramento_ipi>,
        field<"CNPJProd", &c::get_cnpj_produtor, &c::set_cnpj_produtor>,
        field<"cSelo", &c::get_codigo_selo_controle_ipi, &c::set_codigo_selo_controle_ipi>,
        field<"qSelo", &c::get_quantidade_selo_controle, &c::set_quantidade_selo_controle,
              omit_default>,
        field<"cEnq", &c::get_codigo_enquadramento_ipi, &c::set_codigo_enquadramento_ipi,
              digits(3)>,
        exclusive(entries{
            only_if<&stands_in_ipi_trib>(element<"IPITrib">(entries{
                field<"CST", &c::get_cst_ipi, &c::set_cst_ipi, digits(2)>,
                embedded<&c::get_tributacao_ipi_calculo_aliquota,
                         &c::set_tributacao_ipi_calculo_aliquota>,
                embedded<&c::get_tributacao_ipi_calculo_valor,
                         &c::set_tributacao_ipi_calculo_valor>,
                field<"vIPI", &c::get_valor_ipi, &c::set_valor_ipi>,
            })),
            only_if<&stands_in_ipi_nt>(element<"IPINT">(entries{
                again(field<"CST", &c::get_cst_ipi, &c::set_cst_ipi, digits(2)>),
            })),
        }),
    };
};

template <> struct map_of<ipi_devolvido> {
    using c = ipi_devolvido;
    static constexpr entries fields{
        field<"vIPIDevol", &c::get_valor, &c::set_valor>,
    };
};

template <> struct map_of<tributos_devolvidos> {
    using c = tributos_devolvidos;
    static constexpr entries fields{
        field<"pDevol", &c::get_percentual, &c::set_percentual>,
        field<"IPI", &c::get_ipi, &c::set_ipi>,
    };
};

template <> struct map_of<tributacao_imposto_importacao> {
    using c = tributacao_imposto_importacao;
    static constexpr entries fields{
        field<"vBC", &c::get_valor_bc_imposto_importacao, &c::set_valor_bc_imposto_importacao>,
        field<"vDespAdu", &c::get_valor_despesas_aduaneiras, &c::set_valor_despesas_aduaneiras>,
        field<"vII", &c::get_valor_imposto_importacao, &c::set_valor_imposto_importacao>,
        field<"vIOF", &c::get_valor_imposto_operacoes_financeiras,
              &c::set_valor_imposto_operacoes_financeiras>,
    };
};

template <> struct map_of<issqn> {
    using c = issqn;
    static constexpr entries fields{
        field<"vBC", &c::get_valor_bc, &c::set_valor_bc>,
        field<"vAliq", &c::get_valor_aliquota, &c::set_valor_aliquota>,
        field<"vISSQN", &c::get_valor_issqn, &c::set_valor_issqn>,
        field<"cMunFG", &c::get_codigo_municio_de_ocorrencia, &c::set_codigo_municio_de_ocorrencia,
              digits(7)>,
        field<"cListServ", &c::get_item_lista_servicos, &c::set_item_list_servicos>,
        field<"vDeducao", &c::get_valor_deducao, &c::set_valor_deducao>,
        field<"vOutro", &c::get_valor_outras_retencoes, &c::set_valor_outras_retencoes>,
        field<"vDescIncond", &c::get_valor_desconto_incondicionado,
              &c::set_valor_desconto_incondicionado>,
        field<"vDescCond", &c::get_valor_desconto_condicionado,
              &c::set_valor_desconto_condicionado>,
        field<"vISSRet", &c::get_valor_retencao_iss, &c::set_valor_retencao_iss>,
        field<"indISS", &c::get_indicador_iss, &c::set_indicador_iss, digits(1) | omit_default>,
        field<"cServico", &c::get_codigo_servico, &c::set_codigo_servico>,
        field<"cMun", &c::get_codigo_municipio_incidencia, &c::set_codigo_municipio_incidencia,
              digits(7)>,
        field<"cPais", &c::get_codigo_pais, &c::set_codigo_pais>,
        field<"nProcesso", &c::get_numero_processo, &c::set_numero_processo>,
        field<"indIncentivo", &c::get_indicador_incentivo, &c::set_indicador_incentivo,
              digits(1) | omit_default>,
    };
};

template <> struct map_of<grupo_tributacao_pis_aliquota> {
    using c = grupo_tributacao_pis_aliquota;
    static constexpr entries fields{
        field<"CST", &c::get_cst_pis, &c::set_cst_pis, digits(2) | omit_default>,
        field<"vBC", &c::get_valor_bc_pis, &c::set_valor_bc_pis>,
        field<"pPIS", &c::get_percentual_aliquota_pis, &c::set_percentual_aliquota_pis>,
        field<"vPIS", &c::get_valor_pis, &c::set_valor_pis>,
    };
};

template <> struct map_of<grupo_tributacao_pis_nt> {
    using c = grupo_tributacao_pis_nt;
    static constexpr entries fields{
        field<"CST", &c::get_cst_pis, &c::set_cst_pis, digits(2) | omit_default>,
    };
};

template <> struct map_of<grupo_tributacao_pis_outros> {
    using c = grupo_tributacao_pis_outros;
    static constexpr entries fields{
        field<"CST", &c::get_cst_pis, &c::set_cst_pis, digits(2) | omit_default>,
        field<"vBC", &c::get_valor_bc_pis, &c::set_valor_bc_pis>,
        field<"pPIS", &c::get_percentual_aliquota_pis, &c::set_percentual_aliquota_pis>,
        field<"vPIS", &c::get_valor_pis, &c::set_valor_pis>,
    };
};

template <> struct map_of<grupo_tributacao_cofins_aliquota> {
    using c = grupo_tributacao_cofins_aliquota;
    static constexpr entries fields{
        field<"CST", &c::get_cst_cofins, &c::set_cst_cofins, digits(2) | omit_default>,
        field<"vBC", &c::get_valor_bc_cofins, &c::set_valor_bc_cofins>,
        field<"pCOFINS", &c::get_percentual_aliquota_cofins, &c::set_percentual_aliquota_cofins>,
        field<"vCOFINS", &c::get_valor_cofins, &c::set_valor_cofins>,
    };
};

template <> struct map_of<grupo_tributacao_cofins_nt> {
    using c = grupo_tributacao_cofins_nt;
    static constexpr entries fields{
        field<"CST", &c::get_cst_cofins, &c::set_cst_cofins, digits(2) | omit_default>,
    };
};

template <> struct map_of<grupo_tributacao_cofins_outros> {
    using c = grupo_tributacao_cofins_outros;
    static constexpr entries fields{
        field<"CST", &c::get_cst_cofins, &c::set_cst_cofins, digits(2) | omit_default>,
        field<"vBC", &c::get_valor_bc_cofins, &c::set_valor_bc_cofins>,
        field<"pCOFINS", &c::get_percentual_aliquota_cofins, &c::set_percentual_aliquota_cofins>,
        field<"vCOFINS", &c::get_valor_cofins, &c::set_valor_cofins>,
    };
};

/// Either contribution may be missing from an invoice, but the object holds both: a rate group at
/// its defaults stands for the one that is missing.
inline bool has_pis(const tributacao_pis_cofins& taxes) {
    const auto choice = taxes.get_grupo_tributacao_pis();
    const auto* const rate = std::get_if<grupo_tributacao_pis_aliquota>(&choice);
    return rate == nullptr ||
           rate->get_cst_pis() != grupo_tributacao_pis_aliquota::cst_pis::nao_informado ||
           rate->get_valor_bc_pis() || rate->get_percentual_aliquota_pis() ||
           rate->get_valor_pis() != fiscal::decimal();
}

inline bool has_cofins(const tributacao_pis_cofins& taxes) {
    const auto choice = taxes.get_grupo_tributacao_cofins();
    const auto* const rate = std::get_if<grupo_tributacao_cofins_aliquota>(&choice);
    return rate == nullptr ||
           rate->get_cst_cofins() != grupo_tributacao_cofins_aliquota::cst_cofins::nao_informado ||
           rate->get_valor_bc_cofins() || rate->get_percentual_aliquota_cofins() ||
           rate->get_valor_cofins() != fiscal::decimal();
}

template <> struct map_of<tributacao_pis_cofins> {
    using c = tributacao_pis_cofins;
    static constexpr entries fields{
        only_if<&has_pis>(element<"PIS">(entries{
            one_of<&c::get_grupo_tributacao_pis, &c::set_grupo_tributacao_pis, as<"PISAliq">,
                   as<"PISNT">, as<"PISOutr">>,
        })),
        only_if<&has_cofins>(element<"COFINS">(entries{
            one_of<&c::get_grupo_tributacao_cofins, &c::set_grupo_tributacao_cofins,
                   as<"COFINSAliq">, as<"COFINSNT">, as<"COFINSOutr">>,
        })),
    };
};

} // namespace kivo::erp::v12::layout
