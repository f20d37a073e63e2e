#pragma once

#include <fiscal/nota_fiscal.hpp>

#include <string>

/// Short meanings of the codes that a person wants to read, in the chosen language. A code without
/// a name is told by its number; the default of a field whose code 0 is none has no text.
namespace nfe_summary {

namespace fiscal = kivo::erp::v12::fiscal;

std::string name_of(fiscal::emitente::regime_fiscal regime);
std::string name_of(fiscal::nota_fiscal::tipo_operacao direction);
std::string name_of(fiscal::nota_fiscal::indicador_operacao destination);
std::string name_of(fiscal::nota_fiscal::indicador_finalidade_emissao purpose);
std::string name_of(fiscal::tipo_emissao emission);
std::string name_of(fiscal::informacoes_transporte::modalidade_frete freight);
std::string name_of(fiscal::detalhes_pagamento::meio_pagamento means);
std::string name_of(fiscal::detalhes_pagamento::indicador_forma_pagamento terms);

} // namespace nfe_summary
