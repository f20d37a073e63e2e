#pragma once

#include <memory>
#include <utility>

/// Ownership, for every class of the library.
///
/// An object is one pointer to a record that it owns alone and that its class hides in its source
/// file. Two templates know how records are made, copied, moved and released; the fields are walked
/// by the record's implicit members, in record order, and released in reverse.
///
/// For every class: getters copy, setters replace the stored value by assignment, and no two
/// objects share anything. The library throws nothing of its own. What fails is an allocation or
/// an operation of a base type; that exception reaches the caller, and nothing is left behind.
/// Where a `noexcept` function copies, also within a larger object, a failure ends the process.
namespace kivo::erp::v12::fiscal {

/// A record from construction to destruction.
///
/// - Construction allocates, copying and moving included: a moved-from object keeps its record and
///   stays usable. Its texts, lists and lazy groups are empty, its other numbers and codes
///   unchanged, and an optional that was present is still present, around a moved-from value.
/// - Assignment walks the fields of the record that is there. When one fails, those before it are
///   new, those behind it old, and it may be neither. To itself, a move may lose texts and lists.
template <class Record> class eager_handle {
public:
    eager_handle() : record_(std::make_unique<Record>()) {}
    eager_handle(const eager_handle& other) : record_(std::make_unique<Record>(*other.record_)) {}
    eager_handle(eager_handle&& other)
        : record_(std::make_unique<Record>(std::move(*other.record_))) {}
    ~eager_handle() = default;

    eager_handle& operator=(const eager_handle& other) {
        *record_ = *other.record_;
        return *this;
    }
    eager_handle& operator=(eager_handle&& other) {
        *record_ = std::move(*other.record_);
        return *this;
    }

    /// The record.
    const Record* operator->() const noexcept { return record_.get(); }
    Record* operator->() noexcept { return record_.get(); }

private:
    std::unique_ptr<Record> record_; // never null
};

/// What happens when a copy fails.
enum class failed_copy {
    propagates,   ///< the exception reaches the caller, and nothing is left behind
    ends_process, ///< std::terminate
};

/// No record until a field is stored.
///
/// - An empty object allocates nothing: getters answer with defaults, and a copy is empty too.
/// - Moving hands the record over and leaves the source empty; the target's own is released.
/// - Copy assignment copies first: when the copy fails, the target is unchanged.
/// - The first setter makes a record of defaults and then stores the field: only while the record
///   cannot be made does the object stay empty.
template <class Record, failed_copy failure = failed_copy::propagates> class lazy_handle {
    static constexpr bool ends_process = failure == failed_copy::ends_process;

public:
    lazy_handle() noexcept = default;
    // noexcept stands here and not in the classes alone: where they are defaulted, g++ 12 lets an
    // exception pass through a copy that is noexcept
    lazy_handle(const lazy_handle& other) noexcept(ends_process)
        : record_(other.record_ ? std::make_unique<Record>(*other.record_) : nullptr) {}
    lazy_handle(lazy_handle&& other) noexcept = default;
    ~lazy_handle() = default;

    lazy_handle& operator=(const lazy_handle& other) noexcept(ends_process) {
        lazy_handle(other).swap(*this);
        return *this;
    }
    lazy_handle& operator=(lazy_handle&& other) noexcept {
        lazy_handle taken(std::move(other));
        swap(taken);
        return *this;
    }

    void swap(lazy_handle& other) noexcept { record_.swap(other.record_); }

    /// Whether there is a record; the record, made where there is none.
    explicit operator bool() const noexcept { return record_ != nullptr; }
    Record& filled() {
        if (!record_) {
            record_ = std::make_unique<Record>();
        }
        return *record_;
    }

    /// A copy of a field, or of its default.
    template <class Field> Field get(Field Record::*field) const {
        return record_ ? (*record_).*field : Field();
    }

    /// Stores a field.
    template <class Field> void set(Field Record::*field, const Field& value) {
        filled().*field = value;
    }

private:
    std::unique_ptr<Record> record_; // null: empty
};

} // namespace kivo::erp::v12::fiscal
