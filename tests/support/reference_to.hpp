#pragma once

namespace kivo::tests {

/// A function that outlives the call it is handed to; unlike that of std::function, its kind costs
/// the compiler next to nothing.
template <class Signature> class reference_to;
template <class Result, class... Arguments> class reference_to<Result(Arguments...)> {
public:
    template <class Function>
    reference_to(const Function& function) // NOLINT(google-explicit-constructor)
        : function_(&function), call_([](const void* called, Arguments... arguments) -> Result {
              return (*static_cast<const Function*>(called))(arguments...);
          }) {}

    Result operator()(Arguments... arguments) const { return call_(function_, arguments...); }

private:
    const void* function_;
    Result (*call_)(const void*, Arguments...);
};

} // namespace kivo::tests
