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

template <> struct map_of<total_nfe_icms> {
    using c = total_nfe_icms;
    static constexpr entries fields{
        field<"vBC", &c::get_total_base_normal, &c::set_total_base_normal>,
        field<"vICMS", &c::get_total_icms_normal, &c::set_total_icms_normal>,
        field<"vICMSDeson", &c::get_total_desonerado, &c::set_total_desonerado>,
        field<"vFCPUFDest", &c::get_total_icms_fcp, &c::set_total_icms_fcp>,
        field<"vICMSUFDest", &c::get_total_icms_destino, &c::set_total_icms_destino>,
        field<"vICMSUFRemet", &c::get_total_icms_remetente, &c::set_total_icms_remetente>,
        field<"vFCP", &c::get_total_fcp, &c::set_total_fcp>,
        field<"vBCST", &c::get_total_base_st, &c::set_total_base_st>,
        field<"vST", &c::get_total_retido, &c::set_total_retido>,
        field<"vFCPST", &c::get_total_fcp_retido, &c::set_total_fcp_retido>,
        field<"vFCPSTRet", &c::get_total_fcp_retido_anteriormente,
              &c::set_total_fcp_retido_anteriormente>,
        field<"qBCMono", &c::get_total_quantidade_tributada_icms_monofasico,
              &c::set_total_quantidade_tributada_icms_monofasico>,
        field<"vICMSMono", &c::get_total_icms_monofasico, &c::set_total_icms_monofasico>,
        field<"qBCMonoReten", &c::get_total_quantidade_tributada_icms_monofasico_retencao,
              &c::set_total_quantidade_tributada_icms_monofasico_retencao>,
        field<"vICMSMonoReten", &c::get_total_icms_monofasico_retencao,
              &c::set_total_icms_monofasico_retencao>,
        field<"qBCMonoRet", &c::get_total_quantidade_tributada_icms_monofasico_retido,
              &c::set_total_quantidade_tributada_icms_monofasico_retido>,
        field<"vICMSMonoRet", &c::get_total_icms_monofasico_retido,
              &c::set_total_icms_monofasico_retido>,
        field<"vProd", &c::get_valor_total_dos_produtos_da_nota,
              &c::set_valor_total_dos_produtos_da_nota>,
        field<"vFrete", &c::get_total_frete, &c::set_total_frete>,
        field<"vSeg", &c::get_total_seguro, &c::set_total_seguro>,
        field<"vDesc", &c::get_valor_total_do_desconto_da_nota,
              &c::set_valor_total_do_desconto_da_nota>,
        field<"vII", &c::get_total_imposto_de_importacao, &c::set_total_imposto_de_importacao>,
        field<"vIPI", &c::get_total_ipi, &c::set_total_ipi>,
        field<"vIPIDevol", &c::get_total_ipi_devolvido, &c::set_total_ipi_devolvido>,
        field<"vPIS", &c::get_total_imposto_pis, &c::set_total_imposto_pis>,
        field<"vCOFINS", &c::get_total_imposto_confins, &c::set_total_imposto_confins>,
        field<"vOutro", &c::get_total_despesas_acessorias, &c::set_total_despesas_acessorias>,
        field<"vNF", &c::get_total_da_nota, &c::set_total_da_nota>,
        field<"vTotTrib", &c::get_total_dos_tributos_do_item, &c::set_total_dos_tributos_do_item>,
        no_element<&c::get_total_fecop, &c::set_total_fecop>,
    };
};

template <> struct map_of<total_nfe_issqn> {
    using c = total_nfe_issqn;
    static constexpr entries fields{
        field<"vServ", &c::get_valor_servico, &c::set_valor_servico>,
        field<"vBC", &c::get_valor_base_calculo, &c::set_valor_base_calculo>,
        field<"vISS", &c::get_valor_iss, &c::set_valor_iss>,
        field<"vPIS", &c::get_valor_pis, &c::set_valor_pis>,
        field<"vCOFINS", &c::get_valor_cofins, &c::set_valor_cofins>,
        field<"dCompet", &c::get_data_prestacao_servico, &c::set_data_prestacao_servico>,
        field<"vDeducao", &c::get_valor_deducao, &c::set_valor_deducao>,
        field<"vOutro", &c::get_valor_outras_retencoes, &c::set_valor_outras_retencoes>,
        field<"vDescIncond", &c::get_valor_desconto_incondicionado,
              &c::set_valor_desconto_incondicionado>,
        field<"vDescCond", &c::get_valor_desconto_condicionado,
              &c::set_valor_desconto_condicionado>,
        field<"vISSRet", &c::get_valor_iss_retido, &c::set_valor_iss_retido>,
        field<"cRegTrib", &c::get_codigo_regime_tributacao, &c::set_codigo_regime_tributacao,
              digits(1)>,
    };
};

template <> struct map_of<total_nfe_retencao_tributos> {
    using c = total_nfe_retencao_tributos;
    static constexpr entries fields{
        field<"vRetPIS", &c::get_valor_pis_retido, &c::set_valor_pis_retido>,
        field<"vRetCOFINS", &c::get_valor_cofins_retido, &c::set_valor_cofins_retido>,
        field<"vRetCSLL", &c::get_valor_csll_retido, &c::set_valor_csll_retido>,
        field<"vBCIRRF", &c::get_valor_base_calculo_irrf, &c::set_valor_base_calculo_irrf>,
        field<"vIRRF", &c::get_valor_irrf, &c::set_valor_irrf>,
        field<"vBCRetPrev", &c::get_valor_bc_retencao_previdencia,
              &c::set_valor_bc_retencao_previdencia>,
        field<"vRetPrev", &c::get_valor_retencao_previdencia, &c::set_valor_retencao_previdencia>,
    };
};

template <> struct map_of<total_is> {
    using c = total_is;
    static constexpr entries fields{
        field<"vIS", &c::get_total, &c::set_total>,
    };
};

template <> struct map_of<total_grupo_ibs_uf> {
    using c = total_grupo_ibs_uf;
    static constexpr entries fields{
        field<"vDif", &c::get_total_diferimento, &c::set_total_diferimento>,
        field<"vDevTrib", &c::get_total_devolucao, &c::set_total_devolucao>,
        field<"vIBSUF", &c::get_total, &c::set_total>,
    };
};

template <> struct map_of<total_grupo_ibs_municipio> {
    using c = total_grupo_ibs_municipio;
    static constexpr entries fields{
        field<"vDif", &c::get_total_diferimento, &c::set_total_diferimento>,
        field<"vDevTrib", &c::get_total_devolucao, &c::set_total_devolucao>,
        field<"vIBSMun", &c::get_total, &c::set_total>,
    };
};

template <> struct map_of<total_grupo_ibs> {
    using c = total_grupo_ibs;
    static constexpr entries fields{
        field<"gIBSUF", &c::get_total_grupo_ibs_uf, &c::set_total_grupo_ibs_uf>,
        field<"gIBSMun", &c::get_total_grupo_ibs_municipio, &c::set_total_grupo_ibs_municipio>,
        field<"vIBS", &c::get_total_ibs, &c::set_total_ibs>,
        field<"vCredPres", &c::get_total_cred_pres, &c::set_total_cred_pres>,
        field<"vCredPresCondSus", &c::get_total_cred_pres_sus, &c::set_total_cred_pres_sus>,
    };
};

template <> struct map_of<total_grupo_cbs> {
    using c = total_grupo_cbs;
    static constexpr entries fields{
        field<"vDif", &c::get_total_diferimento, &c::set_total_diferimento>,
        field<"vDevTrib", &c::get_total_devolucao_tributos, &c::set_total_devolucao_tributos>,
        field<"vCBS", &c::get_total_cbs, &c::set_total_cbs>,
        field<"vCredPres", &c::get_total_cred_pres, &c::set_total_cred_pres>,
        field<"vCredPresCondSus", &c::get_total_cred_pres_sus, &c::set_total_cred_pres_sus>,
    };
};

template <> struct map_of<total_grupo_monofasia> {
    using c = total_grupo_monofasia;
    static constexpr entries fields{
        field<"vIBSMono", &c::get_total_ibs, &c::set_total_ibs>,
        field<"vCBSMono", &c::get_total_cbs, &c::set_total_cbs>,
        field<"vIBSMonoReten", &c::get_total_ibs_retencao, &c::set_total_ibs_retencao>,
        field<"vCBSMonoReten", &c::get_total_cbs_retencao, &c::set_total_cbs_retencao>,
        field<"vIBSMonoRet", &c::get_total_ibs_retido, &c::set_total_ibs_retido>,
        field<"vCBSMonoRet", &c::get_total_cbs_retido, &c::set_total_cbs_retido>,
    };
};

template <> struct map_of<total_ibs_cbs> {
    using c = total_ibs_cbs;
    static constexpr entries fields{
        field<"vBCIBSCBS", &c::get_total_bc_ibs_cbs, &c::set_total_bc_ibs_cbs>,
        field<"gIBS", &c::get_total_grupo_ibs, &c::set_total_grupo_ibs>,
        field<"gCBS", &c::get_total_grupo_cbs, &c::set_total_grupo_cbs>,
        field<"gMono", &c::get_total_grupo_monofasia, &c::set_total_grupo_monofasia>,
    };
};

template <> struct map_of<total_nfe> {
    using c = total_nfe;
    static constexpr entries fields{
        field<"ICMSTot", &c::get_total_icms, &c::set_total_icms>,
        field<"ISSQNtot", &c::get_total_issqn, &c::set_total_issqn>,
        field<"retTrib", &c::get_total_nfe_retencao_tributos, &c::set_total_nfe_retencao_tributos>,
        field<"ISTot", &c::get_total_is, &c::set_total_is>,
        field<"IBSCBSTot", &c::get_total_ibs_cbs, &c::set_total_ibs_cbs>,
        field<"vNFTot", &c::get_total_nfe_geral, &c::set_total_nfe_geral>,
    };
};

} // namespace kivo::erp::v12::layout
