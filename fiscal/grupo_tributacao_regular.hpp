#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// Regular taxation of an item: IBS and CBS as they would be if the condition of its benefit failed
/// (gTribRegular).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_regular {
public:
    grupo_tributacao_regular() noexcept;
    grupo_tributacao_regular(const grupo_tributacao_regular& other) noexcept;
    grupo_tributacao_regular(grupo_tributacao_regular&& other) noexcept;
    grupo_tributacao_regular& operator=(const grupo_tributacao_regular& other) noexcept;
    grupo_tributacao_regular& operator=(grupo_tributacao_regular&& other) noexcept;
    ~grupo_tributacao_regular();
    void swap(grupo_tributacao_regular& other) noexcept;

    /// Tax situation under regular taxation, code of 3 digits as a number (CSTReg).
    std::uint32_t get_codigo_situacao_tributaria() const;
    void set_codigo_situacao_tributaria(std::uint32_t value);

    /// Tax classification under regular taxation, code of 6 digits as a number (cClassTribReg).
    std::uint32_t get_codigo_classificacao_tributaria() const;
    void set_codigo_classificacao_tributaria(std::uint32_t value);

    /// Effective state IBS rate, in percent despite the name (pAliqEfetRegIBSUF).
    decimal get_valor_aliquota_ibs_uf() const;
    void set_valor_aliquota_ibs_uf(const decimal& value);

    /// State IBS amount, in R$ (vTribRegIBSUF).
    decimal get_valor_tributo_ibs_uf() const;
    void set_valor_tributo_ibs_uf(const decimal& value);

    /// Effective municipal IBS rate, in percent despite the name (pAliqEfetRegIBSMun).
    decimal get_valor_aliquota_ibs_municipio() const;
    void set_valor_aliquota_ibs_municipio(const decimal& value);

    /// Municipal IBS amount, in R$ (vTribRegIBSMun).
    decimal get_valor_tributo_ibs_municipio() const;
    void set_valor_tributo_ibs_municipio(const decimal& value);

    /// Effective CBS rate, in percent despite the name (pAliqEfetRegCBS).
    decimal get_valor_aliquota_cbs() const;
    void set_valor_aliquota_cbs(const decimal& value);

    /// CBS amount, in R$ (vTribRegCBS).
    decimal get_valor_tributo_cbs() const;
    void set_valor_tributo_cbs(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
