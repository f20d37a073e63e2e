#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// A process or concession act that the operation rests on (procRef).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_processo_referenciado {
public:
    /// Where a process runs or who issued an act (indProc).
    enum class indicador_da_origem : std::uint32_t {
        sefaz = 0,            ///< state tax authority (SEFAZ)
        justica_federal = 1,  ///< federal court
        justica_estadual = 2, ///< state court
        secex_rfb = 3,        ///< foreign trade secretariat or federal revenue service
        confaz = 4,           ///< council of the state finance secretaries (CONFAZ)
        outros = 9,           ///< other
    };

    /// Kind of a concession act (tpAto).
    enum class tipo_ato_concessorio : std::uint32_t {
        nao_informado = 0,           ///< never set; not a code of the layout
        termo_de_acordo = 8,         ///< agreement with the taxpayer
        regime_especial = 10,        ///< special regime
        autorizacao_especifica = 12, ///< specific authorisation
        ajuste_sinief = 14,          ///< adjustment of the national system SINIEF
        convenio_icms = 15,          ///< agreement of the states on ICMS
    };

    grupo_processo_referenciado() noexcept;
    grupo_processo_referenciado(const grupo_processo_referenciado& other) noexcept;
    grupo_processo_referenciado(grupo_processo_referenciado&& other) noexcept;
    grupo_processo_referenciado& operator=(const grupo_processo_referenciado& other) noexcept;
    grupo_processo_referenciado& operator=(grupo_processo_referenciado&& other) noexcept;
    ~grupo_processo_referenciado();
    void swap(grupo_processo_referenciado& other) noexcept;

    /// Number of the process or act, 1 to 60 characters (nProc).
    std::string get_identificador() const;
    void set_identificador(const std::string& value);

    /// Where the process runs or who issued the act (indProc).
    indicador_da_origem get_indicador_da_origem() const;
    void set_indicador_da_origem(indicador_da_origem value);

    /// Kind of the concession act, of a state tax authority (tpAto).
    optional<tipo_ato_concessorio> get_tipo_ato_concessorio() const;
    void set_tipo_ato_concessorio(const optional<tipo_ato_concessorio>& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
