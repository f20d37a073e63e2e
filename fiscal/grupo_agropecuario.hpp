#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <vector>

namespace kivo::erp::v12::fiscal {

class defensivos_agricolas;
class guia_de_transito;

/// Papers of an agricultural load: pesticide prescriptions or a transit permit (agropecuario).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_agropecuario {
public:
    grupo_agropecuario();
    grupo_agropecuario(const grupo_agropecuario& other);
    grupo_agropecuario(grupo_agropecuario&& other);
    grupo_agropecuario& operator=(const grupo_agropecuario& other);
    grupo_agropecuario& operator=(grupo_agropecuario&& other);
    ~grupo_agropecuario();

    /// Prescriptions, 1 to 20 (index 0), or the transit permit (index 1) (defensivo, guiaTransito).
    /// An empty list when never set. When copying a permit in the place of prescriptions fails,
    /// they are gone, and what is returned holds nothing; when copying prescriptions in the place
    /// of a permit fails, the group keeps the permit.
    variant<std::vector<defensivos_agricolas>, guia_de_transito> get_informacoes() const;
    void set_informacoes(const variant<std::vector<defensivos_agricolas>, guia_de_transito>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
