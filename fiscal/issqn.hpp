#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// Municipal service tax of an item (ISSQN).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT issqn {
public:
    issqn() noexcept;
    issqn(const issqn& other);
    issqn(issqn&& other) noexcept;
    issqn& operator=(const issqn& other);
    issqn& operator=(issqn&& other) noexcept;
    ~issqn();
    void swap(issqn& other) noexcept;

    /// ISSQN tax base, in R$ (vBC).
    decimal get_valor_bc() const;
    void set_valor_bc(const decimal& value);

    /// ISSQN rate, in percent (vAliq).
    decimal get_valor_aliquota() const;
    void set_valor_aliquota(const decimal& value);

    /// ISSQN amount, in R$ (vISSQN).
    decimal get_valor_issqn() const;
    void set_valor_issqn(const decimal& value);

    /// Municipality of the taxable event, IBGE code of 7 digits (cMunFG).
    std::uint32_t get_codigo_municio_de_ocorrencia() const;
    void set_codigo_municio_de_ocorrencia(std::uint32_t value);

    /// Item of the national list of services, as text, NN.NN (cListServ).
    std::string get_item_lista_servicos() const;
    void set_item_list_servicos(const std::string& value);

    /// Deduction from the tax base, in R$ (vDeducao).
    optional<decimal> get_valor_deducao() const;
    void set_valor_deducao(const optional<decimal>& value);

    /// Other amounts withheld, in R$ (vOutro).
    optional<decimal> get_valor_outras_retencoes() const;
    void set_valor_outras_retencoes(const optional<decimal>& value);

    /// Unconditional discount, in R$ (vDescIncond).
    optional<decimal> get_valor_desconto_incondicionado() const;
    void set_valor_desconto_incondicionado(const optional<decimal>& value);

    /// Conditional discount, in R$ (vDescCond).
    optional<decimal> get_valor_desconto_condicionado() const;
    void set_valor_desconto_condicionado(const optional<decimal>& value);

    /// ISSQN withheld by the taker of the service, in R$ (vISSRet).
    optional<decimal> get_valor_retencao_iss() const;
    void set_valor_retencao_iss(const optional<decimal>& value);

    /// Whether the tax is due: 1 due, 2 outside its scope, 3 exempt, 4 export, 5 immune,
    /// 6 suspended by a court, 7 suspended by an administrative proceeding (indISS).
    std::uint16_t get_indicador_iss() const;
    void set_indicador_iss(std::uint16_t value);

    /// Municipality to which the tax is due, IBGE code of 7 digits (cMun).
    optional<std::uint32_t> get_codigo_municipio_incidencia() const;
    void set_codigo_municipio_incidencia(const optional<std::uint32_t>& value);

    /// Country of the service, code of the central bank's table (cPais).
    optional<std::uint16_t> get_codigo_pais() const;
    void set_codigo_pais(const optional<std::uint16_t>& value);

    /// Tax incentive: 1 with one, 2 without (indIncentivo).
    std::uint16_t get_indicador_incentivo() const;
    void set_indicador_incentivo(std::uint16_t value);

    /// Proceeding that suspends the tax, 1 to 30 characters (nProcesso).
    optional<std::string> get_numero_processo() const;
    void set_numero_processo(const optional<std::string>& value);

    /// Service, code of the municipality, 1 to 20 characters (cServico).
    optional<std::string> get_codigo_servico() const;
    void set_codigo_servico(const optional<std::string>& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
