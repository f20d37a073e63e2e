#include "documents.hpp"

#ifdef KIVO_BENCHMARK_BINDINGS
#include "bindings.hpp"
#endif

#include <layout/check.hpp>
#include <layout/xml.hpp>
#include <layout/xml_text.hpp>

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kivo::benchmarks {

namespace {

namespace layout = erp::v12::layout;

constexpr std::size_t few_items = 100;
constexpr std::size_t many_items = 990; // the layout takes no more

std::string file_text(const std::string& name) {
    std::ifstream file(std::string(KIVO_SAMPLES) + '/' + name, std::ios::binary);
    std::ostringstream content;
    if (!file || !(content << file.rdbuf())) {
        throw std::runtime_error(name + " cannot be read");
    }
    return std::move(content).str();
}

std::size_t position_of(std::string_view text, std::string_view part, std::size_t from = 0) {
    const std::size_t position = text.find(part, from);
    if (position == std::string_view::npos) {
        throw std::runtime_error("no " + std::string(part));
    }
    return position;
}

/// A document whose items can be had in any number.
class item_source {
public:
    explicit item_source(const std::string& xml) {
        std::size_t position = position_of(xml, head_);
        before_ = xml.substr(0, position);
        while (xml.compare(position, head_.size(), head_) == 0) {
            const std::size_t content = position_of(xml, "\"", position + head_.size());
            std::size_t next = position_of(xml, "</det>", content) + 6;
            next = position_of(xml, "<", next);
            items_.push_back(xml.substr(content, next - content));
            position = next;
        }
        after_ = xml.substr(position);
    }

    /// The document with so many items: its own, again and again.
    std::string with(std::size_t count) const {
        std::string result = before_;
        for (std::size_t index = 0; index < count; ++index) {
            result += head_ + std::to_string(index + 1) + items_[index % items_.size()];
        }
        return result + after_;
    }

    /// The number of items with which it has about so many bytes.
    std::size_t count_for(std::size_t bytes) const {
        const std::size_t one = with(1).size();
        const std::size_t per_item = (with(1 + few_items).size() - one) / few_items;
        return 1 + (bytes - one) / per_item;
    }

private:
    const std::string head_ = "<det nItem=\"";
    std::string before_;
    std::vector<std::string> items_; // from behind the number on, up to the next element
    std::string after_;
};

/// A document and what is made of it.
struct document {
    document(std::string called, std::string text)
        : name(std::move(called)), xml(std::move(text)), tree(layout::parse_xml(xml)),
          read(layout::read_document(tree)), written(layout::write_xml(read)) {
        if (!layout::differences(layout::invoice_in(tree), written_tree().root()).empty()) {
            throw std::logic_error(name + " is not written as it was read");
        }
        if (!parsed.load_buffer(written.data(), written.size())) {
            throw std::logic_error(name + " is not written as XML");
        }
    }

    layout::tree written_tree() const {
        return layout::write_tree(read.invoice, read.outside, read.kept);
    }

    std::string name;
    std::string xml;
    layout::tree tree;
    layout::invoice_document read;
    std::string written;         ///< the invoice alone, unsigned
    pugi::xml_document parsed{}; ///< the same, as the XML library's own tree
};

std::string measured_name(const std::string& operation, const std::string& document) {
    return "documents/" + operation + '/' + document;
}

/// Calls something over and over that makes an object; its end counts, too.
template <class Make>
void measure(const std::string& operation, const std::shared_ptr<const document>& source,
             Make make) {
    benchmark::RegisterBenchmark(measured_name(operation, source->name).c_str(),
                                 [source, make](benchmark::State& state) {
                                     for (auto _ : state) {
                                         const auto made = make(*source);
                                         benchmark::DoNotOptimize(&made);
                                         benchmark::ClobberMemory();
                                     }
                                 });
}

std::unique_ptr<pugi::xml_document> parse_alone(const std::string& xml) {
    auto result = std::make_unique<pugi::xml_document>();
    if (!result->load_buffer(xml.data(), xml.size())) {
        throw std::logic_error("the document does not parse");
    }
    return result;
}

std::ostringstream save_alone(const pugi::xml_document& parsed) {
    std::ostringstream out;
    parsed.save(out, "", pugi::format_raw);
    return out;
}

#ifdef KIVO_BENCHMARK_BINDINGS

/// The NFe element of a document as a document of its own.
std::string signed_invoice(const std::string& xml) {
    const std::size_t begin = position_of(xml, "<NFe>") + 5;
    const std::size_t end = position_of(xml, "</NFe>", begin) + 6;
    return R"(<NFe xmlns="http://www.portalfiscal.inf.br/nfe">)" + xml.substr(begin, end - begin);
}

/// The unsigned invoice with the shortest signature that the bindings take.
std::string barely_signed(const std::string& written) {
    const std::size_t end = position_of(written, "</NFe>");
    return written.substr(0, end) +
           R"(<Signature xmlns="http://www.w3.org/2000/09/xmldsig#"><SignedInfo>)"
           R"(<CanonicalizationMethod Algorithm="a"/><SignatureMethod Algorithm="a"/>)"
           R"(<Reference URI="#a"><Transforms/><DigestMethod Algorithm="a"/><DigestValue/>)"
           R"(</Reference></SignedInfo><SignatureValue/><KeyInfo><X509Data><X509Certificate/>)"
           R"(</X509Data></KeyInfo></Signature></NFe>)";
}

void measure_bindings(const std::shared_ptr<const document>& source) {
    const auto bound = std::make_shared<const bound_invoice>(barely_signed(source->written));
    const layout::tree written = layout::parse_xml(bound->xml());
    for (const layout::difference& difference :
         layout::differences(layout::invoice_in(written), layout::invoice_in(source->tree))) {
        // Xerces ends a line behind binary content
        if (!difference.left || !difference.right || *difference.left != *difference.right + '\n') {
            throw std::logic_error(
                source->name +
                " is not written by the bindings as it was read: " + difference.path);
        }
    }
    measure("bindings read", source, [xml = signed_invoice(source->xml)](const document&) {
        return std::make_unique<bound_invoice>(xml);
    });
    measure("bindings write", source, [bound](const document&) { return bound->xml(); });
}

#else

void measure_bindings(const std::shared_ptr<const document>&) {}

#endif

void measure_document(const std::shared_ptr<const document>& source) {
    measure("parser alone", source, [](const document& of) { return parse_alone(of.xml); });
    measure("parse_xml", source, [](const document& of) { return layout::parse_xml(of.xml); });
    measure("read_document", source,
            [](const document& of) { return layout::read_document(of.tree); });
    measure("read_xml", source, [](const document& of) { return layout::read_xml(of.xml); });
    measure("saving alone", source, [](const document& of) { return save_alone(of.parsed); });
    measure("write_tree", source, [](const document& of) { return of.written_tree(); });
    measure("write_xml", source, [](const document& of) { return layout::write_xml(of.read); });
    measure("write_xml, nothing kept", source,
            [](const document& of) { return layout::write_xml(of.read.invoice, of.read.outside); });
    measure("check", source,
            [](const document& of) { return layout::check(layout::invoice_in(of.tree)); });
    measure("copy", source, [](const document& of) { return of.read.invoice; });
    measure_bindings(source);
}

/// The documents by name and number of items, in the order of the tables.
struct named_document {
    std::string name;
    std::string xml;
    std::size_t items;
};

std::vector<named_document> documents() {
    const std::string nfe = file_text("nfe.xml");
    const std::string nfce = file_text("nfce.xml");
    const item_source source(nfe);
    const auto own = [](const std::string& xml) {
        return layout::read_xml(xml).invoice.get_produtos().size();
    };
    const std::size_t of_size = source.count_for(1'000'000);
    return {
        {"nfe.xml", nfe, own(nfe)},
        {"nfce.xml", nfce, own(nfce)},
        {"100 items", source.with(few_items), few_items},
        {"1 MB", source.with(of_size), of_size},
        {"990 items", source.with(many_items), many_items},
    };
}

} // namespace

void measure_documents() {
    for (const named_document& named : documents()) {
        measure_document(std::make_shared<const document>(named.name, named.xml));
    }
}

void print_documents(const results& measured) {
    const auto times = [&](const std::string& operation, const std::string& document) {
        return measured.times(measured_name(operation, document));
    };
    const auto share = [&](const std::string& left, const std::string& right,
                           const std::string& document) {
        return ratio_text(times(left, document), times(right, document));
    };
    rows reading{{"document", "kB", "items", "parser alone, µs", "parse_xml to it",
                  "read_document to it", "read_xml, µs", "read_xml to the parser"}};
    rows writing{{"document", "kB written", "saving alone, µs", "write_tree to it", "write_xml, µs",
                  "write_xml to saving", "with nothing kept"}};
    rows others{{"document", "check, µs", "check to the parser", "copy of the invoice, µs",
                 "copy to read_xml"}};
#ifdef KIVO_BENCHMARK_BINDINGS
    reading.front().push_back("bindings to read_xml");
    writing.front().push_back("bindings to write_xml");
#endif
    for (const auto& [name, xml, count] : documents()) {
        const double written = static_cast<double>(layout::write_xml(layout::read_xml(xml)).size());
        reading.push_back(
            {name, short_text(static_cast<double>(xml.size()) / 1000), std::to_string(count),
             median_text(times("parser alone", name), 1000),
             share("parse_xml", "parser alone", name), share("read_document", "parser alone", name),
             median_text(times("read_xml", name), 1000), share("read_xml", "parser alone", name)});
        writing.push_back(
            {name, short_text(written / 1000), median_text(times("saving alone", name), 1000),
             share("write_tree", "saving alone", name), median_text(times("write_xml", name), 1000),
             share("write_xml", "saving alone", name),
             share("write_xml, nothing kept", "saving alone", name)});
        others.push_back({name, median_text(times("check", name), 1000),
                          share("check", "parser alone", name),
                          median_text(times("copy", name), 1000), share("copy", "read_xml", name)});
#ifdef KIVO_BENCHMARK_BINDINGS
        reading.back().push_back(share("bindings read", "read_xml", name));
        writing.back().push_back(share("bindings write", "write_xml", name));
#endif
    }
    print_table("Documents read: times, and ratios to the XML library's parser", reading);
    print_table("Documents written: times, and ratios to the XML library's saving", writing);
    print_table("Beside reading and writing", others);

    rows growth{{"operation", "100 items", "990 items", "ratio"}};
    for (const char* const operation : {"parser alone", "read_xml", "saving alone", "write_xml"}) {
        const auto few = times(operation, "100 items");
        const auto many = times(operation, "990 items");
        growth.push_back({operation, median_text(few, few_items), median_text(many, many_items),
                          ratio_text(many, few, static_cast<double>(few_items) / many_items)});
    }
    print_table("Growth: time per item of a document, in ns", growth);
}

} // namespace kivo::benchmarks
