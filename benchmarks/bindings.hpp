#pragma once

#include <memory>
#include <string>
#include <string_view>

/// What a user gets who makes classes from the official schemas: CodeSynthesis XSD over Xerces,
/// nothing validated.
namespace kivo::benchmarks {

/// A signed NFe document in such classes. While one exists, making another does not start Xerces.
class bound_invoice {
public:
    explicit bound_invoice(std::string_view xml);
    bound_invoice(const bound_invoice&) = delete;
    bound_invoice& operator=(const bound_invoice&) = delete;
    ~bound_invoice();

    std::string xml() const;

private:
    struct content;
    std::unique_ptr<content> content_;
};

} // namespace kivo::benchmarks
