#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// One origin of the fuel and its share (origComb).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT indicador_origem_combustivel {
public:
    /// Whether a share of the fuel is national or imported (indImport).
    enum class indicador_importacao : std::uint32_t {
        nacional = 0,  ///< national fuel
        importado = 1, ///< imported fuel
    };

    indicador_origem_combustivel() noexcept;
    indicador_origem_combustivel(const indicador_origem_combustivel& other) noexcept;
    indicador_origem_combustivel(indicador_origem_combustivel&& other) noexcept;
    indicador_origem_combustivel& operator=(const indicador_origem_combustivel& other) noexcept;
    indicador_origem_combustivel& operator=(indicador_origem_combustivel&& other) noexcept;
    ~indicador_origem_combustivel();
    void swap(indicador_origem_combustivel& other) noexcept;

    /// Whether this share is national or imported (indImport).
    /// The setter does not throw: a failure in it ends the process.
    indicador_importacao get_indicador_importacao() const;
    void set_indicador_importacao(indicador_importacao value) noexcept;

    /// State of the producer or importer, IBGE code of 2 digits as a number (cUFOrig).
    /// The setter does not throw: a failure in it ends the process.
    std::uint16_t get_codigo_uf() const;
    void set_codigo_uf(std::uint16_t value) noexcept;

    /// Share of the fuel that comes from this origin, in percent (pOrig).
    /// The setter does not throw: a failure in it ends the process.
    decimal get_percentual_originario() const;
    void set_percentual_originario(const decimal& value) noexcept;

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
