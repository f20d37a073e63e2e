#pragma once

#include <fiscal/types.hpp>

/// The two kinds of presumed credit; a credit is always a choice between them.
namespace kivo::erp::v12::fiscal {

/// Presumed credit that is available at once (vCredPres).
struct valor_cred_pres {
    decimal valor; ///< amount of the credit, in R$
};

/// Presumed credit that still depends on a condition precedent (vCredPresCondSus).
struct valor_cred_pres_sus {
    decimal valor; ///< amount of the credit, in R$
};

} // namespace kivo::erp::v12::fiscal
