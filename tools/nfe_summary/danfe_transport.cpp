#include "forms.hpp"

#include "language.hpp"
#include "names.hpp"

#include <fmt/format.h>

namespace nfe_summary {

namespace {

void add_volume(markup part, const fiscal::volume& volume) {
    const auto weight = [](const optional<fiscal::decimal>& kilograms) {
        return kilograms ? quantity(*kilograms) + " kg" : "";
    };
    const std::uint32_t count = volume.get_quantidade(); // 0: not told
    add_fields(part, {{tr("QUANTITY"), count == 0 ? "" : fmt::to_string(count), 3},
                      {tr("KIND"), volume.get_especie().value_or(""), 5},
                      {tr("BRAND"), volume.get_marca().value_or(""), 4},
                      {tr("NUMBERING"), volume.get_numeracao().value_or(""), 4},
                      {tr("GROSS WEIGHT"), weight(volume.get_peso_bruto()), 4, true},
                      {tr("NET WEIGHT"), weight(volume.get_peso_liquido()), 4, true}});
}

} // namespace

void add_danfe_transport(markup form, const form_source& from) {
    const auto transport = from.invoice.get_informacoes_transporte();
    const auto carrier = transport.get_transportador();
    const auto vehicle = transport.get_veiculo();
    const auto own = [&](auto get) { return carrier ? ((*carrier).*get)().value_or("") : ""; };
    using fiscal::transportador;
    const markup part = add_part(form, tr("CARRIER / VOLUMES CARRIED"));
    add_fields(part, {{tr("NAME / COMPANY"), own(&transportador::get_razao_social), 8},
                      {tr("FREIGHT PAID BY"), name_of(transport.get_modalidade_frete()), 5},
                      {tr("ANTT CODE"), vehicle ? vehicle->get_rntc().value_or("") : "", 3},
                      {tr("PLATE OF THE VEHICLE"), vehicle ? vehicle->get_placa() : "", 3},
                      {tr("STATE"), vehicle ? vehicle->get_uf() : "", 1},
                      {"CNPJ / CPF", id_text(id_in(from.infnfe, "transp/transporta")), 4}});
    add_fields(part, {{tr("ADDRESS"), own(&transportador::get_endereco), 10},
                      {tr("CITY"), own(&transportador::get_municipio), 8},
                      {tr("STATE"), own(&transportador::get_uf), 2},
                      {tr("STATE REGISTRATION"), own(&transportador::get_ie), 4}});
    for (const fiscal::volume& volume : transport.get_volumes()) {
        add_volume(part, volume);
    }
}

} // namespace nfe_summary
