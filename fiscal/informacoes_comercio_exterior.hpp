#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// Where exported goods leave the country (exporta).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT informacoes_comercio_exterior {
public:
    informacoes_comercio_exterior();
    informacoes_comercio_exterior(const informacoes_comercio_exterior& other);
    informacoes_comercio_exterior(informacoes_comercio_exterior&& other);
    informacoes_comercio_exterior& operator=(const informacoes_comercio_exterior& other);
    informacoes_comercio_exterior& operator=(informacoes_comercio_exterior&& other);
    ~informacoes_comercio_exterior();

    /// State of shipment or of crossing the border, 2 letters (UFSaidaPais).
    std::string get_uf_saida() const;
    void set_uf_saida(const std::string& value);

    /// Place of shipment or of crossing the border, 1 to 60 characters (xLocExporta).
    std::string get_local_embarque() const;
    void set_local_embarque(const std::string& value);

    /// Place of customs clearance, 1 to 60 characters (xLocDespacho).
    optional<std::string> get_local_despacho() const;
    void set_local_despacho(const optional<std::string>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
