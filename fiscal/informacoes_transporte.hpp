#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <vector>

namespace kivo::erp::v12::fiscal {

class transportador;
class veiculo_transporte;
class volume;

/// Transport of the goods (transp).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT informacoes_transporte {
public:
    /// Who contracts the freight or carries the goods (modFrete).
    enum class modalidade_frete : std::uint32_t {
        por_conta_do_remetente = 0,    ///< freight contracted by the sender (CIF)
        por_conta_do_destinatario = 1, ///< freight contracted by the recipient (FOB)
        por_conta_de_terceiros = 2,    ///< freight contracted by a third party
        proprio_do_remetente = 3,      ///< the sender's own transport
        proprio_do_destinatario = 4,   ///< the recipient's own transport
        sem_transporte = 9,            ///< no transport
    };

    informacoes_transporte();
    informacoes_transporte(const informacoes_transporte& other);
    informacoes_transporte(informacoes_transporte&& other);
    informacoes_transporte& operator=(const informacoes_transporte& other);
    informacoes_transporte& operator=(informacoes_transporte&& other);
    ~informacoes_transporte();

    /// Who contracts the freight or carries the goods (modFrete).
    modalidade_frete get_modalidade_frete() const;
    void set_modalidade_frete(modalidade_frete value);

    /// Who carries the goods (transporta).
    optional<transportador> get_transportador() const;
    void set_transportador(const optional<transportador>& value);

    /// Road vehicle that carries the goods (veicTransp).
    optional<veiculo_transporte> get_veiculo() const;
    void set_veiculo(const optional<veiculo_transporte>& value);

    /// Packages carried, one entry per kind, up to 5000 (vol).
    std::vector<volume> get_volumes() const;
    void set_volumes(const std::vector<volume>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
