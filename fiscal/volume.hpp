#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// Packages of one kind (vol).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT volume {
public:
    volume();
    volume(const volume& other);
    volume(volume&& other);
    volume& operator=(const volume& other);
    volume& operator=(volume&& other);
    ~volume();

    /// Number of packages, 0 where none is given (qVol).
    std::uint32_t get_quantidade() const;
    void set_quantidade(std::uint32_t value);

    /// Kind of package, such as box or pallet, 1 to 60 characters (esp).
    optional<std::string> get_especie() const;
    void set_especie(const optional<std::string>& value);

    /// Brand on the packages, 1 to 60 characters (marca).
    optional<std::string> get_marca() const;
    void set_marca(const optional<std::string>& value);

    /// Numbering of the packages, as text, 1 to 60 characters (nVol).
    optional<std::string> get_numeracao() const;
    void set_numeracao(const optional<std::string>& value);

    /// Net weight, in kg (pesoL).
    optional<decimal> get_peso_liquido() const;
    void set_peso_liquido(const optional<decimal>& value);

    /// Gross weight, in kg (pesoB).
    optional<decimal> get_peso_bruto() const;
    void set_peso_bruto(const optional<decimal>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
