// Fills an invoice with two items, copies it, changes the copy, reads both, and writes one as XML.

#include <layout/text.hpp>
#include <layout/xml.hpp>

#include <fiscal/nota_fiscal.hpp>

#include <cstdint>
#include <iostream>
#include <vector>

using namespace kivo::erp::v12::fiscal;
using kivo::erp::v12::layout::text_of;
using kivo::erp::v12::layout::value_from;

namespace {

emitente issuer() {
    endereco address;
    address.set_logradouro("Rua Mateus Leme");
    address.set_numero_endereco("2210");
    address.set_bairro("São Francisco");
    address.set_ibge_municipio(4106902);
    address.set_nome_municipio("Curitiba");
    address.set_uf("PR");
    address.set_cep(80530010);

    emitente result;
    result.set_cnpj(value_from<cnpj>("99153726000121"));
    result.set_razao_social("Torrefação Serra Clara Ltda");
    result.set_endereco(address);
    result.set_ie("9081624750");
    result.set_regime_fiscal(emitente::regime_fiscal::simples_nacional);
    return result;
}

produto item(const char* code, const char* description, std::uint32_t ncm, const char* unit,
             const char* quantity, const char* price, const char* total) {
    grupo_tributacao_icms_102 icms;
    icms.set_origem_mercadoria(origem_cst::nacional);
    icms.set_csosn(csosn::tributada_sem_credito);

    produto result;
    result.set_codigo_produto(code);
    result.set_codigo_de_barras("SEM GTIN");
    result.set_descricao(description);
    result.set_ncm(ncm);
    result.set_cfop(5102);
    result.set_unidade_comercial(unit);
    result.set_quantidade_comercial(value_from<decimal>(quantity));
    result.set_valor_unitario_comercial(value_from<decimal>(price));
    result.set_valor_total_bruto(value_from<decimal>(total));
    result.set_codigo_de_barras_tributavel("SEM GTIN");
    result.set_unidade_tributavel(unit);
    result.set_quantidade_tributavel(value_from<decimal>(quantity));
    result.set_valor_unitario_tributavel(value_from<decimal>(price));
    result.set_indicador_item_compoe_valor_total(
        produto::indicador_item_compoe_valor_total::compoe);
    result.set_tributacao(produto::icms(icms));
    return result;
}

nota_fiscal sale() {
    nota_fiscal result;
    result.set_modelo_emissor("55");
    result.set_serie("1");
    result.set_numero(1042);
    result.set_codigo_nf(57204918);
    result.set_chave_44_digitos("41260999153726000121550010000010421572049184");
    result.set_data_emissao(value_from<datetime>("2026-09-21T10:15:00-03:00"));
    result.set_natureza_operacao("Venda de mercadorias");
    result.set_tipo_operacao(nota_fiscal::tipo_operacao::saida);
    result.set_indicador_operacao(nota_fiscal::indicador_operacao::interna);
    result.set_indicador_finalidade_emissao(nota_fiscal::indicador_finalidade_emissao::normal);
    result.set_indicador_presenca(nota_fiscal::indicador_presenca::presencial);
    result.set_operacao_consumidor_final(nota_fiscal::operacao_consumidor_final::consumidor_final);
    result.set_indicador_ambiente(nota_fiscal::indicador_ambiente::producao);
    result.set_ibge_uf_emissao(41);
    result.set_ibge_municipio_emissao(4106902);
    result.set_emitente(issuer());

    destinatario buyer;
    buyer.set_cnpj(value_from<cnpj>("99084261000102"));
    buyer.set_razao_social("Confeitaria Largo da Ordem Ltda");
    buyer.set_indicador_de_ie(destinatario::indicador_de_ie::nao_contribuinte);
    result.set_destinatario(buyer);

    result.set_produtos({
        item("CAF-250", "Café torrado em grãos, 250 g", 9012100, "UN", "12", "24.9000", "298.80"),
        item("FIL-103", "Filtro de papel 103, 30 unidades", 48232091, "CX", "5", "6.5000", "32.50"),
    });

    const auto amount = value_from<decimal>("331.30");
    total_nfe_icms sums;
    sums.set_valor_total_dos_produtos_da_nota(amount);
    sums.set_total_da_nota(amount);
    total_nfe total;
    total.set_total_icms(sums);
    result.set_total_nfe(total);

    informacoes_transporte transport;
    transport.set_modalidade_frete(informacoes_transporte::modalidade_frete::sem_transporte);
    result.set_informacoes_transporte(transport);

    detalhes_pagamento pix;
    pix.set_meio_pagamento(detalhes_pagamento::meio_pagamento::pix_dinamico);
    pix.set_valor_pagamento(amount);
    informacoes_pagamento payment;
    payment.set_detalhes_pagamento({pix});
    result.set_informacoes_pagamento(payment);
    return result;
}

void show(const nota_fiscal& invoice) {
    std::cout << "Invoice " << invoice.get_numero() << " to "
              << *invoice.get_destinatario()->get_razao_social() << '\n';
    for (const produto& sold : invoice.get_produtos()) {
        std::cout << "  " << *text_of(sold.get_quantidade_comercial()) << ' '
                  << sold.get_unidade_comercial() << "  " << sold.get_descricao() << ": R$ "
                  << *text_of(sold.get_valor_total_bruto()) << '\n';
    }
}

} // namespace

int main() {
    const nota_fiscal invoice = sale();

    nota_fiscal next_week = invoice; // a copy shares nothing with its source
    next_week.set_numero(1043);
    std::vector<produto> items = next_week.get_produtos(); // a getter copies, too
    items.pop_back();
    items[0].set_quantidade_comercial(value_from<decimal>("24"));
    items[0].set_valor_total_bruto(value_from<decimal>("597.60"));
    next_week.set_produtos(items);

    show(invoice);
    show(next_week);
    std::cout << kivo::erp::v12::layout::write_xml(invoice) << '\n';
}
