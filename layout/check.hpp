#pragma once

#include <layout/elements.hpp>
#include <layout/tree.hpp>

#include <string>
#include <string_view>
#include <vector>

/// Documents laid beside the layout: what it does not allow in them. Nothing is computed: a right
/// form is not yet a right amount, and check digits are the base types' matter.
namespace kivo::erp::v12::layout {

/// Something that the layout does not allow in a document.
struct fault {
    enum class kind {
        missing,        ///< an element that has to stand there, or one of several
        too_many,       ///< one more than may stand there
        excluded,       ///< an element that may not stand beside another
        unknown,        ///< an element or attribute that is none of the layout there
        out_of_order,   ///< an element that stands too early, or too late
        wrong_text,     ///< a text of another length or form, or another code
        text_in_group,  ///< a text beside elements
        number_repeats, ///< a number that another element of the name has
    };

    kind is;
    std::string path; ///< of the element, or of the one that is missing; of several, the group's
    std::string text; ///< the element's
    std::string demanded; ///< what the layout demands there, in words

    bool operator==(const fault&) const = default;
};

/// Lists what the layout does not allow in an infNFe element, in the order of the document. Where
/// there is nothing, nothing is allocated. The official schemas accept and refuse the same
/// documents, but for slips of theirs that check.cpp names.
std::vector<fault> check(const node& infnfe);

/// Whether an element may have a text. A group may have none.
bool is_allowed(const element_rule& rule, std::string_view text);

} // namespace kivo::erp::v12::layout
