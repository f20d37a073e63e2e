#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_ibs_municipio;
class grupo_ibs_uf;
class grupo_informacoes_cbs;
class grupo_tributacao_regular;

/// Regular IBS and CBS of an item, charged on a tax base (gIBSCBS).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_ibs_cbs {
public:
    grupo_ibs_cbs() noexcept;
    grupo_ibs_cbs(const grupo_ibs_cbs& other) noexcept;
    grupo_ibs_cbs(grupo_ibs_cbs&& other) noexcept;
    grupo_ibs_cbs& operator=(const grupo_ibs_cbs& other) noexcept;
    grupo_ibs_cbs& operator=(grupo_ibs_cbs&& other) noexcept;
    ~grupo_ibs_cbs();
    void swap(grupo_ibs_cbs& other) noexcept;

    /// Tax base of both IBS and CBS, in R$ (vBC).
    decimal get_valor_base_calculo() const;
    void set_valor_base_calculo(const decimal& value);

    /// State share of the IBS (gIBSUF).
    grupo_ibs_uf get_ibs_uf() const;
    void set_ibs_uf(const grupo_ibs_uf& value);

    /// Municipal share of the IBS (gIBSMun).
    grupo_ibs_municipio get_ibs_municipio() const;
    void set_ibs_municipio(const grupo_ibs_municipio& value);

    /// Total IBS, state and municipal shares together, in R$ (vIBS).
    decimal get_valor_ibs() const;
    void set_valor_ibs(const decimal& value);

    /// CBS (gCBS).
    grupo_informacoes_cbs get_informacoes_cbs() const;
    void set_informacoes_cbs(const grupo_informacoes_cbs& value);

    /// Regular taxation, which holds if the condition of a benefit fails (gTribRegular).
    optional<grupo_tributacao_regular> get_tributacao_regular() const;
    void set_tributacao_regular(const optional<grupo_tributacao_regular>& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
