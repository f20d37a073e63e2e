#include <fiscal/nota_fiscal.hpp>

#include <cstring>

// What the debugger is asked to print; it stops in `shown`.
namespace {

using namespace kivo::erp::v12::fiscal;

template <class Value> Value from_text(const char* text) {
    Value value;
    static_cast<void>(
        kivo::core::v7::value_converter<Value>::make_value(value, text, std::strlen(text)));
    return value;
}

produto sale() {
    produto item;
    item.set_descricao("Café torrado");
    item.set_quantidade_comercial(from_text<decimal>("12.50"));
    item.set_valor_desconto(from_text<decimal>("-0.0000000005"));
    grupo_tributacao_icms_00 tax;
    tax.set_cst(static_cast<cst>(77));
    item.set_tributacao(tax);
    return item;
}

produto medicine() {
    medicamento registered;
    registered.set_codigo_anvisa("1234567890123");
    produto item;
    item.set_medicamentos({{registered, medicamento()}});
    return item;
}

/// Keeps its arguments alive and in memory.
void shown(const nota_fiscal& nota, const ipi_devolvido& in_place, const date* dates) {
    static const volatile void* last;
    last = &nota;
    last = &in_place;
    last = dates;
    (void)last;
}

} // namespace

int main() {
    emitente issuer;
    issuer.set_cnpj(from_text<cnpj>("12ABC34501DE35"));

    transportador carrier;
    carrier.set_documento(from_text<cpf>("52998224725"));
    informacoes_transporte transport;
    transport.set_transportador(carrier);

    nota_fiscal nota;
    nota.set_data_emissao(from_text<datetime>("2026-03-09T08:05:07-03:00"));
    nota.set_tipo_emissao(tipo_emissao::contingencia_offline);
    nota.set_emitente(issuer);
    nota.set_produtos({sale(), medicine()});
    nota.set_informacoes_transporte(transport);

    ipi_devolvido in_place;
    in_place.set_valor(from_text<decimal>("7"));

    const date dates[] = {from_text<date>("2026-02-28"), date()};
    shown(nota, in_place, dates);
}
