#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace kivo::erp::v12::fiscal {

class adicao;

/// An import declaration of an item (DI).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT declaracao_importacao {
public:
    /// Way by which the goods came into the country (tpViaTransp).
    enum class via_transporte : std::uint32_t {
        nao_informado = 0,           ///< never set; not a code of the layout
        maritima = 1,                ///< by sea
        fluvial = 2,                 ///< by river
        lacustre = 3,                ///< by lake
        aerea = 4,                   ///< by air
        postal = 5,                  ///< by post
        ferroviaria = 6,             ///< by rail
        rodoviaria = 7,              ///< by road
        conduto = 8,                 ///< by pipeline or transmission network
        meios_proprios = 9,          ///< the goods move by themselves
        entrada_ou_saida_ficta = 10, ///< fictitious entry or exit, without movement
        courier = 11,                ///< by express courier
        em_maos = 12,                ///< carried by hand
        por_reboque = 13,            ///< towed
    };

    /// On whose account goods are imported (tpIntermedio).
    enum class forma_intermedio_importacao : std::uint32_t {
        nao_informado = 0, ///< never set; not a code of the layout
        conta_propria = 1, ///< on own account
        conta_e_ordem = 2, ///< on account and order of another
        encomenda = 3,     ///< to the order of another
    };

    declaracao_importacao();
    declaracao_importacao(const declaracao_importacao& other);
    declaracao_importacao(declaracao_importacao&& other);
    declaracao_importacao& operator=(const declaracao_importacao& other);
    declaracao_importacao& operator=(declaracao_importacao&& other);
    ~declaracao_importacao();

    /// Number of the import document, 1 to 15 characters (nDI).
    std::string get_numero_documento_importacao() const;
    void set_numero_documento_importacao(const std::string& value);

    /// Date of registration (dDI).
    date get_data_registro() const;
    void set_data_registro(const date& value);

    /// Place of customs clearance, 1 to 60 characters (xLocDesemb).
    std::string get_local_desembaraco() const;
    void set_local_desembaraco(const std::string& value);

    /// State of customs clearance, 2 letters (UFDesemb).
    std::string get_uf_desembaraco() const;
    void set_uf_desembaraco(const std::string& value);

    /// Date of customs clearance (dDesemb).
    date get_data_desembaraco() const;
    void set_data_desembaraco(const date& value);

    /// Way by which the goods came into the country (tpViaTransp).
    via_transporte get_via_transporte() const;
    void set_via_transporte(const via_transporte& value);

    /// Additional freight charge for the merchant marine (AFRMM), in R$ (vAFRMM).
    optional<decimal> get_valor_afrmm() const;
    void set_valor_afrmm(const optional<decimal>& value);

    /// On whose account the goods are imported (tpIntermedio).
    forma_intermedio_importacao get_forma_intermedio_importacao() const;
    void set_forma_intermedio_importacao(const forma_intermedio_importacao& value);

    /// Taxpayer number of who acquires or orders the import: CNPJ (index 0) or CPF (index 1).
    optional<variant<cnpj, cpf>> get_documento_importador() const;
    void set_documento_importador(const optional<variant<cnpj, cpf>>& value);

    /// State of who acquires or orders the import, 2 letters (UFTerceiro).
    optional<std::string> get_uf_importador() const;
    void set_uf_importador(const optional<std::string>& value);

    /// Foreign exporter, code of the issuer, 1 to 60 characters (cExportador).
    std::string get_codigo_exportador() const;
    void set_codigo_exportador(const std::string& value);

    /// Additions of the declaration that the item appears in, 1 to 999 (adi).
    std::vector<adicao> get_adicoes() const;
    void set_adicoes(const std::vector<adicao>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
