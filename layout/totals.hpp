#pragma once

#include <layout/map.hpp>

#include <fiscal/total_grupo_cbs.hpp>
#include <fiscal/total_grupo_ibs.hpp>
#include <fiscal/total_grupo_ibs_municipio.hpp>
#include <fiscal/total_grupo_ibs_uf.hpp>
#include <fiscal/total_grupo_monofasia.hpp>
#include <fiscal/total_ibs_cbs.hpp>
#include <fiscal/total_is.hpp>
#include <fiscal/total_nfe.hpp>
#include <fiscal/total_nfe_icms.hpp>
#include <fiscal/total_nfe_issqn.hpp>
#include <fiscal/total_nfe_retencao_tributos.hpp>

namespace kivo::erp::v12::layout {

using fiscal::total_grupo_cbs;
using fiscal::total_grupo_ibs;
using fiscal::total_grupo_ibs_municipio;
using fiscal::total_grupo_ibs_uf;
using fiscal::total_grupo_monofasia;
using fiscal::total_ibs_cbs;
using fiscal::total_is;
using fiscal::total_nfe;
using fiscal::total_nfe_icms;
using fiscal::total_nfe_issqn;
using fiscal::total_nfe_retencao_tributos;

template <>
inline constexpr auto fields<total_nfe_icms> = std::tuple{
    field{"vBC", &total_nfe_icms::get_total_base_normal, &total_nfe_icms::set_total_base_normal},
    field{"vICMS", &total_nfe_icms::get_total_icms_normal, &total_nfe_icms::set_total_icms_normal},
    field{"vICMSDeson", &total_nfe_icms::get_total_desonerado,
          &total_nfe_icms::set_total_desonerado},
    field{"vFCPUFDest", &total_nfe_icms::get_total_icms_fcp, &total_nfe_icms::set_total_icms_fcp},
    field{"vICMSUFDest", &total_nfe_icms::get_total_icms_destino,
          &total_nfe_icms::set_total_icms_destino},
    field{"vICMSUFRemet", &total_nfe_icms::get_total_icms_remetente,
          &total_nfe_icms::set_total_icms_remetente},
    field{"vFCP", &total_nfe_icms::get_total_fcp, &total_nfe_icms::set_total_fcp},
    field{"vBCST", &total_nfe_icms::get_total_base_st, &total_nfe_icms::set_total_base_st},
    field{"vST", &total_nfe_icms::get_total_retido, &total_nfe_icms::set_total_retido},
    field{"vFCPST", &total_nfe_icms::get_total_fcp_retido, &total_nfe_icms::set_total_fcp_retido},
    field{"vFCPSTRet", &total_nfe_icms::get_total_fcp_retido_anteriormente,
          &total_nfe_icms::set_total_fcp_retido_anteriormente},
    field{"qBCMono", &total_nfe_icms::get_total_quantidade_tributada_icms_monofasico,
          &total_nfe_icms::set_total_quantidade_tributada_icms_monofasico},
    field{"vICMSMono", &total_nfe_icms::get_total_icms_monofasico,
          &total_nfe_icms::set_total_icms_monofasico},
    field{"qBCMonoReten", &total_nfe_icms::get_total_quantidade_tributada_icms_monofasico_retencao,
          &total_nfe_icms::set_total_quantidade_tributada_icms_monofasico_retencao},
    field{"vICMSMonoReten", &total_nfe_icms::get_total_icms_monofasico_retencao,
          &total_nfe_icms::set_total_icms_monofasico_retencao},
    field{"qBCMonoRet", &total_nfe_icms::get_total_quantidade_tributada_icms_monofasico_retido,
          &total_nfe_icms::set_total_quantidade_tributada_icms_monofasico_retido},
    field{"vICMSMonoRet", &total_nfe_icms::get_total_icms_monofasico_retido,
          &total_nfe_icms::set_total_icms_monofasico_retido},
    field{"vProd", &total_nfe_icms::get_valor_total_dos_produtos_da_nota,
          &total_nfe_icms::set_valor_total_dos_produtos_da_nota},
    field{"vFrete", &total_nfe_icms::get_total_frete, &total_nfe_icms::set_total_frete},
    field{"vSeg", &total_nfe_icms::get_total_seguro, &total_nfe_icms::set_total_seguro},
    field{"vDesc", &total_nfe_icms::get_valor_total_do_desconto_da_nota,
          &total_nfe_icms::set_valor_total_do_desconto_da_nota},
    field{"vII", &total_nfe_icms::get_total_imposto_de_importacao,
          &total_nfe_icms::set_total_imposto_de_importacao},
    field{"vIPI", &total_nfe_icms::get_total_ipi, &total_nfe_icms::set_total_ipi},
    field{"vIPIDevol", &total_nfe_icms::get_total_ipi_devolvido,
          &total_nfe_icms::set_total_ipi_devolvido},
    field{"vPIS", &total_nfe_icms::get_total_imposto_pis, &total_nfe_icms::set_total_imposto_pis},
    field{"vCOFINS", &total_nfe_icms::get_total_imposto_confins,
          &total_nfe_icms::set_total_imposto_confins},
    field{"vOutro", &total_nfe_icms::get_total_despesas_acessorias,
          &total_nfe_icms::set_total_despesas_acessorias},
    field{"vNF", &total_nfe_icms::get_total_da_nota, &total_nfe_icms::set_total_da_nota},
    field{"vTotTrib", &total_nfe_icms::get_total_dos_tributos_do_item,
          &total_nfe_icms::set_total_dos_tributos_do_item},
    no_element{&total_nfe_icms::get_total_fecop, &total_nfe_icms::set_total_fecop},
};

template <>
inline constexpr auto fields<total_nfe_issqn> = std::tuple{
    field{"vServ", &total_nfe_issqn::get_valor_servico, &total_nfe_issqn::set_valor_servico},
    field{"vBC", &total_nfe_issqn::get_valor_base_calculo,
          &total_nfe_issqn::set_valor_base_calculo},
    field{"vISS", &total_nfe_issqn::get_valor_iss, &total_nfe_issqn::set_valor_iss},
    field{"vPIS", &total_nfe_issqn::get_valor_pis, &total_nfe_issqn::set_valor_pis},
    field{"vCOFINS", &total_nfe_issqn::get_valor_cofins, &total_nfe_issqn::set_valor_cofins},
    field{"dCompet", &total_nfe_issqn::get_data_prestacao_servico,
          &total_nfe_issqn::set_data_prestacao_servico},
    field{"vDeducao", &total_nfe_issqn::get_valor_deducao, &total_nfe_issqn::set_valor_deducao},
    field{"vOutro", &total_nfe_issqn::get_valor_outras_retencoes,
          &total_nfe_issqn::set_valor_outras_retencoes},
    field{"vDescIncond", &total_nfe_issqn::get_valor_desconto_incondicionado,
          &total_nfe_issqn::set_valor_desconto_incondicionado},
    field{"vDescCond", &total_nfe_issqn::get_valor_desconto_condicionado,
          &total_nfe_issqn::set_valor_desconto_condicionado},
    field{"vISSRet", &total_nfe_issqn::get_valor_iss_retido,
          &total_nfe_issqn::set_valor_iss_retido},
    field{"cRegTrib", &total_nfe_issqn::get_codigo_regime_tributacao,
          &total_nfe_issqn::set_codigo_regime_tributacao, digits(1)},
};

template <>
inline constexpr auto fields<total_nfe_retencao_tributos> = std::tuple{
    field{"vRetPIS", &total_nfe_retencao_tributos::get_valor_pis_retido,
          &total_nfe_retencao_tributos::set_valor_pis_retido},
    field{"vRetCOFINS", &total_nfe_retencao_tributos::get_valor_cofins_retido,
          &total_nfe_retencao_tributos::set_valor_cofins_retido},
    field{"vRetCSLL", &total_nfe_retencao_tributos::get_valor_csll_retido,
          &total_nfe_retencao_tributos::set_valor_csll_retido},
    field{"vBCIRRF", &total_nfe_retencao_tributos::get_valor_base_calculo_irrf,
          &total_nfe_retencao_tributos::set_valor_base_calculo_irrf},
    field{"vIRRF", &total_nfe_retencao_tributos::get_valor_irrf,
          &total_nfe_retencao_tributos::set_valor_irrf},
    field{"vBCRetPrev", &total_nfe_retencao_tributos::get_valor_bc_retencao_previdencia,
          &total_nfe_retencao_tributos::set_valor_bc_retencao_previdencia},
    field{"vRetPrev", &total_nfe_retencao_tributos::get_valor_retencao_previdencia,
          &total_nfe_retencao_tributos::set_valor_retencao_previdencia},
};

template <>
inline constexpr auto fields<total_is> = std::tuple{
    field{"vIS", &total_is::get_total, &total_is::set_total},
};

template <>
inline constexpr auto fields<total_grupo_ibs_uf> = std::tuple{
    field{"vDif", &total_grupo_ibs_uf::get_total_diferimento,
          &total_grupo_ibs_uf::set_total_diferimento},
    field{"vDevTrib", &total_grupo_ibs_uf::get_total_devolucao,
          &total_grupo_ibs_uf::set_total_devolucao},
    field{"vIBSUF", &total_grupo_ibs_uf::get_total, &total_grupo_ibs_uf::set_total},
};

template <>
inline constexpr auto fields<total_grupo_ibs_municipio> = std::tuple{
    field{"vDif", &total_grupo_ibs_municipio::get_total_diferimento,
          &total_grupo_ibs_municipio::set_total_diferimento},
    field{"vDevTrib", &total_grupo_ibs_municipio::get_total_devolucao,
          &total_grupo_ibs_municipio::set_total_devolucao},
    field{"vIBSMun", &total_grupo_ibs_municipio::get_total, &total_grupo_ibs_municipio::set_total},
};

template <>
inline constexpr auto fields<total_grupo_ibs> = std::tuple{
    field{"gIBSUF", &total_grupo_ibs::get_total_grupo_ibs_uf,
          &total_grupo_ibs::set_total_grupo_ibs_uf},
    field{"gIBSMun", &total_grupo_ibs::get_total_grupo_ibs_municipio,
          &total_grupo_ibs::set_total_grupo_ibs_municipio},
    field{"vIBS", &total_grupo_ibs::get_total_ibs, &total_grupo_ibs::set_total_ibs},
    field{"vCredPres", &total_grupo_ibs::get_total_cred_pres,
          &total_grupo_ibs::set_total_cred_pres},
    field{"vCredPresCondSus", &total_grupo_ibs::get_total_cred_pres_sus,
          &total_grupo_ibs::set_total_cred_pres_sus},
};

template <>
inline constexpr auto fields<total_grupo_cbs> = std::tuple{
    field{"vDif", &total_grupo_cbs::get_total_diferimento, &total_grupo_cbs::set_total_diferimento},
    field{"vDevTrib", &total_grupo_cbs::get_total_devolucao_tributos,
          &total_grupo_cbs::set_total_devolucao_tributos},
    field{"vCBS", &total_grupo_cbs::get_total_cbs, &total_grupo_cbs::set_total_cbs},
    field{"vCredPres", &total_grupo_cbs::get_total_cred_pres,
          &total_grupo_cbs::set_total_cred_pres},
    field{"vCredPresCondSus", &total_grupo_cbs::get_total_cred_pres_sus,
          &total_grupo_cbs::set_total_cred_pres_sus},
};

template <>
inline constexpr auto fields<total_grupo_monofasia> = std::tuple{
    field{"vIBSMono", &total_grupo_monofasia::get_total_ibs, &total_grupo_monofasia::set_total_ibs},
    field{"vCBSMono", &total_grupo_monofasia::get_total_cbs, &total_grupo_monofasia::set_total_cbs},
    field{"vIBSMonoReten", &total_grupo_monofasia::get_total_ibs_retencao,
          &total_grupo_monofasia::set_total_ibs_retencao},
    field{"vCBSMonoReten", &total_grupo_monofasia::get_total_cbs_retencao,
          &total_grupo_monofasia::set_total_cbs_retencao},
    field{"vIBSMonoRet", &total_grupo_monofasia::get_total_ibs_retido,
          &total_grupo_monofasia::set_total_ibs_retido},
    field{"vCBSMonoRet", &total_grupo_monofasia::get_total_cbs_retido,
          &total_grupo_monofasia::set_total_cbs_retido},
};

template <>
inline constexpr auto fields<total_ibs_cbs> = std::tuple{
    field{"vBCIBSCBS", &total_ibs_cbs::get_total_bc_ibs_cbs, &total_ibs_cbs::set_total_bc_ibs_cbs},
    field{"gIBS", &total_ibs_cbs::get_total_grupo_ibs, &total_ibs_cbs::set_total_grupo_ibs},
    field{"gCBS", &total_ibs_cbs::get_total_grupo_cbs, &total_ibs_cbs::set_total_grupo_cbs},
    field{"gMono", &total_ibs_cbs::get_total_grupo_monofasia,
          &total_ibs_cbs::set_total_grupo_monofasia},
};

template <>
inline constexpr auto fields<total_nfe> = std::tuple{
    field{"ICMSTot", &total_nfe::get_total_icms, &total_nfe::set_total_icms},
    field{"ISSQNtot", &total_nfe::get_total_issqn, &total_nfe::set_total_issqn},
    field{"retTrib", &total_nfe::get_total_nfe_retencao_tributos,
          &total_nfe::set_total_nfe_retencao_tributos},
    field{"ISTot", &total_nfe::get_total_is, &total_nfe::set_total_is},
    field{"IBSCBSTot", &total_nfe::get_total_ibs_cbs, &total_nfe::set_total_ibs_cbs},
    field{"vNFTot", &total_nfe::get_total_nfe_geral, &total_nfe::set_total_nfe_geral},
};

} // namespace kivo::erp::v12::layout
