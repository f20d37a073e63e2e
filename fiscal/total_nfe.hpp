#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class total_ibs_cbs;
class total_is;
class total_nfe_icms;
class total_nfe_issqn;
class total_nfe_retencao_tributos;

/// Totals of the invoice (total).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT total_nfe {
public:
    total_nfe() noexcept;
    total_nfe(const total_nfe& other);
    total_nfe(total_nfe&& other) noexcept;
    total_nfe& operator=(const total_nfe& other);
    total_nfe& operator=(total_nfe&& other) noexcept;
    ~total_nfe();
    void swap(total_nfe& other) noexcept;

    /// ICMS and the other taxes and charges of the items (ICMSTot). The getter of an empty object
    /// allocates: it returns a total_nfe_icms at its defaults, and that class is eager.
    total_nfe_icms get_total_icms() const;
    void set_total_icms(const total_nfe_icms& value);

    /// Services subject to the municipal service tax (ISSQNtot).
    optional<total_nfe_issqn> get_total_issqn() const;
    void set_total_issqn(const optional<total_nfe_issqn>& value);

    /// Federal taxes withheld at source (retTrib).
    optional<total_nfe_retencao_tributos> get_total_nfe_retencao_tributos() const;
    void set_total_nfe_retencao_tributos(const optional<total_nfe_retencao_tributos>& value);

    /// Selective tax (ISTot).
    optional<total_is> get_total_is() const;
    void set_total_is(const optional<total_is>& value);

    /// IBS and CBS (IBSCBSTot).
    optional<total_ibs_cbs> get_total_ibs_cbs() const;
    void set_total_ibs_cbs(const optional<total_ibs_cbs>& value);

    /// Total of the invoice with IBS, CBS and selective tax, in R$ (vNFTot).
    optional<decimal> get_total_nfe_geral() const;
    void set_total_nfe_geral(const optional<decimal>& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
