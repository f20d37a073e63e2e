#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>
#include <vector>

namespace kivo::erp::v12::fiscal {

class grupo_processo_referenciado;

/// Free texts of the invoice, and the processes behind it (infAdic).
/// Eager: failures and moved-from objects follow eager_handle; a copy of its referenced
/// processes that fails ends the process, in an accessor or a copy of the whole too.
class KIVO_ERP_FISCAL_EXPORT informacoes_adicionais {
public:
    informacoes_adicionais();
    informacoes_adicionais(const informacoes_adicionais& other);
    informacoes_adicionais(informacoes_adicionais&& other);
    informacoes_adicionais& operator=(const informacoes_adicionais& other);
    informacoes_adicionais& operator=(informacoes_adicionais&& other);
    ~informacoes_adicionais();

    /// Text for the tax authority, 1 to 2000 characters (infAdFisco).
    optional<std::string> get_informacoes_adicionais_fisco() const;
    void set_informacoes_adicionais_fisco(const optional<std::string>& value);

    /// Text for the taxpayer, 1 to 5000 characters (infCpl).
    optional<std::string> get_informacoes_complementares() const;
    void set_informacoes_complementares(const optional<std::string>& value);

    /// Processes and concession acts that the operation rests on, up to 100 (procRef).
    std::vector<grupo_processo_referenciado> get_grupo_processo_referenciado() const;
    void set_grupo_processo_referenciado(const std::vector<grupo_processo_referenciado>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
