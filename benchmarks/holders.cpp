#include "holders.hpp"

#include "digest.hpp"

#include <layout/xml.hpp>

#include <array>
#include <string>

namespace kivo::benchmarks {

using erp::v12::fiscal::produto;

namespace {

/// Whether a field of the source holds something that has to be set.
template <class Value> bool is_present(const Value& value) {
    if constexpr (is_optional<Value>) {
        return value.has_value();
    } else if constexpr (is_list<Value>) {
        return !value.empty();
    } else {
        return true;
    }
}

/// Calls `visit(index)` with the index of the alternative that a variant holds, as a constant.
template <class Variant, class Visit> void visit_index(const Variant& variant, Visit visit) {
    [&]<std::size_t... index>(std::index_sequence<index...>) {
        ((variant.index() == index ? visit(std::integral_constant<std::size_t, index>()) : void()),
         ...);
    }
    (std::make_index_sequence<std::variant_size_v<Variant>>());
}

template <class Value> plain<Value> plain_value(const Value& value) {
    if constexpr (is_optional<Value>) {
        return value ? plain<Value>(plain_value(*value)) : plain<Value>();
    } else if constexpr (is_list<Value>) {
        plain<Value> result;
        result.reserve(value.size());
        for (const auto& item : value) {
            result.push_back(plain_value(item));
        }
        return result;
    } else if constexpr (is_variant<Value>) {
        plain<Value> result;
        visit_index(value, [&](auto index) {
            result.template emplace<index>(plain_value(std::get<index>(value)));
        });
        return result;
    } else if constexpr (group<Value>) {
        plain<Value> result;
        for_each_field<Value>([&](const auto& accessor, auto index) {
            std::get<index>(result.fields) = plain_value((value.*accessor.get)());
        });
        return result;
    } else {
        return value;
    }
}

/// Sets the fields that hold something in the source; `convert` makes groups from plain ones.
template <group Class, class Convert>
void set_fields(Class& to, const plain<Class>& from, Convert convert) {
    for_each_field<Class>([&](const auto& accessor, auto index) {
        using value_type = typename std::remove_cvref_t<decltype(accessor)>::value_type;
        const auto& source = std::get<index>(from.fields);
        if (!is_present(source)) {
            return;
        }
        if constexpr (std::same_as<value_type, plain<value_type>>) {
            (to.*accessor.set)(source);
        } else {
            (to.*accessor.set)(convert(std::type_identity<value_type>(), source));
        }
    });
}

/// Fills a fresh value of the library where it stands.
template <class Value> void fill(Value& to, const plain<Value>& from) {
    if constexpr (is_optional<Value>) {
        fill(to.emplace(), *from);
    } else if constexpr (is_list<Value>) {
        to.reserve(from.size());
        for (const auto& item : from) {
            fill(to.emplace_back(), item);
        }
    } else if constexpr (is_variant<Value>) {
        visit_index(from, [&](auto index) {
            if (to.index() != index) { // a fresh variant holds its first alternative
                to.template emplace<index>();
            }
            fill(std::get<index>(to), std::get<index>(from));
        });
    } else if constexpr (group<Value>) {
        set_fields(to, from, []<class Field>(std::type_identity<Field>, const auto& source) {
            Field field{};
            fill(field, source);
            return field;
        });
    } else {
        to = from;
    }
}

/// A value of the library, built from copies of its parts.
template <class Value> Value made(const plain<Value>& from) {
    Value to{};
    if constexpr (is_optional<Value>) {
        const auto content = made<typename Value::value_type>(*from);
        to = content;
    } else if constexpr (is_list<Value>) {
        for (const auto& item : from) {
            const auto content = made<typename Value::value_type>(item);
            to.push_back(content);
        }
    } else if constexpr (is_variant<Value>) {
        visit_index(from, [&](auto index) {
            const auto content =
                made<std::variant_alternative_t<index, Value>>(std::get<index>(from));
            to = content;
        });
    } else if constexpr (group<Value>) {
        set_fields(to, from, []<class Field>(std::type_identity<Field>, const auto& source) {
            return made<Field>(source);
        });
    } else {
        to = from;
    }
    return to;
}

/// Fills a fresh plain value where it stands.
template <class Value> void fill_plain(Value& to, const Value& from) {
    if constexpr (is_optional<Value>) {
        fill_plain(to.emplace(), *from);
    } else if constexpr (is_list<Value>) {
        to.reserve(from.size());
        for (const auto& item : from) {
            fill_plain(to.emplace_back(), item);
        }
    } else if constexpr (is_variant<Value>) {
        visit_index(from, [&](auto index) {
            if (to.index() != index) {
                to.template emplace<index>();
            }
            fill_plain(std::get<index>(to), std::get<index>(from));
        });
    } else if constexpr (requires { to.fields; }) {
        [&]<std::size_t... index>(std::index_sequence<index...>) {
            ((is_present(std::get<index>(from.fields))
                  ? fill_plain(std::get<index>(to.fields), std::get<index>(from.fields))
                  : void()),
             ...);
        }
        (std::make_index_sequence<std::tuple_size_v<decltype(to.fields)>>());
    } else {
        to = from;
    }
}

template <class Value> std::uint64_t sum(const Value& value) {
    if constexpr (is_optional<Value>) {
        return value ? sum(*value) : 0;
    } else if constexpr (is_list<Value>) {
        std::uint64_t result = 0;
        for (const auto& item : value) {
            result += sum(item);
        }
        return result;
    } else if constexpr (is_variant<Value>) {
        return std::visit([](const auto& held) { return sum(held); }, value);
    } else if constexpr (group<Value>) {
        std::uint64_t result = 0;
        for_each_field<Value>(
            [&](const auto& accessor, auto) { result += sum((value.*accessor.get)()); });
        return result;
    } else if constexpr (requires { value.fields; }) {
        return std::apply([](const auto&... field) { return (sum(field) + ...); }, value.fields);
    } else if constexpr (std::same_as<Value, std::monostate>) {
        return 0;
    } else if constexpr (word<Value>) {
        return digest(word_of(value));
    } else if constexpr (code<Value>) {
        return digest(static_cast<std::uint32_t>(value));
    } else {
        return digest(value);
    }
}

std::uint64_t total_of(const produto& item) { return word_of(item.get_valor_total_bruto()); }

} // namespace

nota_fiscal sample_invoice(std::size_t items) {
    static constexpr std::array descriptions{
        "Furadeira de impacto 1/2\" 750 W 127 V, com maleta",
        "Serra circular 7.1/4\" 1400 W 127 V",
        "Broca de vídea 8 mm",
        "Parafuso sextavado 1/4\" x 2\" zincado, caixa com 100",
        "Trena 5 m",
        "Jogo de chaves combinadas 6 a 22 mm, 17 peças, aço cromo-vanádio",
        "Lixa d'água grão 120",
        "Esmerilhadeira angular 4.1/2\" 850 W 220 V, com disco e chave",
        "Luva de vaqueta, par",
        "Cabo PP 3 x 2,5 mm² preto, rolo com 100 m",
    };
    nota_fiscal invoice = erp::v12::layout::read_file(KIVO_SAMPLE_INVOICE).invoice;
    const auto first = invoice.get_produtos().at(0);
    std::vector<produto> list;
    list.reserve(items);
    for (std::size_t index = 0; index < items; ++index) {
        produto& item = list.emplace_back(first);
        item.set_codigo_produto("SKU-" + std::to_string(100'000 + index));
        item.set_descricao(descriptions.at(index % descriptions.size()));
        if (index % 10 != 0) { // batches, and a remark, are the exception
            item.set_lista_informacoes_rastreabilidade({});
            item.set_informacoes_adicionais({});
        }
    }
    invoice.set_produtos(list);
    return invoice;
}

plain_invoice plain_copy(const nota_fiscal& invoice) { return plain_value(invoice); }

void build(nota_fiscal& to, const plain_invoice& from) { fill(to, from); }
nota_fiscal build_by_copies(const plain_invoice& from) { return made<nota_fiscal>(from); }
std::uint64_t read(const nota_fiscal& from) { return sum(from); }

void build(plain_invoice& to, const plain_invoice& from) { fill_plain(to, from); }
std::uint64_t read(const plain_invoice& from) { return sum(from); }

std::uint64_t read_totals(const nota_fiscal& from) {
    std::uint64_t result = 0;
    for (const produto& item : from.get_produtos()) {
        result += total_of(item);
    }
    return result;
}

std::uint64_t read_totals_item_by_item(const nota_fiscal& from) {
    std::uint64_t result = 0;
    const std::size_t count = from.get_produtos().size();
    for (std::size_t index = 0; index < count; ++index) {
        result += total_of(from.get_produtos()[index]);
    }
    return result;
}

} // namespace kivo::benchmarks
