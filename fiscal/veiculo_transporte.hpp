#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// The road vehicle that carries the goods (veicTransp).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT veiculo_transporte {
public:
    veiculo_transporte();
    veiculo_transporte(const veiculo_transporte& other);
    veiculo_transporte(veiculo_transporte&& other);
    veiculo_transporte& operator=(const veiculo_transporte& other);
    veiculo_transporte& operator=(veiculo_transporte&& other);
    ~veiculo_transporte();

    /// Licence plate, 6 or 7 letters and digits without a hyphen (placa).
    std::string get_placa() const;
    void set_placa(const std::string& value);

    /// State of the plate, 2 letters, EX abroad; the layout lets it be absent (UF).
    std::string get_uf() const;
    void set_uf(const std::string& value);

    /// National registration of road carriers, 1 to 20 characters (RNTC).
    optional<std::string> get_rntc() const;
    void set_rntc(const optional<std::string>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
