#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// Establishment that was paid, where it is not the issuer (its two elements stand in detPag).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT transacao_pagamento {
public:
    transacao_pagamento() noexcept;
    transacao_pagamento(const transacao_pagamento& other);
    transacao_pagamento(transacao_pagamento&& other) noexcept;
    transacao_pagamento& operator=(const transacao_pagamento& other);
    transacao_pagamento& operator=(transacao_pagamento&& other) noexcept;
    ~transacao_pagamento();
    void swap(transacao_pagamento& other) noexcept;

    /// Company taxpayer number (CNPJPag).
    cnpj get_cnpj() const;
    void set_cnpj(const cnpj& value);

    /// State, 2 letters (UFPag).
    std::string get_uf() const;
    void set_uf(const std::string& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
