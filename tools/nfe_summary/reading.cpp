#include "reading.hpp"

#include "language.hpp"

#include <map>
#include <string_view>

namespace nfe_summary {

namespace {

/// `det[12]/prod/x` as `det/prod/x`.
std::string without_numbers(std::string_view path) {
    std::string result;
    for (std::size_t end = 0; end != path.npos;) {
        const std::size_t number = path.find('[', end);
        result += path.substr(end, number - end);
        end = path.find(']', number);
        end += end == path.npos ? 0 : 1;
    }
    return result;
}

std::vector<std::string> counted_by_name(const std::vector<std::string>& full_paths) {
    std::map<std::string, std::size_t> counts;
    std::vector<std::string> paths;
    for (const std::string& full_path : full_paths) {
        std::string path = without_numbers(full_path);
        if (++counts[path] == 1) {
            paths.push_back(std::move(path));
        }
    }
    for (std::string& path : paths) {
        const std::size_t count = counts[path];
        path += count == 1 ? "" : say(" ({} times)", count);
    }
    return paths;
}

std::string in_quotes(std::string_view text) { return '"' + shortened(text, 60) + '"'; }

/// A list that a terminal has room for; anything else gets it whole.
std::vector<std::string> shortened_list(const page& out, std::vector<std::string> texts) {
    constexpr std::size_t longest = 20;
    if (out.width != unlimited && texts.size() > longest) {
        const std::size_t more = texts.size() - longest;
        texts.resize(longest);
        texts.push_back(say("and {} more", more));
    }
    return texts;
}

} // namespace

std::vector<std::string> paths_without_field(const layout::report& told) {
    return counted_by_name(told.without_field);
}

std::vector<std::string> refusals(const layout::report& told) {
    std::vector<std::string> texts;
    for (const auto& refused : told.refused) {
        texts.push_back(say("{}: {} is not {}", refused.path, in_quotes(refused.text),
                            translated(refused.instead)));
    }
    return texts;
}

std::vector<std::string> changes(const layout::invoice_document& document) {
    std::vector<std::string> texts;
    const std::string& release = document.outside.versao;
    if (release != layout::outside_texts().versao) {
        texts.push_back(
            say("@versao: {} is read as {}", in_quotes(release), layout::outside_texts().versao));
    }
    for (const std::string& path : document.beside) {
        if (path.find("infNFe[") != path.npos) {
            texts.push_back(say("{}: another invoice in the same NFe, not read", path));
        }
    }
    const layout::report& told = document.report;
    for (const auto& changed : told.written_otherwise) {
        texts.push_back(
            changed.text.empty()
                ? say("{} is written elsewhere: {}", changed.path, translated(changed.instead))
                : say("{}: {} is written as {}", changed.path, in_quotes(changed.text),
                      in_quotes(changed.instead)));
    }
    for (const auto& lost : told.without_room) {
        texts.push_back(say("{}: no room for {}", lost.path, in_quotes(lost.text)));
    }
    for (const std::string& path : told.unknown) {
        texts.push_back(say("{}: the layout has no such element", path));
    }
    for (const auto& added : told.added) {
        texts.push_back(say("{}: {} is written in addition", added.path, in_quotes(added.instead)));
    }
    return texts;
}

void show_reading(const page& out, const layout::invoice_document& document) {
    const layout::report& told = document.report;
    out.field(tr("File"),
              say("{} of the invoice's {} elements have found their place; --json lists them",
                  told.texts_in_fields, told.texts));
    out.field(tr("Without a field"), joined(shortened_list(out, paths_without_field(told))));
    std::vector<std::string> beside = counted_by_name(document.beside);
    std::erase(beside, "protNFe"); // it is shown
    out.field(tr("Beside"), joined(shortened_list(out, beside)));
    out.fields(tr("Changed"), shortened_list(out, changes(document)));
    out.fields(tr("Refused"), refusals(told));
}

} // namespace nfe_summary
