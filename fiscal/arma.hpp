#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// A firearm of an item (arma).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT arma {
public:
    /// Whether the use of a firearm is restricted (tpArma).
    enum class tipo : std::uint32_t {
        uso_permitido = 0, ///< firearm of permitted use
        uso_restrito = 1,  ///< firearm of restricted use
    };

    arma() noexcept;
    arma(const arma& other);
    arma(arma&& other) noexcept;
    arma& operator=(const arma& other);
    arma& operator=(arma&& other) noexcept;
    ~arma();
    void swap(arma& other) noexcept;

    /// Whether the use of the firearm is restricted (tpArma).
    tipo get_tipo() const;
    void set_tipo(tipo value);

    /// Serial number of the firearm, 1 to 15 characters (nSerie).
    std::string get_numero_serie_arma() const;
    void set_numero_serie_arma(const std::string& value);

    /// Serial number of the barrel, 1 to 15 characters (nCano).
    std::string get_numero_serie_cano() const;
    void set_numero_serie_cano(const std::string& value);

    /// Description with make and calibre, 1 to 256 characters (descr).
    std::string get_descricao() const;
    void set_descricao(const std::string& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
