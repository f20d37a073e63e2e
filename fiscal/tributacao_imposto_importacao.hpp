#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Import tax of an item (II).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT tributacao_imposto_importacao {
public:
    tributacao_imposto_importacao();
    tributacao_imposto_importacao(const tributacao_imposto_importacao& other);
    tributacao_imposto_importacao(tributacao_imposto_importacao&& other);
    tributacao_imposto_importacao& operator=(const tributacao_imposto_importacao& other);
    tributacao_imposto_importacao& operator=(tributacao_imposto_importacao&& other);
    ~tributacao_imposto_importacao();

    /// Import tax base, in R$ (vBC).
    decimal get_valor_bc_imposto_importacao() const;
    void set_valor_bc_imposto_importacao(const decimal& value);

    /// Customs expenses, in R$ (vDespAdu).
    decimal get_valor_despesas_aduaneiras() const;
    void set_valor_despesas_aduaneiras(const decimal& value);

    /// Import tax amount, in R$ (vII).
    decimal get_valor_imposto_importacao() const;
    void set_valor_imposto_importacao(const decimal& value);

    /// Tax on financial operations, IOF, of the import, in R$ (vIOF).
    optional<decimal> get_valor_imposto_operacoes_financeiras() const;
    void set_valor_imposto_operacoes_financeiras(const optional<decimal>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
