#include <fiscal/total_nfe_icms.hpp>

namespace kivo::erp::v12::fiscal {

struct total_nfe_icms::record {
    decimal total_seguro;
    decimal total_desonerado;
    decimal total_fcp;
    decimal total_ipi;
    decimal total_ipi_devolvido;
    decimal total_imposto_de_importacao;
    decimal total_da_nota;
    optional<decimal> total_dos_tributos_do_item;
    decimal total_base_st;
    decimal total_base_normal;
    decimal total_icms_normal;
    decimal valor_total_dos_produtos_da_nota;
    decimal total_retido;
    decimal total_fcp_retido;
    decimal total_fcp_retido_anteriormente;
    decimal total_despesas_acessorias;
    decimal total_frete;
    decimal valor_total_do_desconto_da_nota;
    decimal total_imposto_pis;
    decimal total_imposto_confins;
    optional<decimal> total_fecop;
    optional<decimal> total_icms_fcp;
    optional<decimal> total_icms_destino;
    optional<decimal> total_icms_remetente;
    optional<decimal> total_quantidade_tributada_icms_monofasico;
    optional<decimal> total_icms_monofasico;
    optional<decimal> total_quantidade_tributada_icms_monofasico_retencao;
    optional<decimal> total_icms_monofasico_retencao;
    optional<decimal> total_quantidade_tributada_icms_monofasico_retido;
    optional<decimal> total_icms_monofasico_retido;
};

total_nfe_icms::total_nfe_icms() = default;
total_nfe_icms::total_nfe_icms(const total_nfe_icms&) = default;
total_nfe_icms::total_nfe_icms(total_nfe_icms&&) = default;
total_nfe_icms& total_nfe_icms::operator=(const total_nfe_icms&) = default;
total_nfe_icms& total_nfe_icms::operator=(total_nfe_icms&&) = default;
total_nfe_icms::~total_nfe_icms() = default;

decimal total_nfe_icms::get_total_seguro() const { return record_->total_seguro; }
void total_nfe_icms::set_total_seguro(const decimal& value) { record_->total_seguro = value; }

decimal total_nfe_icms::get_total_desonerado() const { return record_->total_desonerado; }
void total_nfe_icms::set_total_desonerado(const decimal& value) {
    record_->total_desonerado = value;
}

decimal total_nfe_icms::get_total_fcp() const { return record_->total_fcp; }
void total_nfe_icms::set_total_fcp(const decimal& value) { record_->total_fcp = value; }

decimal total_nfe_icms::get_total_ipi() const { return record_->total_ipi; }
void total_nfe_icms::set_total_ipi(const decimal& value) { record_->total_ipi = value; }

decimal total_nfe_icms::get_total_ipi_devolvido() const { return record_->total_ipi_devolvido; }
void total_nfe_icms::set_total_ipi_devolvido(const decimal& value) {
    record_->total_ipi_devolvido = value;
}

decimal total_nfe_icms::get_total_imposto_de_importacao() const {
    return record_->total_imposto_de_importacao;
}
void total_nfe_icms::set_total_imposto_de_importacao(const decimal& value) {
    record_->total_imposto_de_importacao = value;
}

decimal total_nfe_icms::get_total_da_nota() const { return record_->total_da_nota; }
void total_nfe_icms::set_total_da_nota(const decimal& value) { record_->total_da_nota = value; }

optional<decimal> total_nfe_icms::get_total_dos_tributos_do_item() const {
    return record_->total_dos_tributos_do_item;
}
void total_nfe_icms::set_total_dos_tributos_do_item(const optional<decimal>& value) {
    record_->total_dos_tributos_do_item = value;
}

decimal total_nfe_icms::get_total_base_st() const { return record_->total_base_st; }
void total_nfe_icms::set_total_base_st(const decimal& value) { record_->total_base_st = value; }

decimal total_nfe_icms::get_total_base_normal() const { return record_->total_base_normal; }
void total_nfe_icms::set_total_base_normal(const decimal& value) {
    record_->total_base_normal = value;
}

decimal total_nfe_icms::get_total_icms_normal() const { return record_->total_icms_normal; }
void total_nfe_icms::set_total_icms_normal(const decimal& value) {
    record_->total_icms_normal = value;
}

decimal total_nfe_icms::get_valor_total_dos_produtos_da_nota() const {
    return record_->valor_total_dos_produtos_da_nota;
}
void total_nfe_icms::set_valor_total_dos_produtos_da_nota(const decimal& value) {
    record_->valor_total_dos_produtos_da_nota = value;
}

decimal total_nfe_icms::get_total_retido() const { return record_->total_retido; }
void total_nfe_icms::set_total_retido(const decimal& value) { record_->total_retido = value; }

decimal total_nfe_icms::get_total_fcp_retido() const { return record_->total_fcp_retido; }
void total_nfe_icms::set_total_fcp_retido(const decimal& value) {
    record_->total_fcp_retido = value;
}

decimal total_nfe_icms::get_total_fcp_retido_anteriormente() const {
    return record_->total_fcp_retido_anteriormente;
}
void total_nfe_icms::set_total_fcp_retido_anteriormente(const decimal& value) {
    record_->total_fcp_retido_anteriormente = value;
}

decimal total_nfe_icms::get_total_despesas_acessorias() const {
    return record_->total_despesas_acessorias;
}
void total_nfe_icms::set_total_despesas_acessorias(const decimal& value) {
    record_->total_despesas_acessorias = value;
}

decimal total_nfe_icms::get_total_frete() const { return record_->total_frete; }
void total_nfe_icms::set_total_frete(const decimal& value) { record_->total_frete = value; }

decimal total_nfe_icms::get_valor_total_do_desconto_da_nota() const {
    return record_->valor_total_do_desconto_da_nota;
}
void total_nfe_icms::set_valor_total_do_desconto_da_nota(const decimal& value) {
    record_->valor_total_do_desconto_da_nota = value;
}

decimal total_nfe_icms::get_total_imposto_pis() const { return record_->total_imposto_pis; }
void total_nfe_icms::set_total_imposto_pis(const decimal& value) {
    record_->total_imposto_pis = value;
}

decimal total_nfe_icms::get_total_imposto_confins() const { return record_->total_imposto_confins; }
void total_nfe_icms::set_total_imposto_confins(const decimal& value) {
    record_->total_imposto_confins = value;
}

optional<decimal> total_nfe_icms::get_total_fecop() const { return record_->total_fecop; }
void total_nfe_icms::set_total_fecop(const optional<decimal>& value) {
    record_->total_fecop = value;
}

optional<decimal> total_nfe_icms::get_total_icms_fcp() const { return record_->total_icms_fcp; }
void total_nfe_icms::set_total_icms_fcp(const optional<decimal>& value) {
    record_->total_icms_fcp = value;
}

optional<decimal> total_nfe_icms::get_total_icms_destino() const {
    return record_->total_icms_destino;
}
void total_nfe_icms::set_total_icms_destino(const optional<decimal>& value) {
    record_->total_icms_destino = value;
}

optional<decimal> total_nfe_icms::get_total_icms_remetente() const {
    return record_->total_icms_remetente;
}
void total_nfe_icms::set_total_icms_remetente(const optional<decimal>& value) {
    record_->total_icms_remetente = value;
}

optional<decimal> total_nfe_icms::get_total_quantidade_tributada_icms_monofasico() const {
    return record_->total_quantidade_tributada_icms_monofasico;
}
void total_nfe_icms::set_total_quantidade_tributada_icms_monofasico(
    const optional<decimal>& value) {
    record_->total_quantidade_tributada_icms_monofasico = value;
}

optional<decimal> total_nfe_icms::get_total_icms_monofasico() const {
    return record_->total_icms_monofasico;
}
void total_nfe_icms::set_total_icms_monofasico(const optional<decimal>& value) {
    record_->total_icms_monofasico = value;
}

optional<decimal> total_nfe_icms::get_total_quantidade_tributada_icms_monofasico_retencao() const {
    return record_->total_quantidade_tributada_icms_monofasico_retencao;
}
void total_nfe_icms::set_total_quantidade_tributada_icms_monofasico_retencao(
    const optional<decimal>& value) {
    record_->total_quantidade_tributada_icms_monofasico_retencao = value;
}

optional<decimal> total_nfe_icms::get_total_icms_monofasico_retencao() const {
    return record_->total_icms_monofasico_retencao;
}
void total_nfe_icms::set_total_icms_monofasico_retencao(const optional<decimal>& value) {
    record_->total_icms_monofasico_retencao = value;
}

optional<decimal> total_nfe_icms::get_total_quantidade_tributada_icms_monofasico_retido() const {
    return record_->total_quantidade_tributada_icms_monofasico_retido;
}
void total_nfe_icms::set_total_quantidade_tributada_icms_monofasico_retido(
    const optional<decimal>& value) {
    record_->total_quantidade_tributada_icms_monofasico_retido = value;
}

optional<decimal> total_nfe_icms::get_total_icms_monofasico_retido() const {
    return record_->total_icms_monofasico_retido;
}
void total_nfe_icms::set_total_icms_monofasico_retido(const optional<decimal>& value) {
    record_->total_icms_monofasico_retido = value;
}

} // namespace kivo::erp::v12::fiscal
