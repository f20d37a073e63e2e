#include <fiscal/guia_de_transito.hpp>

namespace kivo::erp::v12::fiscal {

struct guia_de_transito::record {
    guia_de_transito::tipo_guia tipo_guia = {};
    std::string uf_emissao;
    optional<std::string> serie;
    std::uint32_t numero = 0;
};

guia_de_transito::guia_de_transito() = default;
guia_de_transito::guia_de_transito(const guia_de_transito&) = default;
guia_de_transito::guia_de_transito(guia_de_transito&&) = default;
guia_de_transito& guia_de_transito::operator=(const guia_de_transito&) = default;
guia_de_transito& guia_de_transito::operator=(guia_de_transito&&) = default;
guia_de_transito::~guia_de_transito() = default;

guia_de_transito::tipo_guia guia_de_transito::get_tipo_guia() const { return record_->tipo_guia; }
void guia_de_transito::set_tipo_guia(const tipo_guia& value) { record_->tipo_guia = value; }

std::string guia_de_transito::get_uf_emissao() const { return record_->uf_emissao; }
void guia_de_transito::set_uf_emissao(const std::string& value) { record_->uf_emissao = value; }

optional<std::string> guia_de_transito::get_serie() const { return record_->serie; }
void guia_de_transito::set_serie(const optional<std::string>& value) { record_->serie = value; }

std::uint32_t guia_de_transito::get_numero() const { return record_->numero; }
void guia_de_transito::set_numero(const std::uint32_t& value) { record_->numero = value; }

} // namespace kivo::erp::v12::fiscal
