// A function as an argument that is called before its callee returns. Unlike std::function it copies nothing
// and allocates nothing, however much a lambda captures.
//
//     void Each(FunctionRef<void(int)> use) { for (int i = 0; i < 3; ++i) use(i); }
//     Each([&](int i) { sum += i; });
#pragma once
#include <concepts>
#include <memory>
#include <type_traits>
#include <utility>

template <class Signature>
class FunctionRef;

template <class Result, class... Arguments>
class FunctionRef<Result(Arguments...)> {
  public:
    // `function` must outlive this.
    template <class Function>
    requires(!std::same_as<std::remove_cvref_t<Function>, FunctionRef>) FunctionRef(Function&& function)
        : FFunction(const_cast<void*>(static_cast<const void*>(std::addressof(function)))),
          FCall([](void* known, Arguments... arguments) -> Result {
              return (*static_cast<std::remove_reference_t<Function>*>(known))(
                  std::forward<Arguments>(arguments)...);
          }) {}

    Result operator()(Arguments... arguments) const {
        return FCall(FFunction, std::forward<Arguments>(arguments)...);
    }

  private:
    void* FFunction;
    Result (*FCall)(void*, Arguments...);
};
