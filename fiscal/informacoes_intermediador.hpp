#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// The intermediary of the sale, such as a marketplace (infIntermed).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT informacoes_intermediador {
public:
    informacoes_intermediador() noexcept;
    informacoes_intermediador(const informacoes_intermediador& other);
    informacoes_intermediador(informacoes_intermediador&& other) noexcept;
    informacoes_intermediador& operator=(const informacoes_intermediador& other);
    informacoes_intermediador& operator=(informacoes_intermediador&& other) noexcept;
    ~informacoes_intermediador();
    void swap(informacoes_intermediador& other) noexcept;

    /// Company taxpayer number (CNPJ).
    cnpj get_cnpj() const;
    void set_cnpj(const cnpj& value);

    /// Name or code of the seller at the intermediary, 2 to 60 characters (idCadIntTran).
    std::string get_identificador_cadastrado() const;
    void set_identificador_cadastrado(const std::string& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
