#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// A pesticide prescription (defensivo).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT defensivos_agricolas {
public:
    defensivos_agricolas();
    defensivos_agricolas(const defensivos_agricolas& other);
    defensivos_agricolas(defensivos_agricolas&& other);
    defensivos_agricolas& operator=(const defensivos_agricolas& other);
    defensivos_agricolas& operator=(defensivos_agricolas&& other);
    ~defensivos_agricolas();

    /// Number of the prescription, 1 to 30 characters (nReceituario).
    std::string get_receituario() const;
    void set_receituario(const std::string& value);

    /// Person taxpayer number of the signing agronomist, 11 digits as a number (CPFRespTec).
    std::uint64_t get_cpf_responsavel_tecnico() const;
    void set_cpf_responsavel_tecnico(const std::uint64_t& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
