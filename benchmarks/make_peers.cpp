#include "model.hpp"

#include <cxxabi.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <typeinfo>

/// Writes what the generated holders are made from: a protobuf schema and an XML schema with all
/// classes of the library, and for both the functions that fill a holder from plain structures and
/// read it. A field is called by its class and its place in it.
namespace kivo::benchmarks {

namespace {

/// The name of a class without its namespaces.
template <class Class> std::string class_name() {
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(Class).name(), nullptr, nullptr, nullptr), &std::free);
    const std::string whole = name.get();
    return whole.substr(whole.rfind(':') + 1);
}

/// One kind of generated holder: its texts so far, and what its schema and its functions are
/// called.
struct peer {
    bool proto = false;
    std::ostringstream schema = {};
    std::ostringstream declarations = {};
    std::ostringstream functions = {};

    const char* space() const { return proto ? "message" : "tree"; }
    std::string has(const std::string& name) const {
        return proto ? "from.has_" + name + "()" : "from." + name + "().present()";
    }
    std::string held(const std::string& name) const {
        return proto ? "from." + name + "()" : "from." + name + "().get()";
    }
};

/// What a schema calls the type of a leaf or a group.
template <class Value> std::string type_name(const peer& to) {
    if constexpr (group<Value>) {
        return class_name<Value>();
    } else if constexpr (std::same_as<Value, std::string>) {
        return to.proto ? "string" : "xs:string";
    } else if constexpr (word<Value>) {
        return to.proto ? "uint64" : "xs:unsignedLong";
    } else {
        static_assert(code<Value> && sizeof(Value) <= sizeof(std::uint32_t));
        return to.proto ? "uint32" : "xs:unsignedInt";
    }
}

/// The plain value of a leaf, as the holder takes it.
template <class Value> std::string leaf(const std::string& value) {
    if constexpr (std::same_as<Value, std::string>) {
        return value;
    } else if constexpr (word<Value>) {
        return "word_of(" + value + ")";
    } else {
        return "static_cast<std::uint32_t>(" + value + ")";
    }
}

enum class presence { always, optional, list };

/// A field of protobuf's; a list cannot stand in a oneof, and stands beside it.
template <class Value>
void write_proto(peer& to, const std::string& name, unsigned& number, presence how, bool choice) {
    if constexpr (is_optional<Value>) {
        write_proto<typename Value::value_type>(to, name, number, presence::optional, choice);
    } else if constexpr (is_list<Value>) {
        if (!choice) {
            write_proto<typename Value::value_type>(to, name, number, presence::list, choice);
        }
    } else if constexpr (is_variant<Value>) {
        const auto alternatives = [&]<std::size_t... index>(std::index_sequence<index...>,
                                                            bool inside) {
            (write_proto<std::variant_alternative_t<index, Value>>(
                 to, name + '_' + std::to_string(index), number, presence::always, inside),
             ...);
        };
        constexpr std::make_index_sequence<std::variant_size_v<Value>> indices;
        if (choice) {
            alternatives(indices, true);
        } else {
            to.schema << "oneof " << name << " {\n";
            alternatives(indices, true);
            to.schema << "}\n";
            [&]<std::size_t... index>(std::index_sequence<index...>) {
                ((is_list<std::variant_alternative_t<index, Value>>
                      ? write_proto<std::variant_alternative_t<index, Value>>(
                            to, name + '_' + std::to_string(index), number, presence::list, false)
                      : void()),
                 ...);
            }
            (indices);
        }
    } else if constexpr (!std::same_as<Value, std::monostate>) {
        const bool explicit_presence = how == presence::optional && !group<Value>;
        to.schema << (how == presence::list ? "repeated "
                      : explicit_presence   ? "optional "
                                            : "")
                  << type_name<Value>(to) << ' ' << name << " = " << ++number << ";\n";
    }
}

/// An element of the XML schema's.
template <class Value> void write_xsd(peer& to, const std::string& name, presence how) {
    if constexpr (is_optional<Value>) {
        write_xsd<typename Value::value_type>(to, name, presence::optional);
    } else if constexpr (is_list<Value>) {
        write_xsd<typename Value::value_type>(to, name, presence::list);
    } else if constexpr (is_variant<Value>) {
        to.schema << "<xs:choice minOccurs='0'>\n";
        [&]<std::size_t... index>(std::index_sequence<index...>) {
            (write_xsd<std::variant_alternative_t<index, Value>>(
                 to, name + '_' + std::to_string(index), presence::always),
             ...);
        }
        (std::make_index_sequence<std::variant_size_v<Value>>());
        to.schema << "</xs:choice>\n";
    } else if constexpr (!std::same_as<Value, std::monostate>) {
        to.schema << "<xs:element name='" << name << "' type='" << type_name<Value>(to) << '\''
                  << (how == presence::always ? "" : " minOccurs='0'")
                  << (how == presence::list ? " maxOccurs='unbounded'" : "") << "/>\n";
    }
}

/// The statement that puts a plain value into its place.
template <class Value>
void write_fill(peer& to, const std::string& name, const std::string& value, presence how) {
    std::ostream& out = to.functions;
    if constexpr (is_optional<Value>) {
        out << "if (" << value << ") {\n";
        write_fill<typename Value::value_type>(to, name, "(*" + value + ")", presence::optional);
        out << "}\n";
    } else if constexpr (is_list<Value>) {
        if (to.proto) {
            out << "to.mutable_" << name << "()->Reserve(static_cast<int>(" << value
                << ".size()));\n";
        } else {
            out << "to." << name << "().reserve(" << value << ".size());\n";
        }
        out << "for (const auto& item : " << value << ") {\n";
        write_fill<typename Value::value_type>(to, name, "item", presence::list);
        out << "}\n";
    } else if constexpr (is_variant<Value>) {
        [&]<std::size_t... index>(std::index_sequence<index...>) {
            const auto write_alternative = [&]<std::size_t here>() {
                const std::string held = "held_" + name + '_' + std::to_string(here);
                out << "if (const auto* const " << held << " = std::get_if<" << here << ">(&"
                    << value << ")) {\n(void)" << held << ";\n";
                write_fill<std::variant_alternative_t<here, Value>>(
                    to, name + '_' + std::to_string(here), "(*" + held + ")", presence::optional);
                out << "}\n";
            };
            (write_alternative.template operator()<index>(), ...);
        }
        (std::make_index_sequence<std::variant_size_v<Value>>());
    } else if constexpr (std::same_as<Value, std::monostate>) {
    } else if constexpr (group<Value>) {
        if (to.proto) {
            out << "fill(*to." << (how == presence::list ? "add_" : "mutable_") << name << "(), "
                << value << ");\n";
        } else {
            out << "auto child = std::make_unique<tree::" << class_name<Value>()
                << ">();\nfill(*child, " << value << ");\nto." << name
                << (how == presence::list ? "().push_back(" : "(") << "std::move(child));\n";
        }
    } else if (to.proto) {
        out << "to." << (how == presence::list ? "add_" : "set_") << name << '('
            << leaf<Value>(value) << ");\n";
    } else {
        out << "to." << name << (how == presence::list ? "().push_back(" : "(")
            << leaf<Value>(value) << ");\n";
    }
}

/// The statement that reads a field.
template <class Value> void write_read(peer& to, const std::string& name, presence how) {
    std::ostream& out = to.functions;
    if constexpr (is_optional<Value>) {
        write_read<typename Value::value_type>(to, name, presence::optional);
    } else if constexpr (is_list<Value>) {
        out << "for (const auto& item : from." << name << "()) {\nsum += sum_of(item);\n}\n";
    } else if constexpr (is_variant<Value>) {
        [&]<std::size_t... index>(std::index_sequence<index...>) {
            (write_read<std::variant_alternative_t<index, Value>>(
                 to, name + '_' + std::to_string(index), presence::optional),
             ...);
        }
        (std::make_index_sequence<std::variant_size_v<Value>>());
    } else if constexpr (std::same_as<Value, std::monostate>) {
    } else if (how == presence::optional) {
        out << "if (" << to.has(name) << ") {\nsum += sum_of(" << to.held(name) << ");\n}\n";
    } else {
        out << "sum += sum_of(from." << name << "());\n";
    }
}

template <class Class> void write_class(peer& to, std::set<std::string>& written);

/// Writes the groups that a value holds.
template <class Value> void write_groups(peer& to, std::set<std::string>& written) {
    if constexpr (is_optional<Value> || is_list<Value>) {
        write_groups<typename Value::value_type>(to, written);
    } else if constexpr (is_variant<Value>) {
        [&]<std::size_t... index>(std::index_sequence<index...>) {
            (write_groups<std::variant_alternative_t<index, Value>>(to, written), ...);
        }
        (std::make_index_sequence<std::variant_size_v<Value>>());
    } else if constexpr (group<Value>) {
        write_class<Value>(to, written);
    }
}

template <class Class> void write_class(peer& to, std::set<std::string>& written) {
    const std::string name = class_name<Class>();
    if (!written.insert(name).second) {
        return;
    }
    const auto for_each_value = [&](auto visit) {
        for_each_field<Class>([&](const auto& accessor, auto index) {
            using value = typename std::remove_cvref_t<decltype(accessor)>::value_type;
            visit.template operator()<value>('f' + std::to_string(index));
        });
    };
    for_each_value([&]<class Value>(const std::string&) { write_groups<Value>(to, written); });

    if (to.proto) {
        to.schema << "message " << name << " {\n";
        unsigned number = 0;
        for_each_value([&]<class Value>(const std::string& field) {
            write_proto<Value>(to, field, number, presence::always, false);
        });
        to.schema << "}\n";
    } else {
        to.schema << "<xs:complexType name='" << name << "'>\n<xs:sequence>\n";
        for_each_value([&]<class Value>(const std::string& field) {
            write_xsd<Value>(to, field, presence::always);
        });
        to.schema << "</xs:sequence>\n</xs:complexType>\n";
    }

    const std::string holder = std::string(to.space()) + "::" + name;
    const std::string fill =
        "void fill(" + holder + "& to, const plain_group<erp::v12::fiscal::" + name + ">& from)";
    const std::string read = "std::uint64_t sum_of(const " + holder + "& from)";
    to.declarations << fill << ";\n" << read << ";\n";
    to.functions << fill << " {\n";
    std::size_t index = 0;
    for_each_value([&]<class Value>(const std::string& field) {
        to.functions << "{\n";
        write_fill<Value>(to, field, "std::get<" + std::to_string(index++) + ">(from.fields)",
                          presence::always);
        to.functions << "}\n";
    });
    to.functions << "}\n" << read << " {\nstd::uint64_t sum = 0;\n";
    for_each_value([&]<class Value>(const std::string& field) {
        write_read<Value>(to, field, presence::always);
    });
    to.functions << "return sum;\n}\n";
}

void write(peer to, const std::string& folder) {
    std::set<std::string> written;
    write_class<erp::v12::fiscal::nota_fiscal>(to, written);

    const std::string name = to.space();
    if (to.proto) {
        std::ofstream(folder + "/message.proto")
            << "syntax = \"proto3\";\npackage kivo.benchmarks.message;\n"
            << to.schema.str();
    } else {
        std::ofstream(folder + "/tree.xsd")
            << "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n"
            << to.schema.str() << "</xs:schema>\n";
    }
    std::ofstream(folder + '/' + name + "_holder.cpp")
        << "#include <benchmarks/digest.hpp>\n#include <benchmarks/model.hpp>\n#include \""
        << (to.proto ? "message.pb.h" : "tree.hxx")
        << "\"\n#include <memory>\nnamespace kivo::benchmarks {\nnamespace {\n"
           "template <class Value> auto sum_of(const Value& value) -> decltype(digest(value)) {\n"
           "return digest(value);\n}\n"
        << to.declarations.str() << to.functions.str() << "}\nvoid build(" << name
        << "::nota_fiscal& to, const plain_invoice& from) { fill(to, from); }\n"
           "std::uint64_t read(const "
        << name << "::nota_fiscal& from) { return sum_of(from); }\n}\n";
}

} // namespace

} // namespace kivo::benchmarks

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: make_peers FOLDER\n";
        return 1;
    }
    kivo::benchmarks::write({.proto = true}, arguments[1]);
    kivo::benchmarks::write({.proto = false}, arguments[1]);
    return 0;
}
