#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace kivo::erp::v12::layout {

/// What became of the elements and attributes of an invoice that was read. Paths begin below
/// infNFe, as those of `placed_text`. Whatever a document holds and `write_xml` would not write
/// with the same text in the same place is here, and so is what it would write and the document
/// does not hold; nothing else is.
struct report {
    /// What is to be told of one element.
    struct remark {
        std::string path;
        std::string text;    ///< as the document has it; of a group, empty
        std::string instead; ///< see each list

        bool operator==(const remark&) const = default;
    };

    std::size_t texts = 0;           ///< elements and attributes that hold a text
    std::size_t texts_in_fields = 0; ///< how many of them are in a field

    std::vector<std::string> without_field; ///< paths; of a whole group, only its own
    std::vector<std::string> unknown;       ///< paths of what the layout does not have there
    std::vector<remark> refused;            ///< texts that their field cannot hold; what it holds
    std::vector<remark> written_otherwise;  ///< held; as what, or where, they are written
    std::vector<remark> without_room;       ///< what the objects cannot tell beside what they hold
    std::vector<remark> added;              ///< not in the document; `instead` is what is written
};

} // namespace kivo::erp::v12::layout
