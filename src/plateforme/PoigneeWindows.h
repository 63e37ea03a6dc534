// What the system keeps open for the process: closed with the object.
#pragma once

#include <utility>
#include <windows.h>

namespace gastrelle {

class Poignee {
 public:
  /// Null and INVALID_HANDLE_VALUE, which the system answers for different things: nothing is open.
  explicit Poignee(HANDLE poignee) : poignee_(poignee) {}
  Poignee(Poignee&& autre) noexcept : poignee_(autre.Lache()) {}
  Poignee(const Poignee&) = delete;
  Poignee& operator=(const Poignee&) = delete;
  Poignee& operator=(Poignee&&) = delete;
  ~Poignee() {
    if (ouverte()) {
      ::CloseHandle(poignee_);
    }
  }

  [[nodiscard]] bool ouverte() const {
    return poignee_ != nullptr && poignee_ != INVALID_HANDLE_VALUE;
  }
  [[nodiscard]] HANDLE poignee() const { return poignee_; }
  /// What is open stays so for whoever takes it from now on.
  HANDLE Lache() { return std::exchange(poignee_, nullptr); }

 private:
  HANDLE poignee_;
};

}  // namespace gastrelle
