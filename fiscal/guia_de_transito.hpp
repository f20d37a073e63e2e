#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// A transit permit of animals, plants or timber (guiaTransito).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT guia_de_transito {
public:
    /// Kind of a transit permit (tpGuia).
    enum class tipo_guia : std::uint16_t {
        nao_informado = 0,                  ///< never set; not a code of the layout
        guia_transito_animal = 1,           ///< animal transit permit (GTA)
        termo_transito_animal = 2,          ///< animal transit statement (TTA)
        documento_transferencia_animal = 3, ///< animal transfer document (DTA)
        autorizacao_transito_vegetal = 4,   ///< plant transit authorisation (ATV)
        permissao_transito_vegetal = 5,     ///< plant transit permission (PTV)
        guia_transito_vegetal = 6,          ///< plant transit permit (GTV)
        guia_florestal = 7,                 ///< forest permit (DOF, SisFlora, SIAM)
    };

    guia_de_transito();
    guia_de_transito(const guia_de_transito& other);
    guia_de_transito(guia_de_transito&& other);
    guia_de_transito& operator=(const guia_de_transito& other);
    guia_de_transito& operator=(guia_de_transito&& other);
    ~guia_de_transito();

    /// Kind of the permit (tpGuia).
    tipo_guia get_tipo_guia() const;
    void set_tipo_guia(const tipo_guia& value);

    /// State that issued the permit, 2 letters (UFGuia).
    std::string get_uf_emissao() const;
    void set_uf_emissao(const std::string& value);

    /// Series, 1 to 9 characters (serieGuia).
    optional<std::string> get_serie() const;
    void set_serie(const optional<std::string>& value);

    /// Number, 1 to 9 digits (nGuia).
    std::uint32_t get_numero() const;
    void set_numero(const std::uint32_t& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
