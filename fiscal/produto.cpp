#include <fiscal/produto.hpp>

#include <fiscal/choice.hpp>

#include <variant>

namespace kivo::erp::v12::fiscal {

namespace {

/// What only some products have, and an item one of at most.
using especifico = variant<combustiveis, std::vector<medicamento>, std::vector<arma>>;

template <class Kind> optional<Kind> held(const optional<especifico>& choice) {
    if (const Kind* const kind = choice ? std::get_if<Kind>(&*choice) : nullptr) {
        return *kind;
    }
    return {};
}

/// Assignment to a variant treats the kinds differently, and that is wanted: a list moves without
/// failing, so it is copied before another kind goes; fuel data may fail to move, so another kind
/// goes first.
template <class Kind> void store(optional<especifico>& choice, const optional<Kind>& value) {
    if (!value) {
        choice.reset();
    } else if (choice) {
        *choice = *value;
    } else {
        choice.emplace(*value);
    }
}

} // namespace

struct produto::record {
    std::string codigo_produto;
    std::string codigo_de_barras;
    std::string descricao;
    std::uint32_t ncm = 0;
    std::uint16_t cfop = 0;
    optional<std::uint32_t> cest;
    optional<std::uint16_t> extipi;
    optional<std::string> indicador_escala_relevante;
    optional<cnpj> cnpj_fabricante;
    optional<std::string> codigo_beneficio_fiscal_uf;
    std::string unidade_comercial;
    decimal quantidade_comercial;
    decimal valor_unitario_comercial;
    decimal valor_total_bruto;
    std::string codigo_de_barras_tributavel;
    std::string unidade_tributavel;
    optional<decimal> quantidade_tributavel;
    decimal valor_unitario_tributavel;
    optional<decimal> valor_frete;
    optional<decimal> valor_desconto;
    optional<decimal> valor_despesas_acessorias;
    produto::indicador_item_compoe_valor_total indicador_item_compoe_valor_total = {};
    optional<std::string> pedido_ordem_de_compra;
    optional<std::uint32_t> codigo_do_produto_ordem_de_compra;
    optional<decimal> valor_total_tributos;
    optional<std::string> informacoes_adicionais;
    std::vector<fiscal::declaracao_importacao> declaracao_importacao;
    optional<fiscal::tributacao_ipi> tributacao_ipi;
    optional<tributacao_imposto_importacao> tributacao_importacao;
    optional<fiscal::tributacao_pis_cofins> tributacao_pis_cofins;
    optional<fiscal::tributacao_icms_uf_destino> tributacao_icms_uf_destino;
    optional<especifico> produto_especifico;
    std::vector<fiscal::grupo_exportacao> grupo_exportacao;
    optional<decimal> valor_seguro;
    std::vector<informacoes_rastreabilidade> lista_informacoes_rastreabilidade;
    std::vector<fiscal::grupo_credito_presumido> grupo_credito_presumido;
    optional<fiscal::tributos_devolvidos> tributos_devolvidos;
    optional<produto::tributacao> tributacao;
    optional<fiscal::imposto_seletivo> imposto_seletivo;
    optional<fiscal::ibs_cbs> ibs_cbs;
    optional<decimal> total_item;
};

produto::produto() = default;
produto::produto(const produto&) = default;
produto::produto(produto&&) = default;
produto& produto::operator=(const produto&) = default;
produto& produto::operator=(produto&&) = default;
produto::~produto() = default;

std::string produto::get_codigo_produto() const { return record_->codigo_produto; }
void produto::set_codigo_produto(const std::string& value) { record_->codigo_produto = value; }

std::string produto::get_codigo_de_barras() const { return record_->codigo_de_barras; }
void produto::set_codigo_de_barras(const std::string& value) { record_->codigo_de_barras = value; }

std::string produto::get_descricao() const { return record_->descricao; }
void produto::set_descricao(const std::string& value) { record_->descricao = value; }

std::uint32_t produto::get_ncm() const { return record_->ncm; }
void produto::set_ncm(std::uint32_t value) { record_->ncm = value; }

std::uint16_t produto::get_cfop() const { return record_->cfop; }
void produto::set_cfop(std::uint16_t value) { record_->cfop = value; }

optional<std::uint32_t> produto::get_cest() const { return record_->cest; }
void produto::set_cest(const optional<std::uint32_t>& value) { record_->cest = value; }

optional<std::uint16_t> produto::get_extipi() const { return record_->extipi; }
void produto::set_extipi(const optional<std::uint16_t>& value) { record_->extipi = value; }

optional<std::string> produto::get_indicador_escala_relevante() const {
    return record_->indicador_escala_relevante;
}
void produto::set_indicador_escala_relevante(const optional<std::string>& value) {
    record_->indicador_escala_relevante = value;
}

optional<cnpj> produto::get_cnpj_fabricante() const { return record_->cnpj_fabricante; }
void produto::set_cnpj_fabricante(const optional<cnpj>& value) { record_->cnpj_fabricante = value; }

optional<std::string> produto::get_codigo_beneficio_fiscal_uf() const {
    return record_->codigo_beneficio_fiscal_uf;
}
void produto::set_codigo_beneficio_fiscal_uf(const optional<std::string>& value) {
    record_->codigo_beneficio_fiscal_uf = value;
}

std::string produto::get_unidade_comercial() const { return record_->unidade_comercial; }
void produto::set_unidade_comercial(const std::string& value) {
    record_->unidade_comercial = value;
}

decimal produto::get_quantidade_comercial() const { return record_->quantidade_comercial; }
void produto::set_quantidade_comercial(const decimal& value) {
    record_->quantidade_comercial = value;
}

decimal produto::get_valor_unitario_comercial() const { return record_->valor_unitario_comercial; }
void produto::set_valor_unitario_comercial(const decimal& value) {
    record_->valor_unitario_comercial = value;
}

decimal produto::get_valor_total_bruto() const { return record_->valor_total_bruto; }
void produto::set_valor_total_bruto(const decimal& value) { record_->valor_total_bruto = value; }

std::string produto::get_codigo_de_barras_tributavel() const {
    return record_->codigo_de_barras_tributavel;
}
void produto::set_codigo_de_barras_tributavel(const std::string& value) {
    record_->codigo_de_barras_tributavel = value;
}

std::string produto::get_unidade_tributavel() const { return record_->unidade_tributavel; }
void produto::set_unidade_tributavel(const std::string& value) {
    record_->unidade_tributavel = value;
}

optional<decimal> produto::get_quantidade_tributavel() const {
    return record_->quantidade_tributavel;
}
void produto::set_quantidade_tributavel(const optional<decimal>& value) {
    record_->quantidade_tributavel = value;
}

decimal produto::get_valor_unitario_tributavel() const {
    return record_->valor_unitario_tributavel;
}
void produto::set_valor_unitario_tributavel(const decimal& value) {
    record_->valor_unitario_tributavel = value;
}

optional<decimal> produto::get_valor_frete() const { return record_->valor_frete; }
void produto::set_valor_frete(const optional<decimal>& value) { record_->valor_frete = value; }

optional<decimal> produto::get_valor_desconto() const { return record_->valor_desconto; }
void produto::set_valor_desconto(const optional<decimal>& value) {
    record_->valor_desconto = value;
}

optional<decimal> produto::get_valor_despesas_acessorias() const {
    return record_->valor_despesas_acessorias;
}
void produto::set_valor_despesas_acessorias(const optional<decimal>& value) {
    record_->valor_despesas_acessorias = value;
}

produto::indicador_item_compoe_valor_total produto::get_indicador_item_compoe_valor_total() const {
    return record_->indicador_item_compoe_valor_total;
}
void produto::set_indicador_item_compoe_valor_total(indicador_item_compoe_valor_total value) {
    record_->indicador_item_compoe_valor_total = value;
}

optional<std::string> produto::get_pedido_ordem_de_compra() const {
    return record_->pedido_ordem_de_compra;
}
void produto::set_pedido_ordem_de_compra(const optional<std::string>& value) {
    record_->pedido_ordem_de_compra = value;
}

optional<std::uint32_t> produto::get_codigo_do_produto_ordem_de_compra() const {
    return record_->codigo_do_produto_ordem_de_compra;
}
void produto::set_codigo_do_produto_ordem_de_compra(const optional<std::uint32_t>& value) {
    record_->codigo_do_produto_ordem_de_compra = value;
}

optional<decimal> produto::get_valor_total_tributos() const {
    return record_->valor_total_tributos;
}
void produto::set_valor_total_tributos(const optional<decimal>& value) {
    record_->valor_total_tributos = value;
}

optional<std::string> produto::get_informacoes_adicionais() const {
    return record_->informacoes_adicionais;
}
void produto::set_informacoes_adicionais(const optional<std::string>& value) {
    record_->informacoes_adicionais = value;
}

std::vector<declaracao_importacao> produto::get_declaracao_importacao() const {
    return record_->declaracao_importacao;
}
void produto::set_declaracao_importacao(const std::vector<declaracao_importacao>& value) {
    record_->declaracao_importacao = value;
}

optional<tributacao_ipi> produto::get_tributacao_ipi() const { return record_->tributacao_ipi; }
void produto::set_tributacao_ipi(const optional<tributacao_ipi>& value) {
    record_->tributacao_ipi = value;
}

optional<tributacao_imposto_importacao> produto::get_tributacao_importacao() const {
    return record_->tributacao_importacao;
}
void produto::set_tributacao_importacao(const optional<tributacao_imposto_importacao>& value) {
    record_->tributacao_importacao = value;
}

optional<tributacao_pis_cofins> produto::get_tributacao_pis_cofins() const {
    return record_->tributacao_pis_cofins;
}
void produto::set_tributacao_pis_cofins(const optional<tributacao_pis_cofins>& value) {
    record_->tributacao_pis_cofins = value;
}

optional<tributacao_icms_uf_destino> produto::get_tributacao_icms_uf_destino() const {
    return record_->tributacao_icms_uf_destino;
}
void produto::set_tributacao_icms_uf_destino(const optional<tributacao_icms_uf_destino>& value) {
    record_->tributacao_icms_uf_destino = value;
}

optional<combustiveis> produto::get_combustiveis() const {
    return held<combustiveis>(record_->produto_especifico);
}
void produto::set_combustiveis(const optional<combustiveis>& value) {
    store(record_->produto_especifico, value);
}

optional<std::vector<medicamento>> produto::get_medicamentos() const {
    return held<std::vector<medicamento>>(record_->produto_especifico);
}
void produto::set_medicamentos(const optional<std::vector<medicamento>>& value) {
    store(record_->produto_especifico, value);
}

optional<std::vector<arma>> produto::get_armas() const {
    return held<std::vector<arma>>(record_->produto_especifico);
}
void produto::set_armas(const optional<std::vector<arma>>& value) {
    store(record_->produto_especifico, value);
}

std::vector<grupo_exportacao> produto::get_grupo_exportacao() const {
    return record_->grupo_exportacao;
}
void produto::set_grupo_exportacao(const std::vector<grupo_exportacao>& value) {
    record_->grupo_exportacao = value;
}

optional<decimal> produto::get_valor_seguro() const { return record_->valor_seguro; }
void produto::set_valor_seguro(const optional<decimal>& value) { record_->valor_seguro = value; }

std::vector<informacoes_rastreabilidade> produto::lista_informacoes_rastreabilidade() const {
    return record_->lista_informacoes_rastreabilidade;
}
void produto::set_lista_informacoes_rastreabilidade(
    const std::vector<informacoes_rastreabilidade>& value) {
    record_->lista_informacoes_rastreabilidade = value;
}

std::vector<grupo_credito_presumido> produto::get_grupo_credito_presumido() const {
    return record_->grupo_credito_presumido;
}
void produto::set_grupo_credito_presumido(const std::vector<grupo_credito_presumido>& value) {
    record_->grupo_credito_presumido = value;
}

optional<fiscal::tributos_devolvidos> produto::tributos_devolvidos() const {
    return record_->tributos_devolvidos;
}
void produto::set_tributos_devolvidos(const optional<fiscal::tributos_devolvidos>& value) {
    record_->tributos_devolvidos = value;
}

optional<produto::tributacao> produto::get_tributacao() const { return record_->tributacao; }
void produto::set_tributacao(const optional<tributacao>& value) {
    replace_choice(record_->tributacao, value);
}

optional<imposto_seletivo> produto::get_imposto_seletivo() const {
    return record_->imposto_seletivo;
}
void produto::set_imposto_seletivo(const optional<imposto_seletivo>& value) {
    record_->imposto_seletivo = value;
}

optional<ibs_cbs> produto::get_ibs_cbs() const { return record_->ibs_cbs; }
void produto::set_ibs_cbs(const optional<ibs_cbs>& value) { record_->ibs_cbs = value; }

optional<decimal> produto::get_total_item() const { return record_->total_item; }
void produto::set_total_item(const optional<decimal>& value) { record_->total_item = value; }

} // namespace kivo::erp::v12::fiscal
