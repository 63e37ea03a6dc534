// One function out of several, by the type of what a variant holds.
#pragma once

namespace gastrelle {

template <class... F>
struct Surcharge : F... {
  using F::operator()...;
};

template <class... F>
Surcharge(F...) -> Surcharge<F...>;

}  // namespace gastrelle
