#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// Proof of the security code CSRT, which the tax authority gave to the technical responsible (its
/// elements stand in infRespTec).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT informacoes_codigo_seguranca {
public:
    informacoes_codigo_seguranca();
    informacoes_codigo_seguranca(const informacoes_codigo_seguranca& other);
    informacoes_codigo_seguranca(informacoes_codigo_seguranca&& other);
    informacoes_codigo_seguranca& operator=(const informacoes_codigo_seguranca& other);
    informacoes_codigo_seguranca& operator=(informacoes_codigo_seguranca&& other);
    ~informacoes_codigo_seguranca();

    /// Which security code is in the hash, 2 digits as a number (idCSRT).
    std::uint16_t get_identificador_csrt() const;
    void set_identificador_csrt(std::uint16_t value);

    /// SHA-1 hash of the security code followed by the access key, in Base64, 28 characters
    /// (hashCSRT).
    std::string get_hash_csrt() const;
    void set_hash_csrt(const std::string& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
