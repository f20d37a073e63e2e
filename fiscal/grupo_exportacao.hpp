#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// A drawback or an indirect export that the item belongs to (detExport).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_exportacao {
public:
    grupo_exportacao();
    grupo_exportacao(const grupo_exportacao& other);
    grupo_exportacao(grupo_exportacao&& other);
    grupo_exportacao& operator=(const grupo_exportacao& other);
    grupo_exportacao& operator=(grupo_exportacao&& other);
    ~grupo_exportacao();

    /// Act that grants the drawback, 1 to 20 characters (nDraw).
    optional<std::string> get_numero_ato_concessorio_drawback() const;
    void set_numero_ato_concessorio_drawback(const optional<std::string>& value);

    /// Registration of the indirect export, up to 12 digits as a number (exportInd/nRE).
    optional<std::uint64_t> get_numero_registro_exportacao() const;
    void set_numero_registro_exportacao(const optional<std::uint64_t>& value);

    /// Access key of the invoice received for export, 44 characters (exportInd/chNFe).
    optional<std::string> get_chave_acesso_nfe_recebida() const;
    void set_chave_acesso_nfe_recebida(const optional<std::string>& value);

    /// Quantity that was exported (exportInd/qExport).
    optional<decimal> get_quantidade_exportada() const;
    void set_quantidade_exportada(const optional<decimal>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
