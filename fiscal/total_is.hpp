#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Total of the selective tax of the invoice (ISTot).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT total_is {
public:
    total_is() noexcept;
    total_is(const total_is& other);
    total_is(total_is&& other) noexcept;
    total_is& operator=(const total_is& other);
    total_is& operator=(total_is&& other) noexcept;
    ~total_is();
    void swap(total_is& other) noexcept;

    /// Selective tax, in R$ (vIS).
    decimal get_total() const;
    void set_total(const decimal& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
