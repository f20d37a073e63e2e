#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// A reference to an NF-e or NFC-e (NFref, with refNFe in it).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT nfe_referenciada {
public:
    nfe_referenciada();
    nfe_referenciada(const nfe_referenciada& other);
    nfe_referenciada(nfe_referenciada&& other);
    nfe_referenciada& operator=(const nfe_referenciada& other);
    nfe_referenciada& operator=(nfe_referenciada&& other);
    ~nfe_referenciada();

    /// Access key, 44 characters (refNFe).
    std::string get_chave_nfe() const;
    void set_chave_nfe(const std::string& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
