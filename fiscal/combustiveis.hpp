#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace kivo::erp::v12::fiscal {

class encerrante_bomba_combustiveis;
class indicador_origem_combustivel;
class informacoes_cide_combustiveis;
class informacoes_combustivel_glp;

/// Fuel data of an item (comb).
/// Eager: failures and moved-from objects follow eager_handle; a copy of its origins that fails
/// ends the process, in an accessor or a copy of the whole too.
class KIVO_ERP_FISCAL_EXPORT combustiveis {
public:
    combustiveis();
    combustiveis(const combustiveis& other);
    combustiveis(combustiveis&& other);
    combustiveis& operator=(const combustiveis& other);
    combustiveis& operator=(combustiveis&& other);
    ~combustiveis();

    /// Product code of the fuel regulator, 9 digits as a number (cProdANP).
    std::uint32_t get_codigo_produto_anp() const;
    void set_codigo_produto_anp(std::uint32_t value);

    /// Product description of the fuel regulator, 2 to 95 characters (descANP).
    std::string get_descricao_produto_anp() const;
    void set_descricao_produto_anp(const std::string& value);

    /// CODIF authorisation of the deferral for anhydrous ethanol, 1 to 21 digits as text (CODIF).
    optional<std::string> get_codigo_autorizacao_codif() const;
    void set_codigo_autorizacao_codif(const optional<std::string>& value);

    /// Quantity at ambient temperature, where the commercial one is at another (qTemp).
    optional<decimal> get_quantidade_faturada_temperatura_ambiente() const;
    void set_quantidade_faturada_temperatura_ambiente(const optional<decimal>& value);

    /// State of consumption, 2 letters, EX abroad (UFCons).
    std::string get_uf_consumo() const;
    void set_uf_consumo(const std::string& value);

    /// Composition and starting value of liquefied petroleum gas (pGLP, pGNn, pGNi, vPart).
    optional<informacoes_combustivel_glp> get_informacoes_glp() const;
    void set_informacoes_glp(const optional<informacoes_combustivel_glp>& value);

    /// Fuel contribution CIDE (CIDE).
    optional<informacoes_cide_combustiveis> get_informacoes_cide_combustiveis() const;
    void set_informacoes_cide_combustiveis(const optional<informacoes_cide_combustiveis>& value);

    /// Nozzle and meter readings at the pump, and the share of biodiesel (encerrante, pBio).
    optional<encerrante_bomba_combustiveis> get_encerrante_bomba_combustiveis() const;
    void set_encerrante_bomba_combustiveis(const optional<encerrante_bomba_combustiveis>& value);

    /// Origins of the fuel, up to 30 (origComb).
    std::vector<indicador_origem_combustivel> get_indicador_origem_combustivel() const;
    void set_indicador_origem_combustivel(const std::vector<indicador_origem_combustivel>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
