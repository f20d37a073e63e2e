#include "faults.hpp"

#include "language.hpp"
#include "text.hpp"

#include <layout/check.hpp>

namespace nfe_summary {

namespace {

std::string line_of(const layout::fault& found) {
    using kind = layout::fault::kind;
    const std::string text = '"' + shortened(found.text, 60) + '"';
    const std::string demanded = translated(found.demanded);
    switch (found.is) {
    case kind::missing:
        return say("{} is missing: {}", found.path, demanded);
    case kind::too_many:
        return say("{} is one too many: {}", found.path, demanded);
    case kind::excluded:
        return say("{} may not stand here: {}", found.path, demanded);
    case kind::unknown:
        return say("{} is not known: {}", found.path, demanded);
    case kind::out_of_order:
        return say("{} stands in the wrong place, and should stand {}", found.path, demanded);
    case kind::wrong_text:
        return say("{}: {} is not {}", found.path, text, demanded);
    case kind::text_in_group:
        return say("{}: the text {} stands where the layout has {}", found.path, text, demanded);
    case kind::number_repeats:
        return say("{}: {} comes twice, and should be {}", found.path, text, demanded);
    }
    return "";
}

} // namespace

std::vector<std::string> faults_of(const layout::tree& tree) {
    std::vector<std::string> lines;
    for (const layout::fault& found : layout::check(layout::invoice_in(tree))) {
        lines.push_back(line_of(found));
    }
    return lines;
}

} // namespace nfe_summary
