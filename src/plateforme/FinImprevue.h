// An end of the process that nobody in the program has decided: a library that can't go on, since
// the display or the session manager has gone, calls exit().
#pragma once

#include <functional>

namespace gastrelle {

/// While it lives, such an end does one thing first. An end by `Processus`, by a signal or from
/// `main` isn't one. There may be one at a time.
class FinImprevue {
 public:
  /// `surFin` may show nothing and throw nothing. It is run once, also if it brings about such an
  /// end itself.
  explicit FinImprevue(std::function<void()> surFin);
  FinImprevue(const FinImprevue&) = delete;
  FinImprevue& operator=(const FinImprevue&) = delete;
  ~FinImprevue();

 private:
  static void Survient();

  std::function<void()> surFin_;
};

}  // namespace gastrelle
