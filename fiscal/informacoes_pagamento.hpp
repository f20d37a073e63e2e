#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <vector>

namespace kivo::erp::v12::fiscal {

class detalhes_pagamento;

/// Payments of the invoice (pag).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT informacoes_pagamento {
public:
    informacoes_pagamento();
    informacoes_pagamento(const informacoes_pagamento& other);
    informacoes_pagamento(informacoes_pagamento&& other);
    informacoes_pagamento& operator=(const informacoes_pagamento& other);
    informacoes_pagamento& operator=(informacoes_pagamento&& other);
    ~informacoes_pagamento();

    /// Change given back, in R$ (vTroco).
    optional<decimal> get_valor_total_troco() const;
    void set_valor_total_troco(const optional<decimal>& value);

    /// Payments, one entry per means, 1 to 100 (detPag).
    std::vector<detalhes_pagamento> get_detalhes_pagamento() const;
    void set_detalhes_pagamento(const std::vector<detalhes_pagamento>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
