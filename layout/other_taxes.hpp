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

template <>
inline constexpr auto fields<tributacao_ipi_calculo_aliquota> = std::tuple{
    field{"vBC", &tributacao_ipi_calculo_aliquota::get_valor_bc_ipi,
          &tributacao_ipi_calculo_aliquota::set_valor_bc_ipi},
    field{"pIPI", &tributacao_ipi_calculo_aliquota::get_aliquota_ipi,
          &tributacao_ipi_calculo_aliquota::set_aliquota_ipi},
};

template <>
inline constexpr auto fields<tributacao_ipi_calculo_valor> = std::tuple{
    field{"vUnid", &tributacao_ipi_calculo_valor::get_valor_unidade_tributavel,
          &tributacao_ipi_calculo_valor::set_valor_unidade_tributavel},
};

/// The situation code decides between IPITrib and IPINT.
inline bool stands_in_ipi_trib(const tributacao_ipi& ipi) {
    const cst_ipi code = ipi.get_cst_ipi();
    return code == cst_ipi::entrada_com_recuperacao_de_credito ||
           code == cst_ipi::outras_entradas || code == cst_ipi::saida_tributada ||
           code == cst_ipi::outras_saidas;
}

inline bool stands_in_ipi_nt(const tributacao_ipi& ipi) { return !stands_in_ipi_trib(ipi); }

template <>
inline constexpr auto fields<tributacao_ipi> = std::tuple{
    no_element{&tributacao_ipi::get_classe_enquadramento_ipi_cigarros_bebidas,
               &tributacao_ipi::set_classe_enquadramento_ipi_cigarros_bebidas},
    no_element{&tributacao_ipi::get_classe_enquadramento_ipi,
               &tributacao_ipi::set_classe_enquadramento_ipi},
    field{"CNPJProd", &tributacao_ipi::get_cnpj_produtor, &tributacao_ipi::set_cnpj_produtor},
    field{"cSelo", &tributacao_ipi::get_codigo_selo_controle_ipi,
          &tributacao_ipi::set_codigo_selo_controle_ipi},
    field{"qSelo", &tributacao_ipi::get_quantidade_selo_controle,
          &tributacao_ipi::set_quantidade_selo_controle, or_absent},
    field{"cEnq", &tributacao_ipi::get_codigo_enquadramento_ipi,
          &tributacao_ipi::set_codigo_enquadramento_ipi, digits(3)},
    only_if{
        &stands_in_ipi_trib,
        element{"IPITrib",
                field{"CST", &tributacao_ipi::get_cst_ipi, &tributacao_ipi::set_cst_ipi, digits(2)},
                embedded{&tributacao_ipi::get_tributacao_ipi_calculo_aliquota,
                         &tributacao_ipi::set_tributacao_ipi_calculo_aliquota},
                embedded{&tributacao_ipi::get_tributacao_ipi_calculo_valor,
                         &tributacao_ipi::set_tributacao_ipi_calculo_valor},
                field{"vIPI", &tributacao_ipi::get_valor_ipi, &tributacao_ipi::set_valor_ipi}}},
    only_if{&stands_in_ipi_nt,
            element{"IPINT", again{field{"CST", &tributacao_ipi::get_cst_ipi,
                                         &tributacao_ipi::set_cst_ipi, digits(2)}}}},
};

template <>
inline constexpr auto fields<ipi_devolvido> = std::tuple{
    field{"vIPIDevol", &ipi_devolvido::get_valor, &ipi_devolvido::set_valor},
};

template <>
inline constexpr auto fields<tributos_devolvidos> = std::tuple{
    field{"pDevol", &tributos_devolvidos::get_percentual, &tributos_devolvidos::set_percentual},
    field{"IPI", &tributos_devolvidos::get_ipi, &tributos_devolvidos::set_ipi},
};

template <>
inline constexpr auto fields<tributacao_imposto_importacao> = std::tuple{
    field{"vBC", &tributacao_imposto_importacao::get_valor_bc_imposto_importacao,
          &tributacao_imposto_importacao::set_valor_bc_imposto_importacao},
    field{"vDespAdu", &tributacao_imposto_importacao::get_valor_despesas_aduaneiras,
          &tributacao_imposto_importacao::set_valor_despesas_aduaneiras},
    field{"vII", &tributacao_imposto_importacao::get_valor_imposto_importacao,
          &tributacao_imposto_importacao::set_valor_imposto_importacao},
    field{"vIOF", &tributacao_imposto_importacao::get_valor_imposto_operacoes_financeiras,
          &tributacao_imposto_importacao::set_valor_imposto_operacoes_financeiras},
};

template <>
inline constexpr auto fields<issqn> = std::tuple{
    field{"vBC", &issqn::get_valor_bc, &issqn::set_valor_bc},
    field{"vAliq", &issqn::get_valor_aliquota, &issqn::set_valor_aliquota},
    field{"vISSQN", &issqn::get_valor_issqn, &issqn::set_valor_issqn},
    field{"cMunFG", &issqn::get_codigo_municio_de_ocorrencia,
          &issqn::set_codigo_municio_de_ocorrencia, digits(7)},
    field{"cListServ", &issqn::get_item_lista_servicos, &issqn::set_item_list_servicos},
    field{"vDeducao", &issqn::get_valor_deducao, &issqn::set_valor_deducao},
    field{"vOutro", &issqn::get_valor_outras_retencoes, &issqn::set_valor_outras_retencoes},
    field{"vDescIncond", &issqn::get_valor_desconto_incondicionado,
          &issqn::set_valor_desconto_incondicionado},
    field{"vDescCond", &issqn::get_valor_desconto_condicionado,
          &issqn::set_valor_desconto_condicionado},
    field{"vISSRet", &issqn::get_valor_retencao_iss, &issqn::set_valor_retencao_iss},
    field{"indISS", &issqn::get_indicador_iss, &issqn::set_indicador_iss, digits(1).or_absent()},
    field{"cServico", &issqn::get_codigo_servico, &issqn::set_codigo_servico},
    field{"cMun", &issqn::get_codigo_municipio_incidencia, &issqn::set_codigo_municipio_incidencia,
          digits(7)},
    field{"cPais", &issqn::get_codigo_pais, &issqn::set_codigo_pais},
    field{"nProcesso", &issqn::get_numero_processo, &issqn::set_numero_processo},
    field{"indIncentivo", &issqn::get_indicador_incentivo, &issqn::set_indicador_incentivo,
          digits(1).or_absent()},
};

template <>
inline constexpr auto fields<grupo_tributacao_pis_aliquota> = std::tuple{
    field{"CST", &grupo_tributacao_pis_aliquota::get_cst_pis,
          &grupo_tributacao_pis_aliquota::set_cst_pis, digits(2).or_absent()},
    field{"vBC", &grupo_tributacao_pis_aliquota::get_valor_bc_pis,
          &grupo_tributacao_pis_aliquota::set_valor_bc_pis},
    field{"pPIS", &grupo_tributacao_pis_aliquota::get_percentual_aliquota_pis,
          &grupo_tributacao_pis_aliquota::set_percentual_aliquota_pis},
    field{"vPIS", &grupo_tributacao_pis_aliquota::get_valor_pis,
          &grupo_tributacao_pis_aliquota::set_valor_pis},
};

template <>
inline constexpr auto fields<grupo_tributacao_pis_nt> = std::tuple{
    field{"CST", &grupo_tributacao_pis_nt::get_cst_pis, &grupo_tributacao_pis_nt::set_cst_pis,
          digits(2).or_absent()},
};

template <>
inline constexpr auto fields<grupo_tributacao_pis_outros> = std::tuple{
    field{"CST", &grupo_tributacao_pis_outros::get_cst_pis,
          &grupo_tributacao_pis_outros::set_cst_pis, digits(2).or_absent()},
    field{"vBC", &grupo_tributacao_pis_outros::get_valor_bc_pis,
          &grupo_tributacao_pis_outros::set_valor_bc_pis},
    field{"pPIS", &grupo_tributacao_pis_outros::get_percentual_aliquota_pis,
          &grupo_tributacao_pis_outros::set_percentual_aliquota_pis},
    field{"vPIS", &grupo_tributacao_pis_outros::get_valor_pis,
          &grupo_tributacao_pis_outros::set_valor_pis},
};

template <>
inline constexpr auto fields<grupo_tributacao_cofins_aliquota> = std::tuple{
    field{"CST", &grupo_tributacao_cofins_aliquota::get_cst_cofins,
          &grupo_tributacao_cofins_aliquota::set_cst_cofins, digits(2).or_absent()},
    field{"vBC", &grupo_tributacao_cofins_aliquota::get_valor_bc_cofins,
          &grupo_tributacao_cofins_aliquota::set_valor_bc_cofins},
    field{"pCOFINS", &grupo_tributacao_cofins_aliquota::get_percentual_aliquota_cofins,
          &grupo_tributacao_cofins_aliquota::set_percentual_aliquota_cofins},
    field{"vCOFINS", &grupo_tributacao_cofins_aliquota::get_valor_cofins,
          &grupo_tributacao_cofins_aliquota::set_valor_cofins},
};

template <>
inline constexpr auto fields<grupo_tributacao_cofins_nt> = std::tuple{
    field{"CST", &grupo_tributacao_cofins_nt::get_cst_cofins,
          &grupo_tributacao_cofins_nt::set_cst_cofins, digits(2).or_absent()},
};

template <>
inline constexpr auto fields<grupo_tributacao_cofins_outros> = std::tuple{
    field{"CST", &grupo_tributacao_cofins_outros::get_cst_cofins,
          &grupo_tributacao_cofins_outros::set_cst_cofins, digits(2).or_absent()},
    field{"vBC", &grupo_tributacao_cofins_outros::get_valor_bc_cofins,
          &grupo_tributacao_cofins_outros::set_valor_bc_cofins},
    field{"pCOFINS", &grupo_tributacao_cofins_outros::get_percentual_aliquota_cofins,
          &grupo_tributacao_cofins_outros::set_percentual_aliquota_cofins},
    field{"vCOFINS", &grupo_tributacao_cofins_outros::get_valor_cofins,
          &grupo_tributacao_cofins_outros::set_valor_cofins},
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

template <>
inline constexpr auto fields<tributacao_pis_cofins> = std::tuple{
    only_if{&has_pis, element{"PIS", one_of{&tributacao_pis_cofins::get_grupo_tributacao_pis,
                                            &tributacao_pis_cofins::set_grupo_tributacao_pis,
                                            "PISAliq", "PISNT", "PISOutr"}}},
    only_if{&has_cofins,
            element{"COFINS", one_of{&tributacao_pis_cofins::get_grupo_tributacao_cofins,
                                     &tributacao_pis_cofins::set_grupo_tributacao_cofins,
                                     "COFINSAliq", "COFINSNT", "COFINSOutr"}}},
};

} // namespace kivo::erp::v12::layout
