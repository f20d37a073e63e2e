#include <fiscal/grupo_icms_desonerado.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_icms_desonerado::record {
    decimal valor_icms_desonerado;
    grupo_icms_desonerado::motivo motivo = {};
    optional<grupo_icms_desonerado::indicador_deducao> indicador_deducao;
};

grupo_icms_desonerado::grupo_icms_desonerado() = default;
grupo_icms_desonerado::grupo_icms_desonerado(const grupo_icms_desonerado&) = default;
grupo_icms_desonerado::grupo_icms_desonerado(grupo_icms_desonerado&&) = default;
grupo_icms_desonerado& grupo_icms_desonerado::operator=(const grupo_icms_desonerado&) = default;
grupo_icms_desonerado& grupo_icms_desonerado::operator=(grupo_icms_desonerado&&) = default;
grupo_icms_desonerado::~grupo_icms_desonerado() = default;

decimal grupo_icms_desonerado::get_valor_icms_desonerado() const {
    return record_->valor_icms_desonerado;
}
void grupo_icms_desonerado::set_valor_icms_desonerado(const decimal& value) {
    record_->valor_icms_desonerado = value;
}

grupo_icms_desonerado::motivo grupo_icms_desonerado::get_motivo() const { return record_->motivo; }
void grupo_icms_desonerado::set_motivo(const motivo& value) { record_->motivo = value; }

optional<grupo_icms_desonerado::indicador_deducao>
grupo_icms_desonerado::get_indicador_deducao() const {
    return record_->indicador_deducao;
}
void grupo_icms_desonerado::set_indicador_deducao(const optional<indicador_deducao>& value) {
    record_->indicador_deducao = value;
}

} // namespace kivo::erp::v12::fiscal
