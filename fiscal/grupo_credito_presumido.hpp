#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// ICMS presumed credit that one tax benefit grants to the item (gCred).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_credito_presumido {
public:
    grupo_credito_presumido();
    grupo_credito_presumido(const grupo_credito_presumido& other);
    grupo_credito_presumido(grupo_credito_presumido&& other);
    grupo_credito_presumido& operator=(const grupo_credito_presumido& other);
    grupo_credito_presumido& operator=(grupo_credito_presumido&& other);
    ~grupo_credito_presumido();

    /// Code of the tax benefit, of the state's table, 8 or 10 characters (cCredPresumido).
    std::string get_codigo_beneficio_fiscal() const;
    void set_codigo_beneficio_fiscal(const std::string& value);

    /// Rate of the presumed credit, in percent (pCredPresumido).
    decimal get_percentual_credito_presumido() const;
    void set_percentual_credito_presumido(const decimal& value);

    /// Amount of the presumed credit, in R$ (vCredPresumido).
    decimal get_valor_credito_presumido() const;
    void set_valor_credito_presumido(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
