#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// Traceability of a batch that the item is taken from (rastro).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT informacoes_rastreabilidade {
public:
    informacoes_rastreabilidade();
    informacoes_rastreabilidade(const informacoes_rastreabilidade& other);
    informacoes_rastreabilidade(informacoes_rastreabilidade&& other);
    informacoes_rastreabilidade& operator=(const informacoes_rastreabilidade& other);
    informacoes_rastreabilidade& operator=(informacoes_rastreabilidade&& other);
    ~informacoes_rastreabilidade();

    /// Number of the batch, 1 to 20 characters (nLote).
    std::string numero_lote() const;
    void set_numero_lote(const std::string& value);

    /// Quantity of the product in the batch (qLote).
    decimal quantidade_de_produto_no_lote() const;
    void set_quantidade_de_produto_no_lote(const decimal& value);

    /// Date of manufacture (dFab).
    date data_fabricacao() const;
    void set_data_fabricacao(const date& value);

    /// Date of expiry (dVal).
    date data_validade() const;
    void set_data_validade(const date& value);

    /// Aggregation code of the packages, 1 to 20 characters (cAgreg).
    optional<std::string> codigo_agregacao() const;
    void set_codigo_agregacao(const optional<std::string>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
