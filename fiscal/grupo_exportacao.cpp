#include <fiscal/grupo_exportacao.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_exportacao::record {
    optional<std::string> numero_ato_concessorio_drawback;
    optional<std::uint64_t> numero_registro_exportacao;
    optional<std::string> chave_acesso_nfe_recebida;
    optional<decimal> quantidade_exportada;
};

grupo_exportacao::grupo_exportacao() = default;
grupo_exportacao::grupo_exportacao(const grupo_exportacao&) = default;
grupo_exportacao::grupo_exportacao(grupo_exportacao&&) = default;
grupo_exportacao& grupo_exportacao::operator=(const grupo_exportacao&) = default;
grupo_exportacao& grupo_exportacao::operator=(grupo_exportacao&&) = default;
grupo_exportacao::~grupo_exportacao() = default;

optional<std::string> grupo_exportacao::get_numero_ato_concessorio_drawback() const {
    return record_->numero_ato_concessorio_drawback;
}
void grupo_exportacao::set_numero_ato_concessorio_drawback(const optional<std::string>& value) {
    record_->numero_ato_concessorio_drawback = value;
}

optional<std::uint64_t> grupo_exportacao::get_numero_registro_exportacao() const {
    return record_->numero_registro_exportacao;
}
void grupo_exportacao::set_numero_registro_exportacao(const optional<std::uint64_t>& value) {
    record_->numero_registro_exportacao = value;
}

optional<std::string> grupo_exportacao::get_chave_acesso_nfe_recebida() const {
    return record_->chave_acesso_nfe_recebida;
}
void grupo_exportacao::set_chave_acesso_nfe_recebida(const optional<std::string>& value) {
    record_->chave_acesso_nfe_recebida = value;
}

optional<decimal> grupo_exportacao::get_quantidade_exportada() const {
    return record_->quantidade_exportada;
}
void grupo_exportacao::set_quantidade_exportada(const optional<decimal>& value) {
    record_->quantidade_exportada = value;
}

} // namespace kivo::erp::v12::fiscal
