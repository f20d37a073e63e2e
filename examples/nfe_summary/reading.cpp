#include "reading.hpp"

#include <fmt/format.h>

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

/// Whether a path without numbers leads to what is around an invoice, such as its signature.
bool is_around(std::string_view path) {
    return path == "@versao" || path == "infNFeSupl" || path == "Signature" || path == "protNFe" ||
           path.starts_with("NFe/");
}

std::vector<std::string> unread(const layout::reading& result, bool around) {
    std::map<std::string, std::size_t> counts;
    std::vector<std::string> paths;
    for (const std::string& full_path : result.unread) {
        std::string path = without_numbers(full_path);
        if (is_around(path) == around && ++counts[path] == 1) {
            paths.push_back(std::move(path));
        }
    }
    for (std::string& path : paths) {
        const std::size_t count = counts[path];
        path += count == 1 ? "" : fmt::format(" ({} times)", count);
    }
    return paths;
}

std::string in_quotes(std::string_view text) { return '"' + shortened(text, 60) + '"'; }

std::vector<std::string> shortened_list(std::vector<std::string> texts) {
    constexpr std::size_t longest = 20;
    if (texts.size() > longest) {
        const std::size_t more = texts.size() - longest;
        texts.resize(longest);
        texts.push_back(fmt::format("and {} more", more));
    }
    return texts;
}

} // namespace

std::vector<std::string> paths_without_field(const layout::reading& result) {
    return unread(result, false);
}

std::vector<std::string> refusals(const layout::reading& result) {
    std::vector<std::string> texts;
    for (const auto& refused : result.refused) {
        texts.push_back(fmt::format("{}: {} is not {}", refused.path, in_quotes(refused.text),
                                    refused.instead));
    }
    return texts;
}

std::string problems(const layout::reading& result) {
    const auto counted = [](std::size_t count, std::string_view what) {
        return count == 0 ? "" : fmt::format("{} {}", count, what);
    };
    std::size_t without_field = 0;
    for (const std::string& path : result.unread) {
        without_field += is_around(without_numbers(path)) ? 0 : 1;
    }
    return joined({counted(result.refused.size(), "refused"),
                   counted(result.changed.size(), "changed"), counted(without_field, "left out")});
}

void show_reading(const page& out, const layout::reading& result) {
    out.field("File",
              fmt::format("{} of the file's {} elements have found their place; --json lists them",
                          result.texts_read, result.texts));
    out.field("Without a field", joined(shortened_list(unread(result, false))));
    out.field("Outside", joined(shortened_list(unread(result, true))));
    std::vector<std::string> changes;
    for (const auto& changed : result.changed) {
        changes.push_back(fmt::format("{}: {} is kept as {}", changed.path, in_quotes(changed.text),
                                      in_quotes(changed.instead)));
    }
    out.fields("Changed", shortened_list(changes));
    out.fields("Refused", refusals(result));
}

} // namespace nfe_summary
