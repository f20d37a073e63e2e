#include "documents.hpp"

#include <layout/xml_text.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace kivo::tests {

using namespace erp::v12::layout;

element* element::find(std::string_view wanted) {
    const auto found = std::find_if(inner.begin(), inner.end(),
                                    [&](const element& each) { return each.name == wanted; });
    return found == inner.end() ? nullptr : &*found;
}

namespace {

element* found_at(element& root, std::string_view path) {
    element* result = &root;
    while (!path.empty() && result != nullptr) {
        const std::string_view step = path.substr(0, path.find('/'));
        path.remove_prefix(std::min(step.size() + 1, path.size()));
        result = result->find(step);
    }
    return result;
}

} // namespace

element& element::at(std::string_view path) {
    element* const found = found_at(*this, path);
    if (found == nullptr) {
        throw std::out_of_range("no " + std::string(path) + " in " + name);
    }
    return *found;
}

bool has(const element& root, std::string_view path) {
    return found_at(const_cast<element&>(root), path) != nullptr; // NOLINT: nothing is changed
}

element copy_of(const node& root) {
    element result{std::string(root.name), std::string(root.text), {}};
    for (const node& child : children(root)) {
        result.inner.push_back(copy_of(child));
    }
    return result;
}

namespace {

void add_to(tree& result, const element& added) {
    result.open(element_name(result.keep(added.name)), result.keep(added.text));
    for (const bool attributes : {true, false}) {
        for (const element& inner : added.inner) {
            if (inner.name.starts_with('@') == attributes) {
                add_to(result, inner);
            }
        }
    }
    result.close();
}

std::string repeated(unsigned times, std::string_view text) {
    std::string result;
    for (unsigned index = 0; index < times; ++index) {
        result += text;
    }
    return result;
}

/// Runs of characters, each as short or as long as may be.
std::string runs_of(const text_rule& way, bool longest) {
    std::string result;
    for (const char_run& run : way.runs()) {
        char character = longest ? '\x7E' : ' ';
        while (!run.set.has(character)) {
            character = static_cast<char>(character + (longest ? -1 : 1));
        }
        result.append(longest ? run.most : run.least, character);
    }
    return result;
}

void add_decimals(std::vector<std::string>& result, const text_rule& way) {
    const std::string largest =
        way.largest != 0 ? std::to_string(way.largest) : repeated(way.whole, "9");
    result.emplace_back("1");
    if (way.bare_zero && !way.above_zero) {
        result.emplace_back("0");
    }
    result.push_back("1." + repeated(way.most, "0"));
    result.push_back(largest);
    result.push_back("7." + repeated(way.least, "5"));
    result.push_back("7." + repeated(way.most, "9"));
    if (way.largest == 0) {
        result.push_back(largest + '.' + repeated(way.most, "9"));
    }
    result.push_back("0." + repeated(way.small_most - 1U, "0") + '1');
    result.push_back("0." + repeated(way.small_least, "5"));
    if (!way.above_zero) {
        result.push_back("0." + repeated(way.small_most, "0"));
    }
}

} // namespace

tree tree_of(const element& root) {
    tree result;
    add_to(result, root);
    return result;
}

std::string document_of(const element& infnfe) {
    const element xmlns{"@xmlns", "http://www.portalfiscal.inf.br/nfe", {}};
    return xml_text(tree_of({"NFe", {}, {xmlns, infnfe}}).root());
}

namespace {

/// A text that the layout does not tell from others, but the element's field does.
std::vector<std::string> texts_for_field(std::string_view name) {
    if (name.starts_with("CNPJ") || name == "idCadIntTran") {
        return {"11222333000181", "12ABC34501DE35"}; // with their check digits
    }
    if (name.starts_with("CPF")) {
        return {"52998224725"};
    }
    if (name == "nRE") {
        return {"123456789012"}; // fewer are written with zeros in front
    }
    if (name == "cEnq") {
        return {"301"}; // other characters than digits are refused
    }
    if (name == "cProdANVISA") {
        return {"ISENTO"}; // leaves room for the reason
    }
    return {};
}

} // namespace

std::vector<std::string> texts_for(const element_rule& rule) {
    if (rule.is_group()) {
        return {""};
    }
    using kind = text_rule::kind;
    std::vector<std::string> result = texts_for_field(rule.name());
    for (const text_rule& way : rule.texts()) {
        const unsigned least = way.least;
        const unsigned most = way.most;
        switch (way.is) {
        case kind::empty:
            result.emplace_back();
            break;
        case kind::text:
        case kind::word:
            result.push_back(repeated(least, "x"));
            result.push_back(repeated(most, "\u00E7"));
            break;
        case kind::digits:
            for (const char* const digit : {"1", "0", "9"}) {
                result.push_back(repeated(least, digit));
                result.push_back(repeated(most, digit));
            }
            break;
        case kind::number:
            result.push_back(std::to_string(way.smallest));
            result.push_back(std::to_string(way.largest));
            break;
        case kind::decimal:
            add_decimals(result, way);
            break;
        case kind::codes:
            for (const std::string_view code : way.codes()) {
                result.emplace_back(code);
            }
            break;
        case kind::like:
            result.push_back(runs_of(way, false));
            result.push_back(runs_of(way, true));
            break;
        case kind::date:
            result.insert(result.end(), {"2024-02-29", "2000-01-01", "2099-12-31"});
            break;
        case kind::datetime:
            result.insert(result.end(), {"2024-02-29T23:59:59-03:00", "2000-01-01T00:00:00+12:00",
                                         "2099-12-31T12:00:00-11:00", "2024-06-01T06:00:00+00:00"});
            break;
        case kind::aamm:
            result.insert(result.end(), {"0012", "9901"});
            break;
        case kind::aaaa_mm:
            result.insert(result.end(), {"2025-01", "9999-12"});
            break;
        case kind::mm_aaaa:
            result.insert(result.end(), {"12/2999", "01/2000"});
            break;
        case kind::base64:
            result.push_back(most == 0 ? "" : repeated(most * 4 / 3 + 1, "A") + '=');
            break;
        }
    }
    std::vector<std::string> different;
    for (std::string& text : result) {
        if (std::find(different.begin(), different.end(), text) == different.end()) {
            different.push_back(std::move(text));
        }
    }
    return different;
}

const std::string& usual_text(const element_rule& rule) {
    static std::map<const element_rule*, std::string> made;
    const auto [found, is_new] = made.try_emplace(&rule);
    if (is_new) {
        found->second = texts_for(rule).front();
    }
    return found->second;
}

namespace {

/// Calls `visit` for each part directly in another.
template <class Visit> void for_each_part(const group_rule& group, Visit visit) {
    const group_rule* const end = &group + group.size;
    for (const group_rule* part = &group + 1; part != end; part += part->size) {
        visit(*part);
    }
}

class small_maker {
public:
    explicit small_maker(const small_document& made) : made_(&made) {}

    /// `number` is that of the element, or of the one that the attribute stands in.
    element make(const element_rule& rule, std::string_view name, unsigned number) const {
        element result{std::string(name), {}, {}};
        if (&rule == made_->wanted && made_->text) {
            result.text = *made_->text;
        } else if (!rule.is_group()) {
            result.text = rule.unique() ? std::to_string(number) : usual_text(rule);
        }
        if (rule.is_group()) {
            add_part(result, rule, rule.content(), number);
        }
        return result;
    }

private:
    bool leads_to_wanted(const element_rule& rule) const {
        const element_rule* at = made_->wanted;
        while (at != nullptr && at != &rule) {
            at = at->parent();
        }
        return at != nullptr;
    }
    bool leads_to_wanted(const element_rule& group, const group_rule& part) const {
        return std::any_of(group.children().begin(), group.children().end(), [&](const auto& it) {
            return (part.elements >> it.position() & 1) != 0 && leads_to_wanted(it);
        });
    }

    void add_part(element& result, const element_rule& group, const group_rule& part,
                  unsigned number) const {
        const bool needed = leads_to_wanted(group, part);
        if (part.is == group_rule::kind::element) {
            const element_rule& rule = group.children()[part.position];
            const unsigned total = &rule == made_->wanted     ? made_->times
                                   : needed || !part.optional ? 1
                                                              : 0;
            for (unsigned index = 0; index < total; ++index) {
                result.inner.push_back(
                    make(rule, rule.name(), rule.is_attribute() ? number : index + 1));
            }
        } else if (needed || !part.optional) {
            const group_rule* chosen = nullptr;
            for_each_part(part, [&](const group_rule& inner) {
                if (part.is == group_rule::kind::sequence) {
                    add_part(result, group, inner, number);
                } else if (chosen == nullptr || leads_to_wanted(group, inner)) {
                    chosen = &inner;
                }
            });
            if (chosen != nullptr) {
                add_part(result, group, *chosen, number);
            }
        }
    }

    const small_document* made_;
};

/// Makes documents with as much in them as may stand together, with another branch of each choice
/// from one to the next.
class large_maker {
public:
    element make(const element_rule& rule, std::string_view name) {
        made_.insert(&rule);
        element result{std::string(name), {}, {}};
        if (rule.is_group()) {
            add_part(result, rule, rule.content());
        } else {
            result.text = usual_text(rule);
        }
        return result;
    }

    std::size_t rules_made() const { return made_.size(); }

private:
    void add_part(element& result, const element_rule& group, const group_rule& part) {
        if (part.is == group_rule::kind::element) {
            const element_rule& rule = group.children()[part.position];
            result.inner.push_back(make(rule, rule.name()));
            return;
        }
        std::vector<const group_rule*> parts;
        for_each_part(part, [&](const group_rule& inner) { parts.push_back(&inner); });
        if (part.is == group_rule::kind::choice) {
            parts = {parts[next_[&part]++ % parts.size()]};
        }
        for (const group_rule* const inner : parts) {
            add_part(result, group, *inner);
        }
    }

    std::map<const group_rule*, std::size_t> next_;
    std::set<const element_rule*> made_;
};

} // namespace

element small_document::infnfe() const {
    return small_maker(*this).make(infnfe_rule(), "infNFe", 1);
}

std::vector<element> large_documents() {
    std::size_t all = 0;
    for (const element_rule* rule = &infnfe_rule(); rule != nullptr; rule = next(*rule)) {
        ++all;
    }
    large_maker maker;
    std::vector<element> result;
    while (maker.rules_made() < all) {
        result.push_back(maker.make(infnfe_rule(), "infNFe"));
    }
    return result;
}

void for_each_rule(const std::function<void(const element_rule&)>& visit) {
    for (const element_rule* rule = next(infnfe_rule()); rule != nullptr; rule = next(*rule)) {
        SCOPED_TRACE(rule->path());
        visit(*rule);
    }
}

void for_each_element(element& root, const element_rule& rule,
                      const std::function<void(element&, const element_rule&)>& visit) {
    visit(root, rule);
    for (element& inner : root.inner) {
        if (const element_rule* const own = rule.child(inner.name)) {
            for_each_element(inner, *own, visit);
        }
    }
}

} // namespace kivo::tests
